// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "platform/press/SpareSlots.h"
#include "platform/press/StrokeSender.h"
#include "platform/run/RunWait.h"
#include "platform/wayland/Pressing.h"
#include "platform/wayland/SeatKeymap.h"
#include "platform/wayland/TypingKeymap.h"
#include "platform/wayland/TypingPace.h"
#include "platform/wayland/VirtualKeyboard.h"

namespace wayland {

/// Types texts: what the seat's layouts have by their keys, all else by unused keys that the virtual
/// keyboard's keymap gives those characters.
///
/// A window of the compositor's own kind is told of a new keymap between the keys around it, in one order.
/// The X server in between passes both on in two ways, so a key is given another character only some time
/// after its last use.
class TextTyper final : public RunKeyboard {
  public:
    struct Tools {
        WaylandConnection& connection;
        SeatKeymap& seat;
        VirtualKeyboard& keyboard;
        const Clock& clock;
    };
    TextTyper(const Tools& tools, StrokeSender& sender, RunWait& wait)
        : m_tools(tools), m_sender(sender), m_wait(wait), m_pace(tools.clock, wait) {}

    // RunKeyboard
    /// Characters that were bound before a rest are so again.
    Step<> plugIn() override;
    void unplug() override;
    XkbComponents components() const override { return m_tools.keyboard.components(); }
    Step<> type(std::span<const char32_t> characters, const Stroke& around, const KeycodeSet& held) override;
    /// Puts those characters on keys that need it, as many as have room.
    Step<> prepare(std::span<const char32_t> characters) override;
    /// Binds the character first if need be.
    Step<Stroke> strokeFor(char32_t character) override;

  private:
    std::string keymapToBeginWith();
    /// A compositor whose user configures his keyboards anew, or switches their layout, does so with ours.
    Step<> restore();
    std::optional<Stroke> find(char32_t character) const;
    Result<void> refuseUntypable(std::span<const char32_t> characters) const;
    std::size_t fittingPart(std::span<const char32_t> characters, std::vector<char32_t>& unbound) const;
    Step<> bind(const std::vector<char32_t>& wanted);
    Step<> typePart(std::span<const char32_t> characters, const Stroke& around, const KeycodeSet& held);

    Tools m_tools;
    StrokeSender& m_sender;
    RunWait& m_wait;
    std::optional<TypingKeymap> m_keymap;
    SpareSlots m_slots;
    std::string m_seatText;
    unsigned m_strangersKeymaps = 0;
    TypingPace m_pace;
};

}  // namespace wayland
