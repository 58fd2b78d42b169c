// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include "prefs/KeyCombo.h"

/// The modifiers of a `controlflag` mask as this desktop writes them, each followed by a plus sign:
/// "Ctrl+Super+".
QString modifiersText(std::uint32_t flags);

/// "Ctrl+Super+R", with the key's name under the present layout; empty for the empty combination.
QString combinationText(KeyCombo keyCombo);
