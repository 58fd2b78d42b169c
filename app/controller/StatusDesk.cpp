// SPDX-License-Identifier: MIT
#include "app/controller/StatusDesk.h"

#include <QProcess>
#include <QTimer>

#include "app/check/SessionReport.h"
#include "app/controller/Stage.h"
#include "app/panels/StatusPanel.h"

StatusDesk::StatusDesk(Stage& stage) : m_stage(stage) {}

StatusDesk::~StatusDesk() {
    // It ends with its object, and has nobody to tell any more.
    if (m_process) m_process->disconnect();
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
    if (m_check.isEmpty()) return m_panel->setFault();
    m_panel->setChecking();
    m_process = std::make_unique<QProcess>();
    QProcess* const process = m_process.get();
    QObject::connect(process, &QProcess::finished, m_panel.get(), [this] { take(); });
    QObject::connect(process, &QProcess::errorOccurred, m_panel.get(), [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) take();
    });
    QTimer::singleShot(m_patience, process, &QProcess::kill);
    process->start(m_check.first(), m_check.mid(1), QIODevice::ReadOnly);
}

void StatusDesk::take() {
    const bool isWhole = m_process->exitStatus() == QProcess::NormalExit;
    const std::vector<ReportLine> report = reportOf(m_process->readAllStandardOutput().toStdString());
    // It is the one that calls.
    m_process.release()->deleteLater();
    if (isWhole && !report.empty()) {
        m_panel->setReport(report);
    } else {
        m_panel->setFault();
    }
}
