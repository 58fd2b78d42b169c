// SPDX-License-Identifier: MIT
#include "app/program/ActionCall.h"

#include <QCoreApplication>
#include <QDBusError>
#include <QVariantMap>
#include <cstdlib>
#include <string>

#include "app/program/BusNames.h"
#include "app/program/CommandLine.h"
#include "app/program/RunningProgram.h"
#include "app/program/StartUp.h"
#include "app/tray/Actions.h"

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(ActionCall)
};

constexpr int notNowStatus = 2;

QDBusMessage request(const std::string& action) {
    QDBusMessage message = RunningProgram::callOf(bus::interface, QStringLiteral("ActivateAction"));
    message << QString::fromStdString(action) << QVariantList() << QVariantMap();
    return message;
}

int reportAnswer(const QDBusMessage& answer, const RunningProgram& program) {
    if (answer.type() != QDBusMessage::ErrorMessage) return EXIT_SUCCESS;
    if (QDBusError(answer).type() == QDBusError::NoReply) return reportFailure(program.silence());
    const int status = reportFailure(Error{answer.errorMessage().toStdString(), ""});
    return answer.errorName() == bus::notNow ? notNowStatus : status;
}

}  // namespace

int askForAction(const CommandLine& line) {
    const auto known = checkOwnOptions(line);
    if (!known) return reportFailure(known.error());
    const auto wellFormed = checkAction(line);
    if (!wellFormed) return reportFailure(wellFormed.error());
    const RunningProgram program;
    const auto reached = program.reach();
    if (!reached) return reportFailure(reached.error());
    if (line.hotKey && program.pressHotKey(*line.hotKey)) return EXIT_SUCCESS;
    if (!program.isRunning()) {
        if (!actionNamed(*line.action)->startsProgram) {
            reportFailure({Words::tr("Keyrill is not running.").toStdString(), ""});
            return notNowStatus;
        }
        const auto started = program.start(line.session);
        if (!started) return reportFailure(started.error());
    }
    return reportAnswer(program.answerTo(request(*line.action)), program);
}
