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

bool isPower(std::uint32_t keyCode) { return keycode::baseOf(keyCode) == keycode::power; }

Error powerKeyRefused() { return {"The power key cannot be pressed by a script.", ""}; }

}  // namespace

class FakeKeyInjector::Session : public InjectionSession {
  public:
    explicit Session(FakeKeyInjector& injector) : m_injector(injector) { m_injector.m_open = true; }
    ~Session() override;
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    Step<> stroke(std::uint32_t keyCode, std::uint32_t modifiers) override;
    Step<> text(std::string_view text, std::uint32_t modifiers) override;
    Step<> keyDown(const HeldKey& key) override;
    Step<> keyUp(const HeldKey& key) override;
    Step<> pause(double seconds) override;

  private:
    Step<> goOn();
    Step<> halt(const Halt& why);
    Step<> press(const std::string& step);

    FakeKeyInjector& m_injector;
    std::optional<FakeDesktop::Run> m_run;
    std::optional<Halt> m_halt;
    std::vector<std::string> m_held;
};

FakeKeyInjector::Session::~Session() {
    for (auto held = m_held.rbegin(); held != m_held.rend(); ++held) {
        m_injector.post("up" + *held);
    }
    m_injector.m_open = false;
}

Step<> FakeKeyInjector::Session::goOn() {
    if (m_halt) return *m_halt;
    if (m_injector.m_nextError) return halt(*std::exchange(m_injector.m_nextError, std::nullopt));
    if (m_injector.isCancelled()) return halt(Halt::cancelled());
    return {};
}

Step<> FakeKeyInjector::Session::press(const std::string& step) {
    if (!m_run) m_run.emplace(m_injector.m_desktop);
    m_injector.post(step);
    return {};
}

Step<> FakeKeyInjector::Session::halt(const Halt& why) {
    m_halt = why;
    return why;
}

Step<> FakeKeyInjector::Session::stroke(std::uint32_t keyCode, std::uint32_t modifiers) {
    if (auto going = goOn(); !going) return going;
    if (isPower(keyCode)) return halt(powerKeyRefused());
    if (!keycode::evdevFor(keyCode)) return {};
    auto result = press("key " + std::to_string(keyCode) + words(modifiers));
    m_injector.m_keyboard.scriptStrikes(keyCode, modifiers);
    return result;
}

Step<> FakeKeyInjector::Session::text(std::string_view text, std::uint32_t modifiers) {
    if (auto going = goOn(); !going) return going;
    if (text.empty()) return {};
    return press("text " + std::string(text) + words(modifiers));
}

Step<> FakeKeyInjector::Session::keyDown(const HeldKey& key) {
    if (auto going = goOn(); !going) return going;
    const auto* code = std::get_if<HeldCode>(&key);
    if (code != nullptr && isPower(code->keyCode)) return halt(powerKeyRefused());
    const std::string name = nameOf(key);
    if (std::find(m_held.begin(), m_held.end(), name) == m_held.end()) m_held.push_back(name);
    return press("down" + name);
}

Step<> FakeKeyInjector::Session::keyUp(const HeldKey& key) {
    if (auto going = goOn(); !going) return going;
    const std::string name = nameOf(key);
    m_held.erase(std::remove(m_held.begin(), m_held.end(), name), m_held.end());
    return press("up" + name);
}

Step<> FakeKeyInjector::Session::pause(double seconds) {
    if (auto going = goOn(); !going) return going;
    std::ostringstream step;
    step.imbue(std::locale::classic());
    step << "pause " << seconds;
    m_injector.post(step.str());
    m_injector.m_clock.sleepFor(Clock::Seconds(seconds));
    return m_injector.isCancelled() ? halt(Halt::cancelled()) : Step<>();
}

Result<std::unique_ptr<InjectionSession>> FakeKeyInjector::open(const InjectionPlan& /*plan*/) {
    if (m_nextError) return *std::exchange(m_nextError, std::nullopt);
    if (m_open) return Error{"A script is running already.", "Wait for its end."};
    return std::unique_ptr<InjectionSession>(std::make_unique<Session>(*this));
}

void FakeKeyInjector::post(const std::string& step) {
    m_journal.note("press", step);
    m_posted.push_back(step);
}
