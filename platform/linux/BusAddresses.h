// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/linux/ConfigFolders.h"

/// Where the message buses are, in the words of the D-Bus standard ("Server Addresses"); empty where there is
/// none.
struct BusAddresses {
    std::string session;
    std::string system;

    friend bool operator==(const BusAddresses&, const BusAddresses&) = default;
};

/// By DBUS_SESSION_BUS_ADDRESS, else the socket "bus" in XDG_RUNTIME_DIR; by DBUS_SYSTEM_BUS_ADDRESS, else
/// the socket that the standard names. No bus is started.
BusAddresses busAddresses(const Environment& environment);
