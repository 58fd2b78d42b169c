// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/Result.h"
#include "platform/x11/clipboard/SelectionAtoms.h"

namespace x11 {

/// Asks other clients about the selection CLIPBOARD (ICCCM 2, section 2.4), also for texts that come piece by
/// piece. Nobody is waited for longer than a second without a sign of life.
class SelectionReader {
  public:
    /// The most that is read.
    static constexpr std::size_t longestText = 64U << 20U;

    /// The connection outlives the object, and has no other use.
    explicit SelectionReader(const XConnection& connection);

    /// The text in UTF-8; empty if there is none or its owner does not answer. Fails for one that is too
    /// long.
    Result<std::string> text();

    /// Asks the clipboard manager to fetch what this process owns there; true when it has. False without one.
    bool handOver();

    /// XCB_CURRENT_TIME if the server is gone.
    xcb_timestamp_t serverTime();

  private:
    using Event = XReply<xcb_generic_event_t>;
    using Wanted = std::function<bool(const xcb_generic_event_t& event)>;
    enum class Outcome { given, refused, silent, tooLong };
    struct Answer {
        Outcome outcome = Outcome::silent;
        std::string bytes = {};
    };
    struct Piece {
        xcb_atom_t type = XCB_ATOM_NONE;
        std::string bytes = {};
    };

    std::vector<xcb_atom_t> formsToTry();
    Answer ask(xcb_atom_t target);
    Answer collect();
    /// Empty after the time.
    Event await(const Wanted& wanted);
    std::optional<xcb_atom_t> convert(xcb_atom_t selection, xcb_atom_t target);
    /// Takes the answer's property away.
    Piece take() const;

    const XConnection& m_connection;
    SelectionAtoms m_atoms;
    xcb_window_t m_window;
};

}  // namespace x11
