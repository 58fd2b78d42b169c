// SPDX-License-Identifier: MIT
#include "app/AppTest.h"

#include <QApplication>

#include "engine/KeyRecorder.h"

namespace {

/// Widgets need one before them; it lasts until the process ends.
void makeApplication() {
    static int argc = 1;
    static char name[] = "app_test";
    static char* argv[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QApplication application(argc, argv);
}

FakePlatform& afterApplication(FakePlatform& platform) {
    makeApplication();
    return platform;
}

}  // namespace

AppTest::AppTest() : controller(afterApplication(platform()).services, windows, statusItem) {}

std::string AppTest::menu() const {
    QStringList titles;
    for (const QAction* item : controller.statusMenu.actions()) {
        if (!item->isVisible()) continue;
        const QString title = item->isSeparator() ? QStringLiteral("-") : item->text();
        titles.append(item->isEnabled() ? title : QLatin1Char('[') + title + QLatin1Char(']'));
    }
    return titles.join(QStringLiteral(", ")).toStdString();
}

void AppTest::type(std::uint32_t keyCode) { handleKeyEvent({KeyEventKind::keyDown, keyCode, 0, 0}); }
