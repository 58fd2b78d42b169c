// SPDX-License-Identifier: MIT
//
// A script file from a stranger: decoded, compiled, and run for a bounded number of steps.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/Encoding.h"
#include "platform/KeyInjector.h"
#include "platform/Utf8.h"
#include "platform/script/code/Compiler.h"
#include "platform/script/run/Run.h"

namespace {

constexpr int maxSteps = 40;

/// Lets the user stop the run after a while, since scripts may loop for ever.
class BoundedInjector : public KeyInjector {
  public:
    Result<std::unique_ptr<InjectionSession>> open(const InjectionPlan& plan) override;
    void startPlayback() override {}
    bool isCancelled() override { return ++m_steps > maxSteps; }

  private:
    int m_steps = 0;
};

class BoundedSession : public InjectionSession {
  public:
    explicit BoundedSession(BoundedInjector& injector) : m_injector(injector) {}

    Step<> stroke(std::uint32_t keyCode, std::uint32_t /*modifiers*/) override {
        if (keyCode > 0xFFFF) std::abort();
        return step();
    }
    Step<> text(std::string_view text, std::uint32_t /*modifiers*/) override {
        if (text.empty() || invalidUtf8(text)) std::abort();
        return step();
    }
    Step<> keyDown(const HeldKey& /*key*/) override { return step(); }
    Step<> keyUp(const HeldKey& /*key*/) override { return step(); }
    Step<> pause(double /*seconds*/) override { return step(); }

  private:
    Step<> step() { return m_injector.isCancelled() ? Step<>(Halt::cancelled()) : Step<>(); }

    BoundedInjector& m_injector;
};

Result<std::unique_ptr<InjectionSession>> BoundedInjector::open(const InjectionPlan& /*plan*/) {
    return std::unique_ptr<InjectionSession>(std::make_unique<BoundedSession>(*this));
}

/// Programs have windows, which scripts choose from.
class BusyDesktop : public script::SilentDesktop {
  public:
    Result<std::vector<std::string>> applications() override {
        return std::vector<std::string>{"Mail", "Fire"};
    }
    bool hasApplication(std::string_view /*name*/) override { return true; }
    bool isInFront(std::string_view name) override { return name == "Mail"; }
};

/// Every error has a number, words that can be shown, and a place.
void check(const script::ScriptError& error) {
    if (error.number == 0 || error.message.empty() || invalidUtf8(error.message.text())) std::abort();
    if (error.location.line == 0 || error.location.column == 0) std::abort();
}

}  // namespace

// NOLINTNEXTLINE(readability-identifier-naming): the name that the fuzzer calls
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string source = decodedText(std::string(data, data + size));
    if (invalidUtf8(source)) std::abort();
    const auto compiled = script::compile(std::move(source));
    if (!compiled) {
        check(compiled.error());
        return 0;
    }
    BoundedInjector injector;
    BusyDesktop desktop;
    script::NoDialogs dialogs;
    const auto checkWarning = [](const script::ScriptWarning& warning) {
        if (warning.message.empty()) std::abort();
    };
    const script::RunResult result =
        script::run(compiled.value(), {injector, desktop, dialogs}, {.onWarning = checkWarning});
    if (result.error) check(*result.error);
    return 0;
}
