// SPDX-License-Identifier: MIT
#pragma once

#include <iosfwd>

#include "platform/KeyInjector.h"

namespace script {

/// Presses nothing and waits for nothing: prints each step as one JSON array a line.
///
/// ["key",36,["command","shift"]]  ["text","hello",[]]  ["delay",0.5]  ["keydown",x,[]]  ["keyup",x,[]]
///
/// Modifiers stand in the order command, control, option, shift; x is a modifier's name, a code or a text.
class TraceInjector : public KeyInjector {
  public:
    /// The stream outlives the injector and its sessions.
    explicit TraceInjector(std::ostream& out) : m_out(out) {}

    Result<std::unique_ptr<InjectionSession>> open(const InjectionPlan& plan) override;
    void startPlayback() override {}
    bool isCancelled() override { return false; }

  private:
    std::ostream& m_out;
};

}  // namespace script
