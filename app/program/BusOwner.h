// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"

class QDBusConnection;

/// Whether whoever has the program's name on the bus answers at all, within 5 s. True if nobody has it, or
/// whoever had it goes meanwhile, and of a program that has none of what Keyrill has.
///
/// Why: a call of the program's own may wait for long, for a folder that cannot be reached.
bool ownerAnswers(const QDBusConnection& bus);

/// That it has not answered, in words, with its process; or that it has ended.
Error ownerIsSilent(const QDBusConnection& bus);
