// SPDX-License-Identifier: MIT
#include "app/check/CapabilityWords.h"

#include <QCoreApplication>

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(CapabilityWords)
};

LackWords missingExtension(const char* name, const char* loss) {
    return {Words::tr(loss).arg(QLatin1String(name)),
            Words::tr("Use a newer X server, or switch the extension on in its settings.")};
}

}  // namespace

QString meansWords(Means means) {
    switch (means) {
        case Means::none:
            return {};
        case Means::xInput:
            return Words::tr("by XInput");
        case Means::xGrab:
            return Words::tr("by key grabs");
        case Means::xTest:
            return Words::tr("by XTEST");
        case Means::xSelection:
            return Words::tr("the X server's");
        case Means::xWindow:
            return Words::tr("above all windows");
        case Means::windowManager:
            return Words::tr("by the window manager");
        case Means::dockingTray:
            return Words::tr("a tray that icons dock into");
        case Means::statusNotifier:
            return Words::tr("a tray that asks for icons over the session bus");
        case Means::virtualKeyboard:
            return Words::tr("by a virtual keyboard");
        case Means::swayBindings:
            return Words::tr("by bindings of sway's");
        case Means::kdeShortcuts:
            return Words::tr("by KDE's shortcuts");
        case Means::portal:
            return Words::tr("by the desktop's portal, once you allow it");
        case Means::shortcutsPortal:
            return Words::tr(
                "by the desktop's portal: you choose them when it asks, and later in its settings");
        case Means::gnomeBindings:
            return Words::tr(
                "by custom shortcuts in GNOME's settings while Keyrill runs, as you have agreed; the "
                "preferences take that back");
        case Means::swayTree:
            return Words::tr("by sway");
        case Means::kwinScripts:
            return Words::tr("by KWin");
        case Means::toplevels:
            return Words::tr("by the compositor");
        case Means::ownWindow:
            return Words::tr("what you type into a window of Keyrill's, \"Record Here\"");
        case Means::dataControl:
            return Words::tr("the compositor's");
        case Means::ordinaryWindow:
            return Words::tr("as an ordinary window");
        case Means::layer:
            return Words::tr("on a layer above all windows");
        case Means::keyboardDevices:
            return Words::tr("from the keyboards themselves, which every program of yours may read");
        case Means::accessService:
            return Words::tr(
                "by keyrill-access, which asks for your password and opens the keyboard while Keyrill "
                "records");
    }
    Q_UNREACHABLE();
}

// NOLINTNEXTLINE(readability-function-size): a table, of which the compiler sees that no row is missing
LackWords lackWords(Lack lack) {
    switch (lack) {
        case Lack::nothing:
            return {};
        case Lack::display:
            return {Words::tr("The display cannot be reached."),
                    Words::tr("Start Keyrill inside a desktop session.")};
        case Lack::xInput:
            return missingExtension(
                "XInput 2.2", QT_TRANSLATE_NOOP("CapabilityWords",
                                                "The X server lacks the extension %1, which shows keys."));
        case Lack::xkb:
            return missingExtension(
                "XKB", QT_TRANSLATE_NOOP("CapabilityWords",
                                         "The X server lacks the extension %1, which says what keys mean."));
        case Lack::xTest:
            return missingExtension(
                "XTEST", QT_TRANSLATE_NOOP("CapabilityWords",
                                           "The X server lacks the extension %1, which presses keys."));
        case Lack::record:
            return missingExtension(
                "RECORD", QT_TRANSLATE_NOOP(
                              "CapabilityWords",
                              "The X server lacks the extension %1: a key that is held is recorded once."));
        case Lack::guard:
            return {
                Words::tr(
                    "The program keyrill-guard, which releases keys after a crash, is not there; nothing is "
                    "played without it."),
                Words::tr("Install Keyrill again.")};
        case Lack::nativeWindows:
            return {Words::tr("Only with the windows of X11 programs: this is a Wayland session."),
                    Words::tr("Choose an X11 session when you log in.")};
        case Lack::tray:
            return {
                Words::tr("There is none; a small window with the menu stands in for the icon."),
                Words::tr("Add a tray to the desktop's panel. GNOME needs the extension \"AppIndicator and "
                          "KStatusNotifierItem Support\".")};
        case Lack::foreignKeys:
            return {
                Words::tr("A Wayland session shows no program what is typed in others, and the service that "
                          "would is "
                          "not installed."),
                Words::tr("Install the package keyrill-wayland-access or, from Keyrill's sources, "
                          "\"tools/access install\"; or record in an X11 session, macros play in both.")};
        case Lack::compositorKeys:
            return {
                Words::tr("This compositor gives no hot keys to programs."),
                Words::tr(
                    "Bind keys to commands such as \"keyrill --action=play\" in the compositor's settings.")};
        case Lack::virtualKeyboard:
            return {Words::tr("This compositor lets no program press keys."),
                    Words::tr("Use a compositor with virtual keyboards, such as sway, or an X11 session.")};
        case Lack::portal:
            return {Words::tr("This desktop lets no program press keys: its portal does not answer."),
                    Words::tr(
                        "Install xdg-desktop-portal and the part of it that belongs to the desktop, such as "
                        "xdg-desktop-portal-kde.")};
        case Lack::otherCharacters:
            return {Words::tr("Only characters that one of your keyboard layouts has."),
                    Words::tr("Add a layout that has them in the desktop's settings.")};
        case Lack::otherLayouts:
            return {Words::tr("Only characters that the keyboard layout in force has."),
                    Words::tr("Switch to a layout that has the others before you play.")};
        case Lack::dataControl:
            return {
                Words::tr("This compositor shows the clipboard to windows in front alone."),
                Words::tr("Scripts that use the clipboard need another compositor, such as sway, or an X11 "
                          "session.")};
        case Lack::foreignWindows:
            return {Words::tr("This compositor tells nothing of other programs' windows."),
                    Words::tr("Scripts that bring a window to the front need sway, KDE or an X11 session.")};
        case Lack::consent:
            return {
                Words::tr("This version of GNOME has hot keys for programs only as custom shortcuts in your "
                          "own settings, and you have not agreed that Keyrill writes them."),
                Words::tr("Tick the box in Keyrill's preferences, or bind keys to commands such as \"keyrill "
                          "--action=play\" in GNOME's settings yourself.")};
        case Lack::layers:
            return {
                Words::tr("Full-screen windows may cover it."),
                Words::tr("Use a compositor that has layers, such as sway's or KDE's, or an X11 session.")};
    }
    Q_UNREACHABLE();
}
