// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QTimer>
#include <cstdio>
#include <fstream>
#include <sstream>

#include "app/program/Backends.h"
#include "app/program/Program.h"
#include "app/program/StartUp.h"
#include "core/MacroManager.h"
#include "engine/EngineState.h"
#include "engine/SharedController.h"

// The program as it is, which in addition prints when it is ready and the script of each recording, for
// tools/demonstrate and the desktop tests.
//
// keyrill-demonstration [--updates URL AUTHORITIES] [SCRIPT]: starts with the script in that file to play;
// asks that URL for the newest version and believes those authorities.

namespace {

/// Passes everything on to the real controller.
class PrintingController : public SharedController {
  public:
    explicit PrintingController(SharedController& controller) : m_controller(controller) {}

    void setMacroString(const std::string& text) override { m_controller.setMacroString(text); }
    void showRecordingGui() override { m_controller.showRecordingGui(); }
    void cannotRecord(const Error& why) override { m_controller.cannotRecord(why); }
    void hideRecordingGui() override { m_controller.hideRecordingGui(); }
    void showMultiplePlayGui() override { m_controller.showMultiplePlayGui(); }
    void currentMacroChanged() override { m_controller.currentMacroChanged(); }
    void playbackEnded() override { m_controller.playbackEnded(); }

    void addMacro(const boost::shared_ptr<Macro>& macro) override {
        m_controller.addMacro(macro);
        std::printf("-- recorded\n%s-- end\n", macro->script().c_str());
        std::fflush(stdout);
    }

  private:
    SharedController& m_controller;
};

/// Takes what it needs from the arguments.
Result<std::unique_ptr<Backends>> openBackends(const SessionKind& kind, QStringList& arguments) {
    if (arguments.value(0) != QStringLiteral("--updates")) return Backends::open(kind);
    const std::string url = arguments.value(1).toStdString();
    const std::string authorities = arguments.value(2).toStdString();
    arguments = arguments.mid(3);
    return Backends::open(kind, url, authorities);
}

void loadScript(const std::string& file) {
    std::ifstream stream(file, std::ios::binary);
    std::ostringstream content;
    content << stream.rdbuf();
    engineState().currentMacro = MacroManager::createMacro();
    engineState().currentMacro->setScript(content.str());
}

}  // namespace

int main(int argc, char* argv[]) {
    const auto session = enterSession();
    if (!session) return reportFailure(session.error());
    const QApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments().mid(1);
    const auto backends = openBackends(session.value(), arguments);
    if (!backends) return reportFailure(backends.error());
    Program program(*backends.value());
    PrintingController printing(program.controller());
    const SharedControllerScope scope(printing);
    if (!arguments.isEmpty()) loadScript(arguments.first().toStdString());
    // Queued behind the start-up.
    QTimer::singleShot(0, [] {
        std::puts("-- ready");
        std::fflush(stdout);
    });
    return QApplication::exec();
}
