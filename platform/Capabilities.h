// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>
#include <vector>

/// How much of a capability works here.
enum class Extent {
    nothing,
    /// Not everywhere, or not all of it; what is lacking says why.
    partly,
    fully,
};

/// By which means a capability works. Words for it are the user interface's.
enum class Means {
    none,
    xInput,           ///< raw events of XInput
    xGrab,            ///< key grabs of the X server
    xTest,            ///< XTEST
    xSelection,       ///< the X server's clipboard
    xWindow,          ///< a window that no window manager manages
    windowManager,    ///< what window managers of X take as wishes
    dockingTray,      ///< a tray that small windows dock into
    statusNotifier,   ///< a tray that asks programs for their icons over the session bus
    virtualKeyboard,  ///< a virtual keyboard of a Wayland compositor's
    swayBindings,     ///< bindings of sway's, by its IPC
    kdeShortcuts,     ///< KDE's global shortcuts, over the session bus
    portal,           ///< the portal by which a desktop lets programs press keys
    shortcutsPortal,  ///< the portal by which a desktop gives programs hot keys
    gnomeBindings,    ///< entries in the settings of GNOME's user, once he agrees
    swayTree,         ///< sway's tree of windows, by its IPC
    kwinScripts,      ///< scripts that KWin runs, over the session bus
    toplevels,        ///< a Wayland compositor's list of windows, for task bars
    dataControl,      ///< the clipboard of a Wayland compositor, without a window
    ordinaryWindow,   ///< a window as all others
    layer,            ///< a layer above all windows
    keyboardDevices,  ///< the keyboards as the kernel shows them, which the user may read
    accessService,    ///< the same, opened by keyrill-access
    ownWindow,        ///< a window of the program's own, into which the user types
};

/// What is lacking, and would make a capability better if it were there. What can be done about it is the
/// user interface's to say.
enum class Lack {
    nothing,
    display,          ///< a server that can be reached
    xInput,           ///< the extension XInput 2.2
    xkb,              ///< the extension XKB
    xTest,            ///< the extension XTEST
    record,           ///< the extension RECORD: how often held keys repeat
    guard,            ///< the program that releases keys after a crash
    nativeWindows,    ///< windows that are none of X11's: those of a Wayland session
    tray,             ///< a tray
    foreignKeys,      ///< a way to see what is typed in other programs
    compositorKeys,   ///< a compositor that gives hot keys to programs
    virtualKeyboard,  ///< a compositor with virtual keyboards
    portal,           ///< the desktop's portal for pressing keys
    otherCharacters,  ///< characters that none of the user's layouts has
    otherLayouts,     ///< characters that the layout in force has not
    dataControl,      ///< a compositor that lets the clipboard be read without a window
    foreignWindows,   ///< a compositor that tells of the windows of others
    layers,           ///< windows that lie above all others
    consent,          ///< the user's consent to entries in GNOME's settings
};

inline constexpr std::array allMeans{
    Means::none,           Means::xInput,          Means::xGrab,         Means::xTest,
    Means::xSelection,     Means::xWindow,         Means::windowManager, Means::dockingTray,
    Means::statusNotifier, Means::virtualKeyboard, Means::swayBindings,  Means::swayTree,
    Means::kdeShortcuts,   Means::portal,          Means::dataControl,   Means::ordinaryWindow,
    Means::layer,          Means::keyboardDevices, Means::accessService, Means::shortcutsPortal,
    Means::kwinScripts,    Means::ownWindow,       Means::gnomeBindings, Means::toplevels};
inline constexpr std::array allLacks{
    Lack::nothing,        Lack::display,         Lack::xInput,        Lack::xkb,    Lack::xTest,
    Lack::record,         Lack::guard,           Lack::nativeWindows, Lack::tray,   Lack::foreignKeys,
    Lack::compositorKeys, Lack::virtualKeyboard, Lack::dataControl,   Lack::portal, Lack::otherCharacters,
    Lack::foreignWindows, Lack::layers,          Lack::otherLayouts,  Lack::consent};

struct CapabilityState {
    Extent extent = Extent::nothing;
    Means means = Means::none;
    /// `nothing` exactly if it works fully.
    Lack lack = Lack::nothing;

    friend bool operator==(const CapabilityState&, const CapabilityState&) = default;
};

/// What the session lets the program do.
struct SessionCapabilities {
    /// To see the keys that are pressed in all programs.
    CapabilityState recording;
    CapabilityState hotKeys;
    /// To press keys in other programs.
    CapabilityState pressing;
    /// To type characters there, also such as no key types.
    CapabilityState text;
    CapabilityState clipboard;
    /// To show what is recorded above other windows, without taking the focus.
    CapabilityState overlay;
    /// To know the windows of other programs and bring them to the front.
    CapabilityState windows;
    CapabilityState tray;

    friend bool operator==(const SessionCapabilities&, const SessionCapabilities&) = default;
};

/// What else can be told of the session.
struct SessionDetails {
    struct Part {
        std::string name;
        bool isThere = false;

        friend bool operator==(const Part&, const Part&) = default;
    };

    /// Where it is shown: ":0".
    std::string display = {};
    /// What the session has to have, in the order in which it is needed: "XInput 2.2".
    std::vector<Part> parts = {};
    /// As the keymap's author calls them, in the order of their groups: "us", "ru"; empty if unknown.
    std::vector<std::string> layouts = {};
    /// "Caps Lock", "Num Lock".
    std::vector<std::string> locksOn = {};
};
