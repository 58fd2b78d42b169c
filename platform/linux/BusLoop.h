// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "platform/EventSource.h"

/// What the program hears on message buses, as a part of any event loop.
///
/// Why: the toolkit's own loop need not be GLib's.
class BusLoop final : public EventSource {
  public:
    BusLoop();
    ~BusLoop() override;
    BusLoop(const BusLoop&) = delete;
    BusLoop& operator=(const BusLoop&) = delete;

    int fileDescriptor() const override;

    /// Takes in what has come, then lets the observers tell of it. Never waits.
    void dispatch() override;

    /// Takes in what has come and no more; for a state that is asked for beside the loop.
    void update() const;
    /// Makes the file descriptor readable.
    void wake() const;
    /// Called at the end of each dispatch(), for the loop's whole life.
    void observe(std::function<void()> dispatched);

    /// For those who speak on a bus.
    class Context;
    Context& context() const { return *m_context; }

  private:
    std::unique_ptr<Context> m_context;
    std::vector<std::function<void()>> m_observers;
};
