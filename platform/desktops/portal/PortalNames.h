// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/// Where a desktop's portals are on the session bus, and who asks there.
namespace portalnames {

inline constexpr const char* service = "org.freedesktop.portal.Desktop";
inline constexpr const char* object = "/org/freedesktop/portal/desktop";
inline constexpr const char* session = "org.freedesktop.portal.Session";
inline constexpr const char* properties = "org.freedesktop.DBus.Properties";

/// KDE's part of them, which is there in its sessions alone.
inline constexpr const char* kde = "org.freedesktop.impl.portal.desktop.kde";

/// By which a program without a sandbox says who it is, before any other call; portals older than 1.19.3 have
/// no such face. The portal wants a desktop entry of that name.
inline constexpr const char* registry = "org.freedesktop.host.portal.Registry";
inline constexpr const char* program = "example.orlen.Keyrill";

/// Whether a portal for remote desktops may have keyboards, by what it says of AvailableDeviceTypes. One that
/// asked the desktop's part of it too early (xdg-desktop-portal asks once, as it starts) says 0 for good, and
/// lets keys be pressed all the same.
constexpr bool mayHaveKeyboards(std::uint32_t deviceTypes) {
    constexpr std::uint32_t keyboards = 1;
    return deviceTypes == 0 || (deviceTypes & keyboards) != 0;
}

}  // namespace portalnames
