// SPDX-License-Identifier: MIT
#include "platform/script/source/SystemEvents.h"

#include <algorithm>

namespace script {
namespace {

char lowered(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool equalIgnoringCase(std::string_view left, std::string_view right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char a, char b) { return lowered(a) == lowered(b); });
}

}  // namespace

bool isSystemEvents(std::string_view name, bool byIdentifier) {
    if (byIdentifier) return equalIgnoringCase(name, "com.apple.systemevents");
    return equalIgnoringCase(name, "System Events") || equalIgnoringCase(name, "System Events.app");
}

}  // namespace script
