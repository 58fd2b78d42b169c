// SPDX-License-Identifier: MIT
#include "core/Action.h"

// Out of line, so that the table of virtual functions has one home.
Action::~Action() = default;
