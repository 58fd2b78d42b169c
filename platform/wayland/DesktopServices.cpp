// SPDX-License-Identifier: MIT
#include "platform/wayland/DesktopServices.h"

#include <virtual-keyboard-unstable-v1-client-protocol.h>

#include "platform/desktops/GnomeLayouts.h"
#include "platform/desktops/GnomeShortcuts.h"
#include "platform/desktops/KdeLayouts.h"
#include "platform/desktops/KdeShortcuts.h"
#include "platform/desktops/PortalLink.h"
#include "platform/desktops/PortalShortcuts.h"
#include "platform/desktops/SwayConnection.h"
#include "platform/wayland/WaylandConnection.h"

namespace wayland {

bool hasVirtualKeyboards(const WaylandConnection& connection) {
    return connection.offers(zwp_virtual_keyboard_manager_v1_interface);
}

DesktopServices::DesktopServices(const WaylandConnection& connection, bool asksForHotKeys)
    : m_isSway(static_cast<bool>(SwayConnection::open())) {
    if (m_isSway) return;
    auto bus = std::make_unique<SessionBus>();
    if (!bus->isOpen()) return;
    const bool hasKeyboards = hasVirtualKeyboards(connection);
    m_isKde = !hasKeyboards && KdeShortcuts::isThere(*bus);
    m_pressesByPortal = !hasKeyboards && PortalLink::isThere(*bus);
    m_hasShortcutsPortal = asksForHotKeys && !m_isKde && PortalShortcuts::isThere(*bus);
    if (!m_isKde && !m_pressesByPortal && !m_hasShortcutsPortal) return;
    m_bus = std::move(bus);
    if (m_isKde) m_layouts = std::make_unique<KdeLayouts>(*m_bus);
    if (m_isKde || !m_pressesByPortal) return;
    m_isGnome = GnomeLayouts::isThere(*m_bus);
    if (m_isGnome) m_layouts = std::make_unique<GnomeLayouts>(*m_bus);
    m_hasGnomeBindings = m_isGnome && !m_hasShortcutsPortal && GnomeShortcuts::isThere(*m_bus);
    if (!m_isGnome) m_layouts = std::make_unique<UnknownLayouts>();
}

}  // namespace wayland
