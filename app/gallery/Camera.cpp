// SPDX-License-Identifier: MIT
#include "app/gallery/Camera.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <chrono>

namespace {

constexpr std::chrono::milliseconds moment{150};
constexpr std::chrono::seconds patience{10};
/// What is shown around a window.
constexpr int margin = 16;
constexpr QPoint place{80, 80};

void handleEventsFor(std::chrono::milliseconds time) {
    QEventLoop loop;
    QTimer::singleShot(time, &loop, &QEventLoop::quit);
    loop.exec();
}

QImage screenPicture(const QRect& area) {
    QScreen* screen = QGuiApplication::primaryScreen();
    const QRect visible = area.intersected(screen->geometry());
    return screen->grabWindow(0, visible.x(), visible.y(), visible.width(), visible.height()).toImage();
}

QImage stillPicture(const QRect& area) {
    const QDeadlineTimer deadline(patience);
    QImage last = screenPicture(area);
    while (!deadline.hasExpired()) {
        handleEventsFor(moment);
        QImage next = screenPicture(area);
        if (next == last) return next;
        last = next;
    }
    qFatal("the screen does not stand still");
}

}  // namespace

void Camera::take(QWidget& window, const QString& name) {
    window.move(place);
    window.show();
    window.raise();
    window.activateWindow();
    takeShown({&window}, name);
}

void Camera::takeShown(const QList<QWidget*>& windows, const QString& name) {
    settle();
    QRect area;
    for (const QWidget* window : windows) area |= window->frameGeometry();
    const QImage picture = stillPicture(area.adjusted(-margin, -margin, margin, margin));
    const QString file = m_folder + u'/' + name + QStringLiteral(".png");
    if (!picture.save(file)) qFatal("cannot write %s", qPrintable(file));
}

void Camera::settle() { stillPicture(QGuiApplication::primaryScreen()->geometry()); }
