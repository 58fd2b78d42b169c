// SPDX-License-Identifier: MIT
#pragma once

#include <csignal>

/// What is started meanwhile takes no signals: they are there to end a wait of the main thread.
class SignalsElsewhere {
  public:
    SignalsElsewhere() {
        sigset_t all;
        sigfillset(&all);
        pthread_sigmask(SIG_SETMASK, &all, &m_before);
    }
    ~SignalsElsewhere() { pthread_sigmask(SIG_SETMASK, &m_before, nullptr); }
    SignalsElsewhere(const SignalsElsewhere&) = delete;
    SignalsElsewhere& operator=(const SignalsElsewhere&) = delete;

  private:
    sigset_t m_before{};
};
