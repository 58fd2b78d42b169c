// SPDX-License-Identifier: MIT
#include "prefs/PreferenceManager.h"

#include "core/createShared.h"

namespace utils {

boost::shared_ptr<PreferenceManager>& PreferenceManager::instance() {
    static boost::shared_ptr<PreferenceManager> manager;
    if (!manager) manager = createShared<PreferenceManager>();
    return manager;
}

std::int16_t PreferenceManager::code(const std::string& name) { return entry(name).code; }

std::uint32_t PreferenceManager::flags(const std::string& name) { return entry(name).flags; }

bool PreferenceManager::isMarked(const std::string& name) { return entry(name).marked; }

void PreferenceManager::setCode(const std::string& name, std::int16_t code) { entry(name).code = code; }

void PreferenceManager::setFlags(const std::string& name, std::uint32_t flags) { entry(name).flags = flags; }

void PreferenceManager::setMarked(const std::string& name, bool marked) { entry(name).marked = marked; }

void PreferenceManager::clearMarks() {
    for (auto& [name, entry] : instance()->m_entries) entry.marked = false;
}

PreferenceEntry& PreferenceManager::entry(const std::string& name) {
    auto& entries = instance()->m_entries;
    const auto position = entries.lower_bound(name);
    if (position != entries.end() && position->first == name) return position->second;
    return entries.emplace_hint(position, name, PreferenceEntry{})->second;
}

}  // namespace utils
