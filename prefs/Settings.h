// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

class SettingsStore;

/// A mask of `controlflag` bits as `modifier` bits (platform/Modifiers.h); other bits are dropped.
std::uint32_t hotKeyFlags(std::uint32_t controlFlags);

/// Copies the stored combinations of record, stop, play and multiplePlay into the preference table.
///
/// NAMECode is cut to 16 bits, NAMEFlags is converted. Where one of the two keys is missing, the table's
/// entry stays as it was.
void loadHotKeys(const SettingsStore& store);
