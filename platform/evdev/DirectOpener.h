// SPDX-License-Identifier: MIT
#pragma once

#include "platform/evdev/DeviceOpener.h"
#include "platform/evdev/devices/InputFolders.h"

namespace evdev {

/// Opens the device files themselves, where the system lets the user read them. Fails if he may not read one
/// of them. Answers at once and asks nobody.
class DirectOpener final : public DeviceOpener {
  public:
    explicit DirectOpener(InputFolders folders = {}) : m_folders(std::move(folders)) {}

    /// Whether there are keyboards and the user may read all of them. Opens nothing.
    bool mayOpen() const;

    void open(const std::set<std::string>& held, Question question, Opened opened) override;
    void close() override {}

  private:
    Result<std::vector<OpenedDevice>> openAllBut(const std::set<std::string>& held) const;

    InputFolders m_folders;
};

}  // namespace evdev
