// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string_view>

#include "platform/Session.h"
#include "platform/SessionCheck.h"

/// A kind of session that the program knows.
struct SessionKind {
    /// As users write it: lower case, "x11".
    std::string_view name;
    /// Which of the toolkit's platforms shows windows there, as QT_QPA_PLATFORM has it.
    const char* toolkit;
    /// Whether the process was started in such a session; the error says what is missing.
    Result<void> (*check)();
    /// Tells what works there, whether or not it is such a session.
    std::unique_ptr<SessionCheck> (*examine)();
    /// Connects to it. The clock outlives the session.
    Result<std::unique_ptr<Session>> (*open)(Clock& clock, SessionUse use);
};

/// All kinds, those that are tried first in front. Adding one is adding its row.
std::span<const SessionKind> sessionKinds();

/// The kind of that name, or without a name (empty) the first one that the process was started in. Fails for
/// a name that there is not, with a hint that lists the names, and where the process was started in no such
/// session, with the error of its check; without a name, of the last one's.
Result<SessionKind> chooseSession(std::string_view name, std::span<const SessionKind> kinds = sessionKinds());
