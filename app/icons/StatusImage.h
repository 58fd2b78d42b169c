// SPDX-License-Identifier: MIT
#pragma once

/// What the status item shows of the program.
enum class StatusImage { busy, normal };
