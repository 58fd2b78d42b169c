// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <memory>

class SignalCatcher;

/// SIGTERM, SIGINT and SIGHUP as an event of the loop. At most one object at a time.
class TerminationSignals : public QObject {
    Q_OBJECT

  public:
    /// What is done at once, within the signal handler, with the context; async-signal-safe.
    using AtOnce = void (*)(void* context);

    TerminationSignals(AtOnce atOnce, void* context);
    ~TerminationSignals() override;

  signals:
    /// Once only: the program is about to end.
    void received();

  private:
    std::unique_ptr<SignalCatcher> m_catcher;
};
