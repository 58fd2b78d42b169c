// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QDir>
#include <QRegularExpression>
#include <QStyleFactory>
#include <QTimer>
#include <QTranslator>

#include "app/gallery/Camera.h"
#include "app/gallery/Palettes.h"
#include "app/gallery/Scenes.h"
#include "app/languages/Catalogues.h"
#include "app/program/Backends.h"
#include "app/program/StartUp.h"

// keyrill-gallery FOLDER [--dark] [--rtl] [--language=NAME|--catalogue=FILE]

namespace {

constexpr const char* usage =
    "usage: keyrill-gallery FOLDER [--dark] [--rtl] [--language=NAME|--catalogue=FILE]";

/// What stands behind the option and its sign; empty for none.
QString valueOf(const QStringList& arguments, const QString& option) {
    const QStringList found = arguments.filter(QRegularExpression(u'^' + option + u'='));
    return found.isEmpty() ? QString() : found.last().mid(option.size() + 1);
}

}  // namespace

int main(int argc, char* argv[]) {
    const auto session = enterSession();
    if (!session) return reportFailure(session.error());
    QApplication application(argc, argv);
    const auto backends = Backends::open(session.value());
    if (!backends) return reportFailure(backends.error());
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 2) qFatal("%s", usage);
    const Catalogues catalogues({valueOf(arguments, QStringLiteral("--language"))});
    QTranslator other;
    const QString catalogue = valueOf(arguments, QStringLiteral("--catalogue"));
    if (!catalogue.isEmpty() && !(other.load(catalogue) && QApplication::installTranslator(&other)))
        qFatal("cannot read %s", qPrintable(catalogue));
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
