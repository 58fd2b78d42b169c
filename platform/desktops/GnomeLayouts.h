// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/desktops/Layouts.h"
#include "platform/desktops/SessionBus.h"

/// Those of GNOME, which are the user's alone to switch (org.gnome.desktop.input-sources).
///
/// GNOME keeps the one that was used last in front of a list, as long as it runs ibus, as it does unless that
/// is not installed; else the first counts.
class GnomeLayouts final : public Layouts {
  public:
    /// Type and name: {"xkb", "de+neo"}.
    using Sources = std::vector<std::pair<std::string, std::string>>;

    /// Whether the desktop on that bus is GNOME.
    static bool isThere(const SessionBus& bus);
    /// Whether this machine has the description of its settings, without which nothing can be asked.
    static bool areKnown();

    /// Changes are noticed in the loop of `bus`, which outlives this.
    explicit GnomeLayouts(const SessionBus& bus) : m_bus(bus) {}
    ~GnomeLayouts() override;
    GnomeLayouts(const GnomeLayouts&) = delete;
    GnomeLayouts& operator=(const GnomeLayouts&) = delete;

    std::uint32_t group() const override;
    bool canSwitch() const override { return false; }
    Result<void> setGroup(std::uint32_t group) override;
    void observe(std::function<void()> changed) override;

    /// The group of the seat's keymap that is in force, by the user's list and by that of the last used. A
    /// keymap has three of the user's layouts at a time; what an input method types with is not known.
    static std::uint32_t groupOf(const Sources& sources, const Sources& lastUsed);

  private:
    static void hasChanged(GSettings* settings, const char* key, void* self);
    /// Null where the machine has no description of them.
    GSettings* settings() const;

    const SessionBus& m_bus;
    /// Opened when it is needed: some stores notice changes in the loop of whoever comes first in the
    /// process.
    mutable GObjectPointer<GSettings> m_settings;
    std::function<void()> m_changed;
};
