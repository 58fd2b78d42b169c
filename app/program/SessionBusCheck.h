// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <string>

/// Whether whoever listens at the D-Bus address answers within the time. True for addresses that are not a
/// Unix socket, and if there is nobody: to find that out takes no time.
///
/// Why: the libraries for D-Bus wait half a minute for a bus that hangs.
bool answersInTime(const std::string& address, std::chrono::milliseconds time);

/// The same for the session bus's address.
bool sessionBusAnswers();

/// Leaves the session bus of this process alone, by its environment, if it hangs. To be called before
/// anything uses it.
void avoidHangingSessionBus();
