// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QDir>
#include <QStyleFactory>
#include <QTimer>

#include "app/gallery/Camera.h"
#include "app/gallery/Palettes.h"
#include "app/gallery/Scenes.h"
#include "app/program/Backends.h"
#include "app/program/StartUp.h"

// keyrill-gallery FOLDER [--dark] [--rtl]

int main(int argc, char* argv[]) {
    const auto session = enterSession();
    if (!session) return reportFailure(session.error());
    QApplication application(argc, argv);
    const auto backends = Backends::open(session.value());
    if (!backends) return reportFailure(backends.error());
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 2) qFatal("usage: keyrill-gallery FOLDER [--dark] [--rtl]");
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    if (arguments.contains(QStringLiteral("--dark"))) QApplication::setPalette(darkPalette());
    if (arguments.contains(QStringLiteral("--rtl"))) QApplication::setLayoutDirection(Qt::RightToLeft);
    QApplication::setCursorFlashTime(0);
    QApplication::setQuitOnLastWindowClosed(false);

    const QString& folder = arguments.at(1);
    QDir().mkpath(folder);
    QTimer::singleShot(0, [&folder] {
        Camera camera(folder);
        takePanels(camera);
        takeMenus(camera);
        takeDialogs(camera);
        QCoreApplication::exit(0);
    });
    return QApplication::exec();
}
