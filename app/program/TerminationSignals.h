// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <array>

/// SIGTERM, SIGINT and SIGHUP as an event of the loop. At most one object at a time.
class TerminationSignals : public QObject {
    Q_OBJECT

  public:
    /// What is done at once, within the signal handler, with the context; async-signal-safe.
    using AtOnce = void (*)(void* context);

    TerminationSignals(AtOnce atOnce, void* context);
    ~TerminationSignals() override;

  signals:
    void received();

  private:
    std::array<int, 2> m_pipe{-1, -1};
};
