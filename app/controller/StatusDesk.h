// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <memory>

class QProcess;
class Stage;
class StatusPanel;

/// What works in this session and what does not, in a window: found out by a process of its own, so that
/// nothing that does not answer holds up the program. The window is built when it is first shown and kept.
class StatusDesk {
  public:
    /// The stage outlives the desk. `check` is what `keyrill --check` is here: the program and its arguments.
    explicit StatusDesk(Stage& stage, QStringList check = checkOfThisProgram());
    ~StatusDesk();
    StatusDesk(const StatusDesk&) = delete;
    StatusDesk& operator=(const StatusDesk&) = delete;

    /// What is shown is found out anew each time.
    void show();

    /// Null until first shown.
    StatusPanel* panel() const { return m_panel.get(); }

    static QStringList checkOfThisProgram();

  private:
    void ask();
    void take();

    Stage& m_stage;
    QStringList m_check;
    std::unique_ptr<StatusPanel> m_panel;
    /// The one that is finding out, or null.
    std::unique_ptr<QProcess> m_process;
};
