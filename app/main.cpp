// SPDX-License-Identifier: MIT
#include <QApplication>
#include <cstdio>

#include "app/program/Program.h"
#include "app/program/X11Backends.h"

int main(int argc, char* argv[]) {
    const auto backends = X11Backends::open();
    if (!backends) {
        const Error& error = backends.error();
        std::fprintf(stderr, "keyrill: %s %s\n", error.message.c_str(), error.hint.c_str());
        return 1;
    }
    // The backends' session and the toolkit's must be the same, also where a Wayland display is offered too.
    qputenv("QT_QPA_PLATFORM", "xcb");
    QApplication application(argc, argv);
    const Program program(*backends.value());
    return QApplication::exec();
}
