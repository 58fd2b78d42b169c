// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "platform/Result.h"
#include "platform/sessions/Sessions.h"

/// Says in one line on standard error why the program cannot start; the exit status.
int reportFailure(const Error& error);

/// The session to work in, by its name or, without one, by what the process was started in; the toolkit is
/// told to show its windows there. To be called before the toolkit starts, of which nothing is needed.
Result<SessionKind> enterSession(std::string_view name = {});
