// SPDX-License-Identifier: MIT
#include <QApplication>

#include "app/program/Program.h"
#include "app/program/X11Backends.h"

int main(int argc, char* argv[]) {
    const auto backends = X11Backends::open();
    if (!backends) return reportFailure(backends.error());
    const QApplication application(argc, argv);
    const Program program(*backends.value());
    return QApplication::exec();
}
