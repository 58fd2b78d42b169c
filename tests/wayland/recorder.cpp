// SPDX-License-Identifier: MIT
//
// recorder TEXT: shows the recorder overlay with that text, as the program does, until it is ended.
#include <QApplication>
#include <QSocketNotifier>
#include <QTimer>

#include "app/controller/OverlayDesk.h"
#include "app/controller/Stage.h"
#include "app/program/Backends.h"
#include "app/program/StartUp.h"
#include "platform/EventSource.h"
#include "platform/Services.h"
#include "platform/Session.h"

int main(int argc, char* argv[]) {
    const auto kind = enterSession("wayland");
    if (!kind) return reportFailure(kind.error());
    const QApplication application(argc, argv);
    const auto backends = Backends::open(kind.value());
    if (!backends) return reportFailure(backends.error());
    const Services& services = backends.value()->services();
    Stage stage(backends.value()->session().sessionServices().windows,
                [] { return std::vector<QWidget*>(); });
    OverlayDesk desk(stage, services.clock, services.hotKeys, services.layers);
    std::vector<std::unique_ptr<QSocketNotifier>> notifiers;
    for (EventSource* source : backends.value()->eventSources()) {
        notifiers.push_back(
            std::make_unique<QSocketNotifier>(source->fileDescriptor(), QSocketNotifier::Read));
        QObject::connect(notifiers.back().get(), &QSocketNotifier::activated,
                         [source] { source->dispatch(); });
    }
    const std::string text = QCoreApplication::arguments().value(1).toStdString();
    QTimer::singleShot(0, [&desk, &text] {
        desk.showRecorder();
        desk.setMacroString(text);
    });
    return QApplication::exec();
}
