// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <chrono>
#include <memory>
#include <utility>

class QProcess;
class Stage;
class StatusPanel;

/// What works in this session and what does not, in a window: found out by a process of its own, so that
/// nothing that does not answer holds up the program. The window is built when it is first shown and kept.
class StatusDesk {
  public:
    /// The stage outlives the desk.
    explicit StatusDesk(Stage& stage);
    ~StatusDesk();
    StatusDesk(const StatusDesk&) = delete;
    StatusDesk& operator=(const StatusDesk&) = delete;

    /// What is shown is found out anew each time.
    void show();

    /// What finds it out, and prints it as `keyrill --check` does: a program and its arguments. Until it is
    /// set nothing can be found out.
    void setCheck(QStringList check) { m_check = std::move(check); }
    /// What it may take; 30 s unless set.
    void setPatience(std::chrono::milliseconds patience) { m_patience = patience; }

    /// Null until first shown.
    StatusPanel* panel() const { return m_panel.get(); }

  private:
    void ask();
    void take();

    Stage& m_stage;
    QStringList m_check;
    std::chrono::milliseconds m_patience = std::chrono::seconds(30);
    std::unique_ptr<StatusPanel> m_panel;
    /// The one that is finding out, or null.
    std::unique_ptr<QProcess> m_process;
};
