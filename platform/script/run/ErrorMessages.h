// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace script {

/// What an error says that was given a number and no words.
std::string standardMessage(int number);

}  // namespace script
