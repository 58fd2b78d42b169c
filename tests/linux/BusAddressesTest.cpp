// SPDX-License-Identifier: MIT
#include "platform/linux/BusAddresses.h"

#include <gtest/gtest.h>

#include <map>

namespace {

BusAddresses addressesFor(const std::map<std::string, std::string>& variables) {
    return busAddresses([&](const std::string& name) {
        const auto variable = variables.find(name);
        return variable != variables.end() ? variable->second : std::string();
    });
}

const std::string systemBus = "unix:path=/var/run/dbus/system_bus_socket";

TEST(BusAddressesTest, followTheEnvironment) {
    EXPECT_EQ(addressesFor({{"DBUS_SESSION_BUS_ADDRESS", "unix:path=/s"},
                            {"DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/y"}}),
              (BusAddresses{"unix:path=/s", "unix:path=/y"}));
}

TEST(BusAddressesTest, elseNameTheSocketsOfTheStandard) {
    EXPECT_EQ(addressesFor({{"XDG_RUNTIME_DIR", "/run/user/1000"}}),
              (BusAddresses{"unix:path=/run/user/1000/bus", systemBus}));
    EXPECT_EQ(addressesFor({{"XDG_RUNTIME_DIR", "/a b"}}).session, "unix:path=/a%20b/bus");
}

TEST(BusAddressesTest, nameNoSessionBusWhereThereIsNone) {
    EXPECT_EQ(addressesFor({}), (BusAddresses{"", systemBus}));
    EXPECT_EQ(addressesFor({{"XDG_RUNTIME_DIR", "relative"}}).session, "");
}

}  // namespace
