// SPDX-License-Identifier: MIT
#include "platform/script/source/SystemEvents.h"

#include "platform/script/source/Word.h"

namespace script {

bool isSystemEvents(std::string_view name, bool byIdentifier) {
    if (byIdentifier) return equalIgnoringCase(name, "com.apple.systemevents");
    return equalIgnoringCase(name, "System Events") || equalIgnoringCase(name, "System Events.app");
}

}  // namespace script
