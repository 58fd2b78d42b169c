// SPDX-License-Identifier: MIT
#include "platform/linux/BusAddresses.h"

#include <gio/gio.h>

#include "platform/linux/GLibPointers.h"

BusAddresses busAddresses(const Environment& environment) {
    BusAddresses addresses{environment("DBUS_SESSION_BUS_ADDRESS"), environment("DBUS_SYSTEM_BUS_ADDRESS")};
    const std::string runtime = environment("XDG_RUNTIME_DIR");
    if (addresses.session.empty() && runtime.starts_with('/')) {
        const GText socket(g_dbus_address_escape_value((runtime + "/bus").c_str()));
        addresses.session = std::string("unix:path=") + socket.get();
    }
    if (addresses.system.empty()) addresses.system = "unix:path=/var/run/dbus/system_bus_socket";
    return addresses;
}
