// SPDX-License-Identifier: MIT
#pragma once

/// Whether the character may be put on a key: not a control character, and one that has a key symbol.
bool isBindable(char32_t character);
