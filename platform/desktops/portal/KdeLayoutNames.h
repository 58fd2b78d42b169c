// SPDX-License-Identifier: MIT
#pragma once

/// Where KDE tells its user's keyboard layouts on the session bus, and changes them.
namespace kdelayoutnames {

inline constexpr const char* service = "org.kde.keyboard";
inline constexpr const char* object = "/Layouts";
inline constexpr const char* face = "org.kde.KeyboardLayouts";

}  // namespace kdelayoutnames
