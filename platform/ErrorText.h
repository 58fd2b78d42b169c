// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "platform/Result.h"

/// What is wrong and what to do about it as one paragraph, UTF-8: with a full stop after a message that has
/// no end of its own, where there is a hint.
std::string inOneParagraph(std::string_view message, std::string_view hint);
std::string inOneParagraph(const Error& error);
