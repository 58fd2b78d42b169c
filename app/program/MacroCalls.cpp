// SPDX-License-Identifier: MIT
#include "app/program/MacroCalls.h"

#include <QCoreApplication>
#include <QDBusError>
#include <QDir>
#include <QFileInfo>
#include <QUrl>
#include <QVariantMap>
#include <cstdio>
#include <cstdlib>

#include "app/library/MacroTitles.h"
#include "app/program/BusNames.h"
#include "app/program/CommandLine.h"
#include "app/program/MacroList.h"
#include "app/program/PlayWords.h"
#include "app/program/RunningProgram.h"
#include "app/program/StartUp.h"

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(MacroCalls)
};

constexpr int usageStatus = 2;

int reportUsage(const Error& error) {
    reportFailure(error);
    return usageStatus;
}

int reportAnswer(const QDBusMessage& answer) {
    if (answer.type() != QDBusMessage::ErrorMessage) return EXIT_SUCCESS;
    if (QDBusError(answer).type() == QDBusError::NoReply) {
        return reportFailure({Words::tr("Keyrill does not answer.").toStdString(),
                              Words::tr("Perhaps its macro folder cannot be reached.").toStdString()});
    }
    return reportFailure({answer.errorMessage().toStdString(), ""});
}

QDBusMessage callOf(const char* method) {
    return RunningProgram::callOf(bus::macros, QString::fromLatin1(method));
}

QVariantMap optionsOf(const PlayWish& wish) {
    QVariantMap options;
    if (wish.times && wish.times->count) options.insert(QStringLiteral("times"), *wish.times->count);
    if (wish.times && !wish.times->count) {
        options.insert(QStringLiteral("times"), QString::fromStdString(textOf(*wish.times)));
    }
    if (wish.speed) options.insert(QStringLiteral("speed"), *wish.speed);
    return options;
}

bool isPath(const std::string& name) {
    return name.starts_with('/') || name.starts_with("./") || name.starts_with("../");
}

QDBusMessage playOfFile(const QFileInfo& file, const QVariantMap& options) {
    QDBusMessage call = callOf("PlayFile");
    call << QUrl::fromLocalFile(QDir::cleanPath(file.absoluteFilePath())).toString(QUrl::FullyEncoded)
         << options;
    return call;
}

/// What is there to ask, of the program that runs by then.
Result<> prepare(const RunningProgram& program, const std::string& session) {
    auto reached = program.reach();
    if (!reached || program.isRunning()) return reached;
    return program.start(session);
}

QDBusMessage answerToPlay(const RunningProgram& program, const CommandLine& line, const PlayWish& wish) {
    const QVariantMap options = optionsOf(wish);
    if (line.files.empty()) return program.answerTo(callOf("Play") << options);
    const std::string& name = line.files.front();
    const QFileInfo file(QFile::decodeName(name.c_str()));
    if (isPath(name)) return program.answerTo(playOfFile(file, options));
    const QDBusMessage answer = program.answerTo(callOf("PlayMacro") << shownText(name) << options);
    const bool isNone = answer.errorName() == bus::noSuchMacro;
    return isNone && file.isFile() ? program.answerTo(playOfFile(file, options)) : answer;
}

}  // namespace

int playMacro(const CommandLine& line) {
    const auto wellFormed = checkMacroCall(line);
    if (!wellFormed) return reportUsage(wellFormed.error());
    const auto wish = playWish(line.times, line.speed);
    if (!wish) return reportUsage(wish.error());
    const RunningProgram program;
    if (line.hotKey && program.pressHotKey(*line.hotKey)) return EXIT_SUCCESS;
    const auto prepared = prepare(program, line.session);
    if (!prepared) return reportFailure(prepared.error());
    return reportAnswer(answerToPlay(program, line, wish.value()));
}

int showMacros(const CommandLine& line) {
    const auto wellFormed = checkMacroCall(line);
    if (!wellFormed) return reportUsage(wellFormed.error());
    const RunningProgram program;
    const auto prepared = prepare(program, line.session);
    if (!prepared) return reportFailure(prepared.error());
    QDBusMessage call = callOf("Show");
    call << (line.files.empty() ? QString() : shownText(line.files.front()));
    return reportAnswer(program.answerTo(call));
}

int listMacros(const CommandLine& line) {
    const auto wellFormed = checkMacroCall(line);
    if (!wellFormed) return reportUsage(wellFormed.error());
    const auto list = readMacroList();
    if (!list) return reportFailure(list.error());
    int status = EXIT_SUCCESS;
    for (const Error& fault : list.value().faults) status = reportFailure(fault);
    const std::string lines = linesOf(list.value().entries);
    const bool isPrinted = std::fputs(lines.c_str(), stdout) >= 0 && std::fflush(stdout) == 0;
    return isPrinted ? status : EXIT_FAILURE;
}
