// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/x11/server/XConnection.h"

/// A connection of a test's own. Throws where the server cannot be reached.
x11::XConnection connectTo(const std::string& display);
