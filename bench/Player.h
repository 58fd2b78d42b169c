// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "Seconds.h"
#include "platform/KeyInjector.h"
#include "platform/linux/SteadyClock.h"
#include "platform/x11/press/X11KeyInjector.h"
#include "platform/x11/watch/X11EventManager.h"
#include "support/Child.h"

/// The injector of the program on a display, watched by the event manager as it is there.
class Player {
  public:
    explicit Player(const std::string& display);

    /// A new run. What fails ends the program.
    std::unique_ptr<InjectionSession> run(const InjectionPlan& plan = {});

  private:
    TemporaryFolder m_folder;
    SteadyClock m_clock;
    std::unique_ptr<x11::X11EventManager> m_manager;
    std::unique_ptr<x11::X11KeyInjector> m_injector;
};

/// Ends the program with the error's message unless the step of a run was taken.
void expectGoing(const Step<>& step);
