// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <span>

#include "platform/press/StrokeSender.h"
#include "platform/run/RunWaiter.h"
#include "platform/x11/press/CharacterKeys.h"
#include "platform/x11/press/HandsAndLocks.h"

namespace x11 {

/// Types texts: what the current layout has by its keys, what another layout has with its group locked, all
/// else by keys that are bound to it. Up to InjectionConnection::capacity bytes go between two round trips.
class TextTyper {
  public:
    struct Tools {
        InjectionConnection& connection;
        KeymapWatch& keymap;
        KeyBinder& binder;
        CharacterKeys& characters;
        const Clock& clock;
    };
    TextTyper(const Tools& tools, StrokeSender& sender, RunWaiter& waiter)
        : m_tools(tools), m_sender(sender), m_waiter(waiter) {}

    /// Keeps up with the keymap, and waits while it is being changed. Fails if that may have spoilt what was
    /// typed just before; the message tells what. With `thorough` all changes up to now are seen.
    Step<> followKeymap(bool thorough);

    /// Before each part that goes out whole: waits for hands, brings locks in order and tells the state.
    using Check = std::function<Step<XkbComponents>()>;

    /// Types the characters with further X modifier bits and locks held over each. Fails before the first one
    /// if one of them cannot be typed; the message names it.
    Step<> type(std::span<const char32_t> characters, const Stroke& around, const KeycodeSet& held,
                const Check& check);

    /// Puts those characters on keys that need it, as many as have room: a text that is typed later finds
    /// them there.
    Step<> prepare(std::span<const char32_t> characters, xkb_layout_index_t group);

    /// The stroke of a character, bound first if need be; waits until it may be.
    Step<Stroke> strokeFor(char32_t character, xkb_layout_index_t group);

  private:
    Result<void> refuseUntypable(std::span<const char32_t> characters, xkb_layout_index_t group);
    std::size_t fittingPart(std::span<const char32_t> characters, xkb_layout_index_t group,
                            std::vector<char32_t>& unbound);
    /// `left` is the text that is not typed where that fails.
    Step<> bind(const std::vector<char32_t>& wanted, std::span<const char32_t> left);
    /// How many it has typed: fewer where the keymap has lost one meanwhile.
    Step<std::size_t> typePart(std::span<const char32_t> characters, const Stroke& around,
                               const KeycodeSet& held, const Check& check);

    Tools m_tools;
    StrokeSender& m_sender;
    RunWaiter& m_waiter;
};

}  // namespace x11
