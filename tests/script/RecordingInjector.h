// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/KeyInjector.h"

/// Writes down the calls that a run makes, one word each: "open", "key 36", "text ab", "down", "up", "pause",
/// "close", and can answer a step with a stop or an error.
class RecordingInjector : public KeyInjector {
  public:
    Result<std::unique_ptr<InjectionSession>> open(const InjectionPlan& plan) override;
    void startPlayback() override { cancelled = false; }
    bool isCancelled() override;

    /// Called in every step.
    std::function<void()> duringEachStep = [] {};
    /// Called each time that the run asks whether to stop.
    std::function<void()> whenAsked = [] {};
    bool cancelled = false;
    std::string openError;
    std::string stepError;

    std::vector<std::string> calls;
    std::vector<std::string> plannedTexts;
};
