// SPDX-License-Identifier: MIT
#pragma once

#include <boost/smart_ptr/shared_ptr.hpp>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>

/// What a hot key's name stands for.
struct PreferenceEntry {
    /// The mask as hot keys have it (`modifier` in platform/Modifiers.h).
    std::uint32_t flags = 0;
    /// See platform/KeyCodes.h, 16 bits; -1 is no key.
    std::int16_t code = -1;
    bool marked = false;
};

namespace utils {

/// The table from hot-key name (prefs/Shortcuts.h) to combination, in memory only.
///
/// Names are bytes: case matters. Looking a missing name up puts a default entry in; entries never go. All
/// operations work on the one table of the process, which is made at first use. Main thread only.
class PreferenceManager {
  public:
    PreferenceManager() = default;
    PreferenceManager(const PreferenceManager&) = delete;
    PreferenceManager& operator=(const PreferenceManager&) = delete;

    /// The table of the process. Tests that need a fresh one reset this pointer: the next call fills it
    /// again. Throws as createShared does.
    static boost::shared_ptr<PreferenceManager>& instance();

    static std::int16_t code(const std::string& name);
    static std::uint32_t flags(const std::string& name);
    static bool isMarked(const std::string& name);

    static void setCode(const std::string& name, std::int16_t code);
    static void setFlags(const std::string& name, std::uint32_t flags);
    static void setMarked(const std::string& name, bool marked);
    static void clearMarks();

    std::size_t entryCount() const { return m_entries.size(); }

  private:
    static PreferenceEntry& entry(const std::string& name);

    std::map<std::string, PreferenceEntry> m_entries;
};

}  // namespace utils
