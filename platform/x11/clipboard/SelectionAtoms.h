// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/server/XConnection.h"

namespace x11 {

/// The names of the selection CLIPBOARD (ICCCM 2, section 2; Clipboard Manager standard 0.1).
struct SelectionAtoms {
    explicit SelectionAtoms(const XConnection& connection)
        : clipboard(connection.atom("CLIPBOARD")),
          targets(connection.atom("TARGETS")),
          multiple(connection.atom("MULTIPLE")),
          timestamp(connection.atom("TIMESTAMP")),
          atomPair(connection.atom("ATOM_PAIR")),
          incremental(connection.atom("INCR")),
          utf8(connection.atom("UTF8_STRING")),
          markedPlain(connection.atom("text/plain;charset=utf-8")),
          plain(connection.atom("text/plain")),
          text(connection.atom("TEXT")),
          manager(connection.atom("CLIPBOARD_MANAGER")),
          saveTargets(connection.atom("SAVE_TARGETS")),
          answer(connection.atom("KEYRILL_CLIPBOARD")) {}

    xcb_atom_t clipboard;
    xcb_atom_t targets;
    xcb_atom_t multiple;
    xcb_atom_t timestamp;
    xcb_atom_t atomPair;
    xcb_atom_t incremental;
    xcb_atom_t utf8;
    xcb_atom_t markedPlain;
    xcb_atom_t plain;
    xcb_atom_t text;
    xcb_atom_t manager;
    xcb_atom_t saveTargets;
    /// Where answers to our own questions are put.
    xcb_atom_t answer;
};

}  // namespace x11
