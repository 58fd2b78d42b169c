// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "app/check/SessionReport.h"
#include "app/widgets/Panel.h"

class QPushButton;
class QScrollArea;

/// What works in this session and what does not, line by line, with what can be done; it can be copied.
class StatusPanel : public Panel {
    Q_OBJECT

  public:
    StatusPanel();

    /// It is being found out.
    void setChecking();
    void setReport(const std::vector<ReportLine>& report);
    /// It cannot be found out.
    void setFault();

  signals:
    /// It is to be found out anew.
    void checkWanted();

  private:
    QLayout* makeButtons();
    void setLines(const std::vector<ReportLine>& report);
    void fit();

    QScrollArea* m_area = nullptr;
    QPushButton* m_copy = nullptr;
    std::vector<ReportLine> m_report;
};
