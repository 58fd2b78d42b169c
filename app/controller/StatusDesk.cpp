// SPDX-License-Identifier: MIT
#include "app/controller/StatusDesk.h"

#include <QCoreApplication>
#include <QProcess>
#include <utility>

#include "app/check/SessionReport.h"
#include "app/controller/Stage.h"
#include "app/panels/StatusPanel.h"

StatusDesk::StatusDesk(Stage& stage, QStringList check) : m_stage(stage), m_check(std::move(check)) {}

StatusDesk::~StatusDesk() = default;

/// With the session that the user has asked for.
QStringList StatusDesk::checkOfThisProgram() {
    QStringList check = {QCoreApplication::applicationFilePath()};
    check += QCoreApplication::arguments().filter(QStringLiteral("--session="));
    check += QStringLiteral("--check");
    return check;
}

void StatusDesk::show() {
    if (!m_panel) {
        m_panel = std::make_unique<StatusPanel>();
        QObject::connect(m_panel.get(), &StatusPanel::checkWanted, m_panel.get(), [this] { ask(); });
    }
    ask();
    constexpr double opaque = 1;
    m_stage.present(*m_panel, opaque);
}

void StatusDesk::ask() {
    if (m_process) return;
    m_panel->setChecking();
    m_process = std::make_unique<QProcess>();
    QObject::connect(m_process.get(), &QProcess::finished, m_panel.get(), [this] { take(); });
    QObject::connect(m_process.get(), &QProcess::errorOccurred, m_panel.get(),
                     [this](QProcess::ProcessError error) {
                         if (error == QProcess::FailedToStart) take();
                     });
    m_process->start(m_check.first(), m_check.mid(1), QIODevice::ReadOnly);
}

void StatusDesk::take() {
    const std::vector<ReportLine> report = reportOf(m_process->readAllStandardOutput().toStdString());
    // It is the one that calls.
    m_process.release()->deleteLater();
    if (report.empty()) {
        m_panel->setFault();
    } else {
        m_panel->setReport(report);
    }
}
