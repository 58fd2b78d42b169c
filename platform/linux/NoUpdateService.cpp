// SPDX-License-Identifier: MIT
//
// What stands in for the update service in a build without it.
#include "platform/linux/UpdateCheck.h"

namespace {

class NoUpdateService : public UpdateService {
  public:
    bool isNewerThan(std::string_view /*runningVersion*/) override { return false; }
};

}  // namespace

std::unique_ptr<UpdateService> makeUpdateService(const UpdateSource& /*source*/) {
    return std::make_unique<NoUpdateService>();
}
