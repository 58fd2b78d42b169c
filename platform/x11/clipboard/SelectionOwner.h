// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "platform/x11/clipboard/SelectionAtoms.h"
#include "platform/x11/server/HiddenWindow.h"

namespace x11 {

/// Owns the selection CLIPBOARD and gives its text to whoever asks, in the forms of ICCCM 2, section 2.6.2,
/// and as UTF-8. A long text goes piece by piece (section 2.7.2), so that no server's longest request bounds
/// it.
///
/// Knows no threads: whoever reads the connection's events hands them in.
class SelectionOwner {
  public:
    /// The connection outlives the object.
    explicit SelectionOwner(const XConnection& connection);

    /// From `time` on, a time of the server. False, and nothing owned, if another client has taken it since.
    bool own(std::string text, xcb_timestamp_t time);

    bool isOwner() const { return m_isOwner; }
    const std::string& text() const { return *m_text; }
    xcb_timestamp_t time() const { return m_time; }
    /// Whether somebody still fetches a long text piece by piece, also one that was owned before.
    bool isSending() const;

    void handle(const Event& event);

    /// Puts down, where an answer is expected, in which forms a clipboard manager can have the text.
    static void nameForms(const XConnection& connection, const SelectionAtoms& atoms, xcb_window_t window);

  private:
    using Text = std::shared_ptr<const std::string>;
    using Moment = std::chrono::steady_clock::time_point;

    struct Transfer {
        xcb_window_t requestor;
        xcb_atom_t property;
        xcb_atom_t type;
        Text text;
        std::size_t sent;
        Moment lastStep;
    };

    void answer(const xcb_selection_request_event_t& request);
    bool convert(xcb_window_t requestor, xcb_atom_t target, xcb_atom_t property);
    bool convertAll(xcb_window_t requestor, xcb_atom_t property);
    void give(xcb_window_t requestor, xcb_atom_t property, xcb_atom_t type, const Text& text);
    void propertyChanged(const xcb_property_notify_event_t& event);
    /// False after the last piece, an empty one.
    bool sendNextPiece(Transfer& transfer);
    static bool isIdle(const Transfer& transfer);
    void forgetIdleTransfers();
    void ignore(xcb_window_t requestor);

    const XConnection& m_connection;
    SelectionAtoms m_atoms;
    HiddenWindow m_window;
    Text m_text = std::make_shared<const std::string>();
    xcb_timestamp_t m_time = XCB_CURRENT_TIME;
    bool m_isOwner = false;
    std::vector<Transfer> m_transfers;
};

}  // namespace x11
