// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QDir>

#include "app/program/Program.h"
#include "app/program/ProgramInstance.h"
#include "app/program/SessionBusCheck.h"
#include "app/program/X11Backends.h"

namespace {

/// The files on the command line, which is all that it can hold.
QStringList filesToOpen() {
    QStringList files = QCoreApplication::arguments().mid(1);
    for (QString& file : files) file = QDir::current().absoluteFilePath(file);
    return files;
}

}  // namespace

// Nothing is touched before it is certain that this is the only one.
int main(int argc, char* argv[]) {
    const auto display = chooseX11Display();
    if (!display) return reportFailure(display.error());
    avoidHangingSessionBus();
    const QApplication application(argc, argv);
    ProgramInstance instance;
    if (!instance.claim()) return instance.handOver(filesToOpen());
    const auto backends = X11Backends::open();
    if (!backends) return reportFailure(backends.error());
    Program program(*backends.value());
    program.follow(instance);
    program.openFiles(filesToOpen());
    return QApplication::exec();
}
