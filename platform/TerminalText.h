// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// The text (UTF-8) without what would move a terminal's cursor, change its state or turn a line round: a
/// blank stands for each control character but tab and line feed, for each embedding or override of the
/// direction and for the end of an isolate that has not begun; isolates end with their line (Unicode standard
/// annex 9). Scripts come from others, too.
std::string harmlessText(std::string_view text);
