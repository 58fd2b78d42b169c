// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>

#include "platform/keymap/ModifierMasks.h"
#include "platform/wayland/WaylandConnection.h"

struct org_kde_kwin_keystate;

namespace wayland {

/// Which locks are on at KWin's seat. It tells programs whose desktop entry asks for that
/// (X-KDE-Wayland-Interfaces); to others none is on.
class KdeLocks {
  public:
    /// `connection` outlives this.
    explicit KdeLocks(WaylandConnection& connection) : m_connection(connection) {}
    ~KdeLocks();
    KdeLocks(const KdeLocks&) = delete;
    KdeLocks& operator=(const KdeLocks&) = delete;

    /// The real modifiers that are locked now.
    xkb_mod_mask_t locked(const ModifierMasks& masks);

  private:
    static void told(void* self, org_kde_kwin_keystate* keystate, std::uint32_t key, std::uint32_t state);

    WaylandConnection& m_connection;
    org_kde_kwin_keystate* m_keystate = nullptr;
    /// Of Caps Lock, Num Lock and Scroll Lock.
    std::array<bool, 3> m_isOn{};
};

}  // namespace wayland
