// SPDX-License-Identifier: MIT
#pragma once

// The C header names a structure member "explicit", a keyword of C++.
#define explicit explicit_
#include <xcb/xkb.h>
#undef explicit
