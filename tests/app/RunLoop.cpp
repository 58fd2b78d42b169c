// SPDX-License-Identifier: MIT
#include "app/RunLoop.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>

int runLoopWith(const std::function<void()>& function) {
    QTimer deadline;
    deadline.setSingleShot(true);
    QObject::connect(&deadline, &QTimer::timeout, [] { QCoreApplication::exit(-1); });
    deadline.start(std::chrono::seconds(10));
    QTimer::singleShot(0, function);
    return QCoreApplication::exec();
}

bool comesTrue(const std::function<bool()>& isSo, std::chrono::milliseconds patience) {
    constexpr int longestWait = 10;
    const QDeadlineTimer deadline(patience);
    while (!isSo() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, longestWait);
    return isSo();
}
