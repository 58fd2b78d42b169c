// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "platform/Result.h"
#include "platform/sessions/Sessions.h"

/// What every process of the program does first of all.
void prepareProcess();

/// Has the process end by exit() when its X server goes. To be called once the toolkit has started.
///
/// Why: GTK, which the toolkit loads under desktops of its kind, ends it by _exit() then, so that hot keys
/// would stay in the settings of GNOME's user.
void endInOrderWithServer();

/// Says so on standard error; the exit status.
int reportFailure(const Error& error);

/// The session to work in, by its name or, without one, by what the process was started in; the toolkit is
/// told to show its windows there, and not to complain of what it has to do without. To be called before the
/// toolkit starts, of which nothing is needed.
Result<SessionKind> enterSession(std::string_view name = {});
