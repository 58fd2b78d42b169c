// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <chrono>
#include <functional>
#include <initializer_list>

#include "display/Hands.h"
#include "display/NestedServers.h"

/// A person at a keyboard: keys go down and up one by one, with a gap after each. Several may be down at a
/// time. Key codes are X key codes.
///
/// Why not Hands alone: what Hands queue arrives in one piece, as no person presses a combination. Between
/// two keys of a person a program does a lot, and that is where it fails. The gap is the stimulus; nothing is
/// waited for by it.
class Typist {
  public:
    using Gap = std::chrono::milliseconds;
    /// A program that presses keys; quick hands; most hands; slow hands.
    static constexpr std::array gaps{Gap(5), Gap(30), Gap(80), Gap(150)};

    /// By XTEST, as remote desktops and on-screen keyboards do. The hands outlive this.
    Typist(const Hands& hands, Gap gap)
        : m_hands(hands), m_gap(gap), m_deliver([&hands] { hands.finish(); }) {}
    /// At the real keyboard of the inner server. The servers outlive this.
    Typist(const NestedServers& servers, Gap gap)
        : m_hands(servers.user()), m_gap(gap), m_deliver([&servers] { servers.finish(); }) {}

    /// One after the other, in this order.
    void press(std::initializer_list<std::uint8_t> keycodes) const;
    void release(std::initializer_list<std::uint8_t> keycodes) const;
    void tap(std::uint8_t keycode) const;
    /// Down in this order, up in the opposite one: a combination.
    void stroke(std::initializer_list<std::uint8_t> keycodes) const;
    /// Each key goes down before the one before it is up: fluent typing.
    void rollOver(std::initializer_list<std::uint8_t> keycodes) const;
    /// Keeps down what is down for that long, besides the gap.
    void hold(std::chrono::milliseconds duration) const;

  private:
    void press(std::uint8_t keycode) const;
    void release(std::uint8_t keycode) const;

    const Hands& m_hands;
    Gap m_gap;
    /// Brings what was pressed to the server and all its clients.
    std::function<void()> m_deliver;
};

/// The name of a parametrised test: "at80Milliseconds".
inline std::string nameOf(Typist::Gap gap) { return "at" + std::to_string(gap.count()) + "Milliseconds"; }
