// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// The text (UTF-8) without what would move a terminal's cursor or change its state: a blank stands for each
/// control character but tab and line feed. Scripts come from others, too.
std::string harmlessText(std::string_view text);
