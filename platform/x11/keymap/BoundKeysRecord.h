// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "platform/x11/server/HiddenWindow.h"
#include "platform/x11/server/Property.h"
#include "platform/x11/server/XConnection.h"

namespace x11 {

/// A symbol on a level of a key.
struct BoundKey {
    std::uint8_t keycode = 0;
    std::uint8_t level = 0;
    std::uint32_t symbol = 0;

    friend bool operator==(const BoundKey&, const BoundKey&) = default;
};

/// What is bound, written down where it outlives a crash: a property of the root window. A selection of the
/// same name tells whether the process that wrote it is alive.
class BoundKeysRecord {
  public:
    explicit BoundKeysRecord(const XConnection& connection);

    /// Whether a process, this one or another, stands for what is recorded.
    bool hasOwner() const;
    /// Stands for it from now on, until the connection ends.
    void own();

    /// What is recorded; not to be trusted, since any client can write it.
    std::vector<BoundKey> read() const;
    /// Replaces it; nothing at all removes the property. Returns when the server has it.
    void write(const std::vector<BoundKey>& keys) const;

  private:
    Property property() const;

    const XConnection& m_connection;
    xcb_atom_t m_atom;
    HiddenWindow m_window;
};

}  // namespace x11
