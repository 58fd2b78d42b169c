// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/Descriptor.h"
#include "platform/Result.h"

/// Why what stands at a path, links followed, cannot be taken for a file of the user's; empty where nothing
/// speaks against it or nothing is there. Only regular files can: no folder, pipe, socket or device, nor what
/// the kernel makes up while it is read (/proc, /sys), although that calls itself a regular file.
std::string obstacleAt(const std::string& path);

/// Opens a file for reading; what has an obstacle is refused without waiting for anybody. The message is the
/// cause alone, without the path; there is a hint where the thing is none to be read.
Result<Descriptor> openRegularFile(const std::string& path);
