// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// The text (UTF-8) without what would move a terminal's cursor, change its state or turn a line round: a
/// blank stands for each control character but tab and line feed, and for each embedding or override of the
/// direction (Unicode standard annex 9). Scripts come from others, too.
std::string harmlessText(std::string_view text);
