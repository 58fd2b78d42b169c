// SPDX-License-Identifier: MIT
#include "platform/Wiping.h"

#include <cstring>

void wipe(void* memory, std::size_t size) { explicit_bzero(memory, size); }
