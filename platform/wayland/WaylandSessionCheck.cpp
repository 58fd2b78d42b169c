// SPDX-License-Identifier: MIT
#include "platform/wayland/WaylandSessionCheck.h"

#include <wlr-layer-shell-unstable-v1-client-protocol.h>

#include <cstdlib>

#include "platform/Sentence.h"
#include "platform/desktops/GnomeLayouts.h"
#include "platform/desktops/KWinScripts.h"
#include "platform/evdev/DirectOpener.h"
#include "platform/evdev/access/AccessOpener.h"
#include "platform/linux/BusAddresses.h"
#include "platform/none/NoCapabilities.h"
#include "platform/wayland/ClipboardDevice.h"
#include "platform/wayland/DesktopServices.h"
#include "platform/wayland/ToplevelList.h"
#include "platform/wayland/WaylandConnection.h"

namespace wayland {

namespace {

/// By which way a recording would see keys.
CapabilityState recordingState() {
    if (evdev::DirectOpener().mayOpen()) return {Extent::fully, Means::keyboardDevices, Lack::nothing};
    if (evdev::AccessOpener::isInstalled(busAddresses(environmentOfProcess()).system)) {
        return {Extent::fully, Means::accessService, Lack::nothing};
    }
    return {Extent::partly, Means::ownWindow, Lack::foreignKeys};
}

CapabilityState fullyIf(bool isThere, Means means, Lack lack) {
    return isThere ? CapabilityState{Extent::fully, means, Lack::nothing}
                   : CapabilityState{Extent::nothing, Means::none, lack};
}

CapabilityState overlayState(const WaylandConnection& connection, const DesktopServices& desktop) {
    if (connection.offers(zwlr_layer_shell_v1_interface)) return {Extent::fully, Means::layer, Lack::nothing};
    // GNOME has X11 windows that ask for no frame above all others, full-screen ones too.
    const char* const display = std::getenv("DISPLAY");
    if (desktop.isGnome() && display != nullptr && *display != '\0')
        return {Extent::fully, Means::xWindow, Lack::nothing};
    return {Extent::partly, Means::ordinaryWindow, Lack::layers};
}

CapabilityState hotKeysState(const DesktopServices& desktop) {
    if (desktop.isKde()) return {Extent::fully, Means::kdeShortcuts, Lack::nothing};
    if (desktop.hasShortcutsPortal()) return {Extent::fully, Means::shortcutsPortal, Lack::nothing};
    if (desktop.hasGnomeBindings()) return {Extent::fully, Means::gnomeBindings, Lack::nothing};
    return fullyIf(desktop.isSway(), Means::swayBindings, Lack::compositorKeys);
}

/// With a keyboard of its own a program types any character.
CapabilityState pressingState(const WaylandConnection& connection, const DesktopServices& desktop) {
    if (desktop.isKde() || desktop.pressesByPortal()) {
        return fullyIf(desktop.pressesByPortal(), Means::portal, Lack::portal);
    }
    return fullyIf(hasVirtualKeyboards(connection), Means::virtualKeyboard, Lack::virtualKeyboard);
}

CapabilityState textState(const CapabilityState& pressing, const DesktopServices& desktop) {
    if (pressing.means != Means::portal) return pressing;
    const bool canSwitch = desktop.layouts()->canSwitch();
    return {Extent::partly, Means::portal, canSwitch ? Lack::otherCharacters : Lack::otherLayouts};
}

CapabilityState windowsState(const WaylandConnection& connection, const DesktopServices& desktop) {
    if (desktop.isKde() && KWinScripts::isThere(*desktop.bus())) {
        return {Extent::fully, Means::kwinScripts, Lack::nothing};
    }
    return fullyIf(!desktop.isKde() && ToplevelList::isOffered(connection),
                   desktop.isSway() ? Means::swayTree : Means::toplevels, Lack::foreignWindows);
}

}  // namespace

SessionCapabilities WaylandSessionCheck::capabilities() const {
    const auto connection = WaylandConnection::open();
    if (!connection) return noCapabilities(Lack::display);
    const DesktopServices desktop(*connection.value());
    const bool hasClipboard = ClipboardDevice::isOffered(*connection.value());
    const CapabilityState pressing = pressingState(*connection.value(), desktop);
    return {.recording = recordingState(),
            .hotKeys = hotKeysState(desktop),
            .pressing = pressing,
            .text = textState(pressing, desktop),
            .clipboard = fullyIf(hasClipboard, Means::dataControl, Lack::dataControl),
            .overlay = overlayState(*connection.value(), desktop),
            .windows = windowsState(*connection.value(), desktop),
            .tray = {.lack = Lack::tray}};
}

SessionDetails WaylandSessionCheck::details() const {
    const char* const display = std::getenv("WAYLAND_DISPLAY");
    SessionDetails details{.display = display == nullptr ? "" : display};
    const auto connection = WaylandConnection::open();
    if (!connection) return details;
    const DesktopServices desktop(*connection.value());
    // Protocols and desktops have one name everywhere.
    details.parts = {{sentence("Session", "virtual keyboard"), hasVirtualKeyboards(*connection.value())},
                     {"data control", ClipboardDevice::isOffered(*connection.value())},
                     {"layer shell", connection.value()->offers(zwlr_layer_shell_v1_interface)}};
    if (desktop.isSway()) {
        details.parts.push_back({"sway", true});
        return details;
    }
    if (desktop.isKde()) details.parts.push_back({"KDE", true});
    if (desktop.isGnome())
        details.parts.push_back({sentence("Session", "GNOME's settings"), GnomeLayouts::areKnown()});
    if (!hasVirtualKeyboards(*connection.value())) {
        details.parts.push_back({sentence("Session", "portal for keys"), desktop.pressesByPortal()});
    }
    if (!desktop.isKde())
        details.parts.push_back({sentence("Session", "portal for hot keys"), desktop.hasShortcutsPortal()});
    return details;
}

}  // namespace wayland
