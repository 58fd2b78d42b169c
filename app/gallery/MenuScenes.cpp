// SPDX-License-Identifier: MIT
#include <QHBoxLayout>
#include <QLabel>

#include "app/gallery/Camera.h"
#include "app/gallery/Examples.h"
#include "app/gallery/Scenes.h"
#include "app/icons/StatusIcon.h"
#include "app/tray/MacroMenuItem.h"
#include "app/tray/MenuState.h"
#include "app/tray/StatusMenu.h"
#include "core/Macro.h"

namespace {

constexpr QPoint place{80, 80};

void takeMenu(Camera& camera, StatusMenu& menu, const MenuFacts& facts, const char* name) {
    menu.apply(menuState(facts));
    menu.popup(place);
    camera.takeShown({&menu}, QLatin1String(name));
    menu.hide();
}

void takeSubmenu(Camera& camera, StatusMenu& menu, QMenu& submenu, const char* name) {
    menu.popup(place);
    menu.setActiveAction(submenu.menuAction());
    Camera::settle();
    camera.takeShown({&menu, &submenu}, QLatin1String(name));
    menu.hide();
}

/// The icons as they are drawn where no theme has them, on light and on dark panels.
void takeIcons(Camera& camera) {
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    for (const QColor ground : {QColor(0xf0, 0xf0, 0xf0), QColor(0x20, 0x20, 0x20)}) {
        auto* row = new QWidget;
        QPalette palette(ground);
        palette.setColor(QPalette::Window, ground);
        row->setPalette(palette);
        row->setAutoFillBackground(true);
        auto* icons = new QHBoxLayout(row);
        for (const StatusImage image : {StatusImage::normal, StatusImage::busy}) {
            auto* label = new QLabel;
            label->setPixmap(statusIcon(image).pixmap(QSize(22, 22), label->devicePixelRatioF()));
            icons->addWidget(label);
        }
        layout->addWidget(row);
    }
    camera.take(window, QStringLiteral("status-icons"));
}

}  // namespace

void takeMenus(Camera& camera) {
    StatusMenu menu;
    takeMenu(camera, menu, {}, "menu-start");
    takeMenu(camera, menu, {.recording = true, .overlayShown = true}, "menu-recording");
    for (const char* keys : {"^a^c\t^v", "Dear Ann\n", "@d~notes\n"}) {
        menu.historyMenu->addAction(
            new MacroMenuItem(QString::fromStdString(recordedMacro(keys)->displayText()), menu.historyMenu));
    }
    takeMenu(camera, menu, {.hasStopped = true, .hasMacro = true, .hasHistory = true}, "menu");
    takeSubmenu(camera, menu, *menu.historyMenu, "menu-history");
    takeSubmenu(camera, menu, *menu.helpMenu, "menu-help");
    takeIcons(camera);
}
