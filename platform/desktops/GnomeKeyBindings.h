// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/desktops/SessionBus.h"

/// The custom key bindings in the settings of GNOME's user (org.gnome.settings-daemon.plugins.media-keys),
/// each of which starts a program: ours among them, and who else has a combination.
///
/// Ours are known by their paths and by the commands that they run; all others are the user's, and only read.
class GnomeKeyBindings {
  public:
    struct Entry {
        /// As the user sees it in GNOME's settings.
        std::string title;
        /// As a shell would read it.
        std::string command;
        /// As GTK writes it: "<Control><Super>r".
        std::string accelerator;

        friend bool operator==(const Entry&, const Entry&) = default;
    };
    /// By our names for them: of letters, digits, "-" and "%".
    using Entries = std::map<std::string, Entry>;

    /// Which option stands in each command of ours, with the entry's name behind it.
    static constexpr const char* option = "--hot-key=";

    /// Whether this machine has the descriptions of these settings, and a place to keep them.
    static bool areKnown(const SessionBus& bus);

    /// Changes are noticed in the loop of `bus`, which outlives this.
    explicit GnomeKeyBindings(const SessionBus& bus);
    ~GnomeKeyBindings();
    GnomeKeyBindings(const GnomeKeyBindings&) = delete;
    GnomeKeyBindings& operator=(const GnomeKeyBindings&) = delete;

    /// Why an entry of that name cannot be written, as the end of a sentence; empty if it can.
    std::optional<std::string> obstacleTo(const std::string& name);
    /// Who else has one of these combinations, as the end of a sentence; empty if nobody has.
    std::optional<std::string> ownerOf(const std::vector<std::string>& accelerators);

    /// Makes ours these and no others; also those go that a process before this one has left. What is as it
    /// should be is not written again.
    void write(const Entries& entries);
    /// The names of those of ours that are in force.
    std::set<std::string> names();
    /// Waits until all has been taken in by whoever keeps the settings.
    static void finish() { g_settings_sync(); }

    /// Who is told that any binding may have changed, ours too; at most one.
    void observe(std::function<void()> changed) { m_changed = std::move(changed); }

  private:
    using Paths = std::vector<std::string>;

    static void hasChanged(GSettings* settings, const char* key, void* self);
    GObjectPointer<GSettings> opened(const char* schema, const char* path);
    /// Those of the binding at that path.
    GSettings* at(const std::string& path);
    std::string textAt(const std::string& path, const char* key);
    Paths paths();
    bool isOurs(const std::string& path);
    void writeEntry(const std::string& path, const Entry& entry);
    void removeEntry(const std::string& path);

    const SessionBus& m_bus;
    GObjectPointer<GSettings> m_list;
    /// Of the desktop's own key bindings; those that are there.
    std::vector<GObjectPointer<GSettings>> m_desktops;
    std::map<std::string, GObjectPointer<GSettings>> m_entries;
    std::function<void()> m_changed;
};
