// SPDX-License-Identifier: MIT
#pragma once

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

}  // namespace portalnames
