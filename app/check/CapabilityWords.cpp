// SPDX-License-Identifier: MIT
#include "app/check/CapabilityWords.h"

#include <QCoreApplication>

namespace {

QString tr(const char* text) { return QCoreApplication::translate("CapabilityWords", text); }

LackWords missingExtension(const char* name, const char* loss) {
    return {tr(loss).arg(QLatin1String(name)),
            tr("Use a newer X server, or switch the extension on in its settings.")};
}

}  // namespace

QString meansWords(Means means) {
    switch (means) {
        case Means::none:
            return {};
        case Means::xInput:
            return tr("by XInput");
        case Means::xGrab:
            return tr("by key grabs");
        case Means::xTest:
            return tr("by XTEST");
        case Means::xSelection:
            return tr("the X server's");
        case Means::xWindow:
            return tr("above all windows");
        case Means::windowManager:
            return tr("by the window manager");
        case Means::dockingTray:
            return tr("a tray that icons dock into");
        case Means::statusNotifier:
            return tr("a tray that asks for icons over the session bus");
        case Means::virtualKeyboard:
            return tr("by a virtual keyboard");
        case Means::swayBindings:
            return tr("by bindings of sway's");
        case Means::kdeShortcuts:
            return tr("by KDE's shortcuts");
        case Means::portal:
            return tr("by the desktop's portal, once you allow it");
        case Means::shortcutsPortal:
            return tr("by the desktop's portal: you choose them when it asks, and later in its settings");
        case Means::swayTree:
            return tr("by sway");
        case Means::kwinScripts:
            return tr("by KWin");
        case Means::ownWindow:
            return tr("what you type into a window of Keyrill's, \"Record Here\"");
        case Means::dataControl:
            return tr("the compositor's");
        case Means::ordinaryWindow:
            return tr("as an ordinary window");
        case Means::layer:
            return tr("on a layer above all windows");
        case Means::keyboardDevices:
            return tr("from the keyboards themselves, which every program of yours may read");
        case Means::accessService:
            return tr(
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
            return {tr("The display cannot be reached."), tr("Start Keyrill inside a desktop session.")};
        case Lack::xInput:
            return missingExtension("XInput 2.2", "The X server lacks the extension %1, which shows keys.");
        case Lack::xkb:
            return missingExtension("XKB", "The X server lacks the extension %1, which says what keys mean.");
        case Lack::xTest:
            return missingExtension("XTEST", "The X server lacks the extension %1, which presses keys.");
        case Lack::record:
            return missingExtension(
                "RECORD", "The X server lacks the extension %1: a key that is held is recorded once.");
        case Lack::guard:
            return {
                tr("The program keyrill-guard, which releases keys after a crash, is not there; nothing is "
                   "played without it."),
                tr("Install Keyrill again.")};
        case Lack::nativeWindows:
            return {tr("Only with the windows of X11 programs: this is a Wayland session."),
                    tr("Choose an X11 session when you log in.")};
        case Lack::tray:
            return {tr("There is none; a small window with the menu stands in for the icon."),
                    tr("Add a tray to the desktop's panel. GNOME needs the extension \"AppIndicator and "
                       "KStatusNotifierItem Support\".")};
        case Lack::foreignKeys:
            return {tr("A Wayland session shows no program what is typed in others, and the service that "
                       "would is "
                       "not installed."),
                    tr("Install the package keyrill-wayland-access or, from Keyrill's sources, "
                       "\"tools/access install\"; or record in an X11 session, macros play in both.")};
        case Lack::compositorKeys:
            return {
                tr("This compositor gives no hot keys to programs."),
                tr("Bind keys to commands such as \"keyrill --action=play\" in the compositor's settings.")};
        case Lack::virtualKeyboard:
            return {tr("This compositor lets no program press keys."),
                    tr("Use a compositor with virtual keyboards, such as sway, or an X11 session.")};
        case Lack::portal:
            return {tr("This desktop lets no program press keys: its portal does not answer."),
                    tr("Install xdg-desktop-portal and the part of it that belongs to the desktop, such as "
                       "xdg-desktop-portal-kde.")};
        case Lack::otherCharacters:
            return {tr("Only characters that one of your keyboard layouts has."),
                    tr("Add a layout that has them in the desktop's settings.")};
        case Lack::otherLayouts:
            return {tr("Only characters that the keyboard layout in force has."),
                    tr("Switch to a layout that has the others before you play.")};
        case Lack::dataControl:
            return {tr("This compositor shows the clipboard to windows in front alone."),
                    tr("Scripts that use the clipboard need another compositor, such as sway, or an X11 "
                       "session.")};
        case Lack::foreignWindows:
            return {tr("This compositor tells nothing of other programs' windows."),
                    tr("Scripts that bring a window to the front need sway, KDE or an X11 session.")};
        case Lack::layers:
            return {tr("Full-screen windows may cover it."),
                    tr("Use a compositor that has layers, such as sway's or KDE's, or an X11 session.")};
    }
    Q_UNREACHABLE();
}
