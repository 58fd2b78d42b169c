// SPDX-License-Identifier: MIT
#include "platform/sessions/Sessions.h"

#include <algorithm>
#include <array>
#include <string>

#include "platform/Sentence.h"
#include "platform/wayland/WaylandSession.h"
#include "platform/x11/X11Session.h"

namespace {

Result<std::unique_ptr<Session>> openWayland(Clock& clock, SessionUse use) {
    return wayland::openSession(clock, use,
                                {.openFocus = x11::openWindowFocus, .refuseFocus = x11::refuseFocus});
}

/// Windows are X11 windows where the compositor has an X server, and else its own.
constexpr std::array allKinds = {
    SessionKind{.name = "wayland",
                .toolkit = "xcb;wayland",
                .check = wayland::checkDisplay,
                .examine = wayland::examineSession,
                .open = openWayland},
    SessionKind{.name = "x11",
                .toolkit = "xcb",
                .check = x11::checkDisplay,
                .examine = x11::examineSession,
                .open = x11::openSession},
};

std::string namesOf(std::span<const SessionKind> kinds) {
    std::string names;
    for (const SessionKind& kind : kinds) {
        if (!names.empty()) names += ", ";
        names += kind.name;
    }
    return names;
}

}  // namespace

std::span<const SessionKind> sessionKinds() { return allKinds; }

Result<SessionKind> chooseSession(std::string_view name, std::span<const SessionKind> kinds) {
    if (!name.empty()) {
        const auto named = std::find_if(kinds.begin(), kinds.end(),
                                        [&](const SessionKind& kind) { return kind.name == name; });
        if (named == kinds.end()) {
            return Error{sentence("Session", "There is no kind of session called \"%1\".").arg(name),
                         sentence("Session", "Choose one of these: %1.").arg(namesOf(kinds))};
        }
        const auto here = named->check();
        return here ? Result<SessionKind>(*named) : here.error();
    }
    Error why{sentence("Session", "No kind of session is known."), ""};
    for (const SessionKind& kind : kinds) {
        const auto here = kind.check();
        if (here) return kind;
        why = here.error();
    }
    return why;
}
