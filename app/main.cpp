// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QDir>
#include <algorithm>
#include <cstdio>

#include "app/languages/Catalogues.h"
#include "app/program/ActionCall.h"
#include "app/program/Backends.h"
#include "app/program/Check.h"
#include "app/program/CommandLine.h"
#include "app/program/MacroCalls.h"
#include "app/program/Program.h"
#include "app/program/ProgramInstance.h"
#include "app/program/SessionBusCheck.h"
#include "app/program/StartUp.h"
#include "app/program/TerminalApplication.h"

namespace {

QStringList absolutePaths(const std::vector<std::string>& files) {
    QStringList paths;
    for (const std::string& file : files) {
        paths.append(QDir::current().absoluteFilePath(QFile::decodeName(file.c_str())));
    }
    return paths;
}

/// The arguments that the toolkit has left over.
std::vector<std::string> argumentsOfProgram() {
    std::vector<std::string> arguments;
    for (const QString& argument : QCoreApplication::arguments().mid(1)) {
        arguments.push_back(QFile::encodeName(argument).toStdString());
    }
    return arguments;
}

int print(const std::string& text) {
    return std::fputs(text.c_str(), stdout) >= 0 && std::fflush(stdout) == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

/// Ends a process that has asked and been answered, at once: the toolkit reads the message bus on a thread
/// that goes on while the process takes its types down, and complains of those that are gone.
[[noreturn]] void end(int status) {
    std::fflush(nullptr);
    std::_Exit(status);
}

[[noreturn]] void answerAtTerminal(const CommandLine& wishes) {
    const TerminalApplication terminal;
    if (wishes.wish == CommandLine::Wish::help) end(print(usage(sessionKinds())));
    if (wishes.wish == CommandLine::Wish::check) end(checkSession(wishes));
    if (wishes.wish == CommandLine::Wish::list) end(listMacros(wishes));
    if (wishes.wish == CommandLine::Wish::play) end(playMacro(wishes));
    if (wishes.wish == CommandLine::Wish::show) end(showMacros(wishes));
    end(askForAction(wishes));
}

}  // namespace

// Nothing is touched before it is certain that this is the only one.
int main(int argc, char* argv[]) {
    prepareProcess();
    const CommandLine wishes = readCommandLine({argv + std::min(argc, 1), argv + argc});
    if (wishes.wish == CommandLine::Wish::version) return print("keyrill " KEYRILL_VERSION "\n");
    if (wishes.wish != CommandLine::Wish::start || wishes.action) answerAtTerminal(wishes);
    const auto session = enterSession(wishes.session);
    if (!session) {
        const TerminalApplication terminal;
        const auto known = checkOwnOptions(wishes);
        return reportFailure(known ? session.error() : known.error());
    }
    avoidHangingSessionBus();
    const QApplication application(argc, argv);
    endInOrderWithServer();
    const Catalogues catalogues;
    const CommandLine line = readCommandLine(argumentsOfProgram());
    const auto known = checkOptions(line);
    if (!known) return reportFailure(known.error());
    ProgramInstance instance;
    while (!instance.claim()) {
        const auto status = instance.handOver(absolutePaths(line.files));
        if (status) end(*status);
    }
    const auto backends = Backends::open(session.value());
    if (!backends) return reportFailure(backends.error());
    Program program(*backends.value());
    program.controller().helpDesk().setLanguage(catalogues.language().toStdString());
    program.follow(instance);
    program.openFiles(absolutePaths(line.files));
    return QApplication::exec();
}
