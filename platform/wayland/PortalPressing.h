// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "platform/desktops/Layouts.h"
#include "platform/desktops/PortalLink.h"
#include "platform/wayland/KdeLocks.h"
#include "platform/wayland/Pressing.h"
#include "platform/wayland/SeatKeymap.h"

namespace wayland {

/// A keyboard by the desktop's portal: to the compositor its keys are those of the user's own keyboard. So is
/// what they hold and lock, and the layout: another one of the user's is put in force for a character, and
/// the one before again, where the desktop lets programs do that.
class PortalKeyboard final : public KeyOutput {
  public:
    PortalKeyboard(WaylandConnection& connection, PortalLink& link, Layouts& layouts, KdeLocks& locks,
                   const SeatKeymap& seat)
        : m_connection(connection), m_link(link), m_layouts(layouts), m_locks(locks), m_seat(seat) {}

    /// With nothing down, the locks that are on and the group that is in force.
    void plugIn();
    void unplug() { m_state.reset(); }
    XkbComponents components() const;

    // KeyOutput
    void press(std::uint8_t keycode) override { send(keycode, true); }
    void release(std::uint8_t keycode) override { send(keycode, false); }
    /// By strokes of the keys that lock them.
    void lockModifiers(xkb_mod_mask_t mask, xkb_mod_mask_t values) override;
    /// One that cannot be put in force leaves the one that is, and nothing is pressed until synchronise(),
    /// which says why.
    void lockGroup(xkb_layout_index_t group) override;
    void flush() override {}
    Result<XkbComponents> synchronise() override;

  private:
    void send(std::uint8_t keycode, bool press);
    Result<void> passKeys();
    Result<void> setLayout(xkb_layout_index_t group);

    WaylandConnection& m_connection;
    PortalLink& m_link;
    Layouts& m_layouts;
    KdeLocks& m_locks;
    const SeatKeymap& m_seat;
    XkbStatePointer m_state;
    KeycodeSet m_down;
    /// The user's layout, while another one is in force.
    std::optional<xkb_layout_index_t> m_homeLayout;
    /// Why a layout could not be put in force.
    std::optional<Error> m_problem;
};

/// Pressing by the desktop's portal, with texts as the user's layouts have them.
class PortalPressing final : public Pressing {
  public:
    /// All outlive this.
    PortalPressing(WaylandConnection& connection, Layouts& layouts, SeatKeymap& seat, Clock& clock,
                   PortalLink::Options options)
        : m_layouts(layouts),
          m_seat(seat),
          m_clock(clock),
          m_link(std::move(options), clock),
          m_locks(connection),
          m_keyboard(connection, m_link, layouts, m_locks, seat) {}

    /// The desktop is asked late, by the first stroke.
    Result<void> start() override { return {}; }
    KeyOutput& output() override { return m_keyboard; }
    RunCompanion& companion() override { return m_link; }
    std::unique_ptr<RunKeyboard> keyboard(StrokeSender& sender, RunWait& wait) override;

  private:
    const Layouts& m_layouts;
    SeatKeymap& m_seat;
    const Clock& m_clock;
    PortalLink m_link;
    KdeLocks m_locks;
    PortalKeyboard m_keyboard;
};

}  // namespace wayland
