// SPDX-License-Identifier: MIT
#include "platform/sessions/Sessions.h"

#include <algorithm>
#include <array>
#include <string>

#include "platform/x11/X11Session.h"

namespace {

constexpr std::array kinds = {
    SessionKind{.name = "x11", .toolkit = "xcb", .check = x11::checkDisplay, .open = x11::openSession},
};

std::string namesOf(std::span<const SessionKind> known) {
    std::string names;
    for (const SessionKind& kind : known) {
        if (!names.empty()) names += ", ";
        names += kind.name;
    }
    return names;
}

}  // namespace

std::span<const SessionKind> sessionKinds() { return kinds; }

Result<SessionKind> chooseSession(std::string_view name, std::span<const SessionKind> known) {
    if (!name.empty()) {
        const auto named = std::find_if(known.begin(), known.end(),
                                        [&](const SessionKind& kind) { return kind.name == name; });
        if (named == known.end()) {
            return Error{"There is no kind of session called \"" + std::string(name) + "\".",
                         "Choose one of these: " + namesOf(known) + "."};
        }
        const auto here = named->check();
        return here ? Result<SessionKind>(*named) : here.error();
    }
    Error why{"No kind of session is known.", ""};
    for (const SessionKind& kind : known) {
        const auto here = kind.check();
        if (here) return kind;
        why = here.error();
    }
    return why;
}
