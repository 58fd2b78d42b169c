// SPDX-License-Identifier: MIT
#include "platform/script/run/TraceInjector.h"

#include <array>
#include <charconv>
#include <cmath>
#include <ostream>

#include "platform/script/run/TraceServices.h"
#include "platform/script/values/ModifierWords.h"

namespace script {
namespace {

/// The fewest digits that read back as the same number; an exponent only where there would be many zeros.
std::string json(double number) {
    constexpr double small = 1e-4;
    constexpr double large = 1e15;
    const double magnitude = std::abs(number);
    const bool fixed = magnitude == 0 || (magnitude >= small && magnitude < large);
    std::array<char, 32> buffer{};
    const auto format = fixed ? std::chars_format::fixed : std::chars_format::scientific;
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, format);
    return {buffer.data(), result.ptr};
}

std::string modifierNames(std::uint32_t modifiers) {
    std::string out = "[";
    for (const ModifierWord& row : modifierWords) {
        if ((modifiers & row.modifier) == 0) continue;
        out += (out.size() > 1 ? "," : "") + jsonText(spellingOf(row.word));
    }
    return out + "]";
}

struct HeldJson {
    std::string operator()(const HeldModifier& held) const {
        const std::string list = modifierNames(held.modifier);
        return list.substr(1, list.size() - 2);
    }
    std::string operator()(const HeldCode& held) const { return std::to_string(held.keyCode); }
    std::string operator()(const HeldText& held) const { return jsonText(held.text); }
};

class TraceSession : public InjectionSession {
  public:
    explicit TraceSession(std::ostream& out) : m_out(out) {}

    Step<> stroke(std::uint32_t keyCode, std::uint32_t modifiers) override {
        return print("key", std::to_string(keyCode) + "," + modifierNames(modifiers));
    }
    Step<> text(std::string_view text, std::uint32_t modifiers) override {
        return print("text", jsonText(text) + "," + modifierNames(modifiers));
    }
    Step<> keyDown(const HeldKey& key) override {
        return print("keydown", std::visit(HeldJson(), key) + ",[]");
    }
    Step<> keyUp(const HeldKey& key) override { return print("keyup", std::visit(HeldJson(), key) + ",[]"); }
    Step<> pause(double seconds) override { return print("delay", json(seconds)); }

  private:
    /// Nobody is there to read the rest once the stream is broken.
    Step<> print(std::string_view name, const std::string& rest) {
        m_out << "[\"" << name << "\"," << rest << "]\n";
        if (!m_out) return Error{sentence("ScriptTool", "the output cannot be written"), ""};
        return {};
    }

    std::ostream& m_out;
};

}  // namespace

Result<std::unique_ptr<InjectionSession>> TraceInjector::open(const InjectionPlan& /*plan*/) {
    return std::unique_ptr<InjectionSession>(std::make_unique<TraceSession>(m_out));
}

}  // namespace script
