// SPDX-License-Identifier: MIT
#include "app/tray/TrayGate.h"

#include <chrono>

#include "platform/DockingTray.h"

namespace {
/// A panel that has both kinds of tray does not open them at the same moment. Not so long that the start-up
/// is over, and with it the busy image, before a docked icon is to be seen.
constexpr std::chrono::milliseconds waitForHosts{200};
}  // namespace

TrayGate::TrayGate(DockingTray& dockingTray) : m_dockingTray(dockingTray) {
    m_dockingTray.observe([this] { followTrays(); });
    connect(&m_hosts, &StatusNotifierHosts::changed, this, &TrayGate::followTrays);
    connect(&m_preferHosts, &QTimer::timeout, this, &TrayGate::followTrays);
    m_preferHosts.setSingleShot(true);
    m_preferHosts.start(m_hosts.hasBus() ? waitForHosts : std::chrono::milliseconds(0));
}

void TrayGate::followTrays() {
    if (m_kind == TrayKind::none) settleKind();
    const bool present = m_kind == TrayKind::statusNotifier
                             ? m_hosts.isPresent()
                             : m_kind == TrayKind::docking && m_dockingTray.isPresent();
    if (present == m_present) return;
    m_present = present;
    emit changed();
}

void TrayGate::settleKind() {
    if (m_hosts.isPresent()) {
        m_kind = TrayKind::statusNotifier;
    } else if (m_dockingTray.isPresent() && !m_preferHosts.isActive()) {
        m_kind = TrayKind::docking;
    }
}
