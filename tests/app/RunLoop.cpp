// SPDX-License-Identifier: MIT
#include "app/RunLoop.h"

#include <QCoreApplication>
#include <QTimer>
#include <chrono>

int runLoopWith(const std::function<void()>& function) {
    QTimer deadline;
    deadline.setSingleShot(true);
    QObject::connect(&deadline, &QTimer::timeout, [] { QCoreApplication::exit(-1); });
    deadline.start(std::chrono::seconds(10));
    QTimer::singleShot(0, function);
    return QCoreApplication::exec();
}
