// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/Result.h"
#include "platform/x11/clipboard/SelectionAtoms.h"
#include "platform/x11/server/HiddenWindow.h"
#include "platform/x11/server/Property.h"
#include "platform/x11/server/ServerClock.h"

namespace x11 {

/// Asks other clients about the selection CLIPBOARD (ICCCM 2, section 2.4), also for texts that come piece by
/// piece. Nobody is waited for longer than a second without a sign of life.
class SelectionReader {
  public:
    /// The most that is read.
    static constexpr std::size_t longestText = 64U << 20U;

    /// Whether nobody wants the answer any more; asked while others are waited for. Empty for never.
    using IsStopped = std::function<bool()>;

    /// The connection outlives the object, and has no other use.
    explicit SelectionReader(const XConnection& connection);

    /// The text in UTF-8; empty if there is none, its owner does not answer, or it is not wanted any more.
    /// Fails for one that is too long.
    Result<std::string> text(const IsStopped& isStopped);

    /// Asks the clipboard manager to fetch what this process owns there; true when it has. False without one.
    bool handOver();

    /// XCB_CURRENT_TIME if the server is gone.
    xcb_timestamp_t serverTime();

  private:
    using Wanted = std::function<bool(const Event& event)>;
    enum class Outcome { given, refused, silent, tooLong };
    struct Answer {
        Outcome outcome = Outcome::silent;
        std::string bytes = {};
    };

    Result<std::string> readText();
    std::vector<xcb_atom_t> formsToTry();
    Answer ask(xcb_atom_t target);
    Answer collect();
    /// None after the time.
    Event await(const Wanted& wanted);
    std::optional<xcb_atom_t> convert(xcb_atom_t selection, xcb_atom_t target);
    /// Where answers are put.
    Property answer() const;
    Property::Content take() const;

    const XConnection& m_connection;
    IsStopped m_isStopped;
    SelectionAtoms m_atoms;
    HiddenWindow m_window;
    ServerClock m_clock;
};

}  // namespace x11
