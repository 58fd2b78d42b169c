// SPDX-License-Identifier: MIT
#include "platform/press/SpareSlots.h"

#include <algorithm>

void SpareSlots::reset(const std::vector<std::uint8_t>& keycodes, std::uint8_t levels) {
    m_entries.clear();
    m_index.clear();
    for (const std::uint8_t keycode : keycodes) {
        for (std::uint8_t level = 0; level < levels; ++level) {
            m_entries.push_back({.slot = {keycode, level}, .character = 0, .lastUse = {}});
        }
    }
}

std::optional<SpareSlot> SpareSlots::find(char32_t character) const {
    const auto place = m_index.find(character);
    return place == m_index.end() ? std::nullopt : std::optional(m_entries[place->second].slot);
}

void SpareSlots::markUsed(char32_t character, Clock::Time time) {
    const auto place = m_index.find(character);
    if (place != m_index.end()) m_entries[place->second].lastUse = time;
}

std::vector<SpareBinding> SpareSlots::bindings() const {
    std::vector<SpareBinding> bindings;
    for (const Entry& entry : m_entries) {
        if (entry.character != 0) bindings.push_back({entry.slot, entry.character});
    }
    return bindings;
}

std::optional<Clock::Time> SpareSlots::restUntil() const {
    std::optional<Clock::Time> last;
    for (const Entry& entry : m_entries) {
        if (entry.lastUse) last = std::max(last.value_or(*entry.lastUse), *entry.lastUse);
    }
    return last ? std::optional(*last + rest) : std::nullopt;
}

std::vector<const SpareSlots::Entry*> SpareSlots::candidates(const std::unordered_set<char32_t>& kept) const {
    std::vector<const Entry*> entries;
    for (const Entry& entry : m_entries) {
        if (entry.character == 0 || !kept.contains(entry.character)) entries.push_back(&entry);
    }
    // Free ones that were never used are first, since an empty time is the least.
    std::stable_sort(entries.begin(), entries.end(), [](const Entry* left, const Entry* right) {
        const bool isLeftTaken = left->character != 0;
        const bool isRightTaken = right->character != 0;
        return std::pair(isLeftTaken, left->lastUse) < std::pair(isRightTaken, right->lastUse);
    });
    return entries;
}

SpareSlots::Plan SpareSlots::plan(const std::vector<char32_t>& wanted) const {
    const auto entries = candidates(std::unordered_set(wanted.begin(), wanted.end()));
    Plan plan;
    std::unordered_set<char32_t> planned;
    for (const char32_t character : wanted) {
        if (plan.bindings.size() == entries.size()) break;
        if (m_index.contains(character) || !planned.insert(character).second) continue;
        const Entry& entry = *entries[plan.bindings.size()];
        plan.bindings.push_back({entry.slot, character});
        if (entry.lastUse) {
            const Clock::Time rested = *entry.lastUse + rest;
            plan.notBefore = std::max(plan.notBefore.value_or(rested), rested);
        }
    }
    return plan;
}

void SpareSlots::apply(const Plan& plan) {
    for (const SpareBinding& binding : plan.bindings) {
        const auto entry = std::find_if(m_entries.begin(), m_entries.end(),
                                        [&](const Entry& one) { return one.slot == binding.slot; });
        if (entry == m_entries.end()) continue;
        m_index.erase(entry->character);
        entry->character = binding.character;
        m_index[binding.character] = static_cast<std::size_t>(entry - m_entries.begin());
    }
}
