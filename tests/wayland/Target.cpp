// SPDX-License-Identifier: MIT
#include "wayland/Target.h"

#include <stdexcept>

#include "compositor/Foot.h"
#include "compositor/Sway.h"

namespace {

class TerminalTarget final : public Target {
  public:
    explicit TerminalTarget(const Sway& sway) : m_foot(sway) {}

    std::string text() const override { return m_foot.typed(); }
    std::string afterSaving(const std::string& text) const override { return text + "\x13"; }
    std::string pasteModifiers() const override { return "{control down, shift down}"; }
    void focus() const override { m_foot.focus(); }
    std::array<std::uint8_t, 3> colour() const override { return Foot::colour; }

  private:
    Foot m_foot;
};

class FieldTarget final : public Target {
  public:
    FieldTarget(const Compositor& compositor, Field::Toolkit toolkit)
        : m_compositor(compositor), m_field(compositor, toolkit) {}

    std::string text() const override { return m_field.text(); }
    std::string afterSaving(const std::string& text) const override { return text; }
    std::string pasteModifiers() const override { return "control down"; }
    void focus() const override {
        if (!eventually([this] { return m_compositor.focus("field"); }))
            throw std::runtime_error("the field gets no focus");
    }
    std::array<std::uint8_t, 3> colour() const override { return {255, 255, 255}; }

  private:
    const Compositor& m_compositor;
    Field m_field;
};

}  // namespace

std::string Target::text(const std::string& expected) const {
    eventually([&] { return text() == expected; }, std::chrono::seconds(20));
    return text();
}

std::unique_ptr<Target> makeTerminal(const Sway& sway) { return std::make_unique<TerminalTarget>(sway); }

std::unique_ptr<Target> makeField(const Compositor& compositor, Field::Toolkit toolkit) {
    return std::make_unique<FieldTarget>(compositor, toolkit);
}
