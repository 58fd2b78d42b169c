// SPDX-License-Identifier: MIT
#include "script/RecordingInjector.h"

namespace {

class RecordingSession : public InjectionSession {
  public:
    explicit RecordingSession(RecordingInjector& injector) : m_injector(injector) {
        m_injector.calls.emplace_back("open");
    }
    ~RecordingSession() override { m_injector.calls.emplace_back("close"); }
    RecordingSession(const RecordingSession&) = delete;
    RecordingSession& operator=(const RecordingSession&) = delete;

    Step<> stroke(std::uint32_t keyCode, std::uint32_t /*modifiers*/) override {
        return step("key " + std::to_string(keyCode));
    }
    Step<> text(std::string_view text, std::uint32_t /*modifiers*/) override {
        return step("text " + std::string(text));
    }
    Step<> keyDown(const HeldKey& /*key*/) override { return step("down"); }
    Step<> keyUp(const HeldKey& /*key*/) override { return step("up"); }
    Step<> pause(double /*seconds*/) override { return step("pause"); }

  private:
    Step<> step(const std::string& word) {
        if (m_injector.cancelled) return Halt::cancelled();
        if (!m_injector.stepError.empty()) return Error{m_injector.stepError, "Do this."};
        m_injector.calls.push_back(word);
        m_injector.duringEachStep();
        return {};
    }

    RecordingInjector& m_injector;
};

}  // namespace

Result<std::unique_ptr<InjectionSession>> RecordingInjector::open(const InjectionPlan& plan) {
    if (!openError.empty()) return Error{openError, ""};
    plannedTexts = plan.texts;
    return std::unique_ptr<InjectionSession>(std::make_unique<RecordingSession>(*this));
}

bool RecordingInjector::isCancelled() {
    whenAsked();
    return cancelled;
}
