// SPDX-License-Identifier: MIT
#include "platform/fake/FakeKeyInjector.h"

#include <algorithm>
#include <array>
#include <sstream>
#include <utility>

#include "platform/KeyCodes.h"
#include "platform/Modifiers.h"

namespace {

struct ModifierName {
    std::uint32_t modifier;
    const char* name;
};
constexpr std::array modifierNames = {
    ModifierName{modifier::command, "command"}, ModifierName{modifier::control, "control"},
    ModifierName{modifier::option, "option"}, ModifierName{modifier::shift, "shift"}};

std::string words(std::uint32_t modifiers) {
    std::string text;
    for (const auto& [modifier, name] : modifierNames) {
        if ((modifiers & modifier) != 0) text += std::string(" ") + name;
    }
    return text;
}

std::string nameOf(const HeldKey& key) {
    if (const auto* held = std::get_if<HeldModifier>(&key)) return words(held->modifier);
    if (const auto* held = std::get_if<HeldCode>(&key)) return " " + std::to_string(held->keyCode);
    return " " + std::get<HeldText>(key).text;
}

bool isPower(std::uint32_t keyCode) { return (keyCode & ~keycode::choosers) == keycode::power; }

}  // namespace

class FakeKeyInjector::Session : public InjectionSession {
  public:
    explicit Session(FakeKeyInjector& injector) : m_injector(injector) { m_injector.m_open = true; }
    ~Session() override;
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    Result<RunState> stroke(std::uint32_t keyCode, std::uint32_t modifiers) override;
    Result<RunState> text(std::string_view text, std::uint32_t modifiers) override;
    Result<RunState> keyDown(const HeldKey& key) override;
    Result<RunState> keyUp(const HeldKey& key) override;
    Result<RunState> pause(double seconds) override;

  private:
    Result<RunState> state();
    Result<RunState> press(const std::string& step);
    Result<RunState> fail(const Error& error);
    bool goesOn();

    FakeKeyInjector& m_injector;
    std::optional<FakeDesktop::Run> m_run;
    std::optional<Error> m_error;
    bool m_cancelled = false;
    std::vector<std::string> m_held;
};

FakeKeyInjector::Session::~Session() {
    for (auto held = m_held.rbegin(); held != m_held.rend(); ++held) {
        m_injector.m_posted.push_back("up" + *held);
    }
    m_injector.m_open = false;
}

Result<RunState> FakeKeyInjector::Session::state() {
    if (m_error) return *m_error;
    return m_cancelled ? RunState::cancelled : RunState::going;
}

bool FakeKeyInjector::Session::goesOn() {
    if (m_error || m_cancelled) return false;
    if (m_injector.m_nextError) m_error = std::exchange(m_injector.m_nextError, std::nullopt);
    m_cancelled = m_injector.isCancelled();
    return !m_error && !m_cancelled;
}

Result<RunState> FakeKeyInjector::Session::press(const std::string& step) {
    if (!m_run) m_run.emplace(m_injector.m_desktop);
    m_injector.m_posted.push_back(step);
    return RunState::going;
}

Result<RunState> FakeKeyInjector::Session::fail(const Error& error) {
    m_error = error;
    return error;
}

Result<RunState> FakeKeyInjector::Session::stroke(std::uint32_t keyCode, std::uint32_t modifiers) {
    if (!goesOn()) return state();
    if (isPower(keyCode)) return fail({"The power key cannot be pressed by a script.", ""});
    if (!keycode::evdevFor(keyCode)) return RunState::going;
    auto result = press("key " + std::to_string(keyCode) + words(modifiers));
    m_injector.m_keyboard.scriptStrikes(keyCode, modifiers);
    return result;
}

Result<RunState> FakeKeyInjector::Session::text(std::string_view text, std::uint32_t modifiers) {
    if (!goesOn()) return state();
    if (text.empty()) return RunState::going;
    return press("text " + std::string(text) + words(modifiers));
}

Result<RunState> FakeKeyInjector::Session::keyDown(const HeldKey& key) {
    if (!goesOn()) return state();
    const auto* code = std::get_if<HeldCode>(&key);
    if (code != nullptr && isPower(code->keyCode)) {
        return fail({"The power key cannot be pressed by a script.", ""});
    }
    const std::string name = nameOf(key);
    if (std::find(m_held.begin(), m_held.end(), name) == m_held.end()) m_held.push_back(name);
    return press("down" + name);
}

Result<RunState> FakeKeyInjector::Session::keyUp(const HeldKey& key) {
    if (!goesOn()) return state();
    const std::string name = nameOf(key);
    m_held.erase(std::remove(m_held.begin(), m_held.end(), name), m_held.end());
    return press("up" + name);
}

Result<RunState> FakeKeyInjector::Session::pause(double seconds) {
    if (!goesOn()) return state();
    std::ostringstream step;
    step.imbue(std::locale::classic());
    step << "pause " << seconds;
    m_injector.m_posted.push_back(step.str());
    m_injector.m_clock.sleepFor(Clock::Seconds(seconds));
    m_cancelled = m_injector.isCancelled();
    return state();
}

Result<std::unique_ptr<InjectionSession>> FakeKeyInjector::open(const InjectionPlan& /*plan*/) {
    if (m_nextError) return *std::exchange(m_nextError, std::nullopt);
    if (m_open) return Error{"A script is running already.", "Wait for its end."};
    return std::unique_ptr<InjectionSession>(std::make_unique<Session>(*this));
}
