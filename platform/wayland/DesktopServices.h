// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "platform/desktops/Layouts.h"
#include "platform/desktops/SessionBus.h"

namespace wayland {

class WaylandConnection;

/// Whether the compositor lets each program have a keyboard of its own.
bool hasVirtualKeyboards(const WaylandConnection& connection);

/// What the desktop around the compositor offers on the session bus, where the compositor itself offers too
/// little. Sway is asked by its own ways, and needs none of this.
class DesktopServices {
  public:
    /// Whether the portal gives hot keys is asked only with `asksForHotKeys`: one that is being started is
    /// waited for.
    explicit DesktopServices(const WaylandConnection& connection, bool asksForHotKeys = true);

    bool isSway() const { return m_isSway; }
    /// Whose shortcuts, layouts and portal serve.
    bool isKde() const { return m_isKde; }
    /// Whose layouts are asked for.
    bool isGnome() const { return m_isGnome; }
    /// Whether keys are pressed by the desktop's portal, or would be if it answered.
    bool pressesByPortal() const { return m_pressesByPortal; }
    /// Whether hot keys are the desktop's portal's.
    bool hasShortcutsPortal() const { return m_hasShortcutsPortal; }

    /// Whether hot keys are entries in the settings of GNOME's user.
    bool hasGnomeBindings() const { return m_hasGnomeBindings; }

    /// Where any of it is used, else null.
    SessionBus* bus() const { return m_bus.get(); }
    /// Where keys are pressed by the portal, else null.
    Layouts* layouts() const { return m_layouts.get(); }

  private:
    bool m_isSway;
    bool m_isKde = false;
    bool m_isGnome = false;
    bool m_pressesByPortal = false;
    bool m_hasShortcutsPortal = false;
    bool m_hasGnomeBindings = false;
    std::unique_ptr<SessionBus> m_bus;
    std::unique_ptr<Layouts> m_layouts;
};

}  // namespace wayland
