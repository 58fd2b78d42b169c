// SPDX-License-Identifier: MIT
#include "app/macros/MacroSearch.h"

#include <algorithm>
#include <string_view>

namespace {

QString folded(const QString& text) { return text.toCaseFolded(); }

std::string foldedBytes(const std::string& text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).toCaseFolded().toStdString();
}

}  // namespace

void MacroSearch::setItems(const std::vector<MacroListItem>& items) {
    m_items.clear();
    m_indices.clear();
    m_items.reserve(items.size());
    std::unordered_map<std::string, std::string> contents;
    for (const MacroListItem& item : items) {
        m_indices.emplace(item.path, m_items.size());
        m_items.push_back({item.path, folded(item.group + u'/' + item.name)});
        if (auto known = m_contents.extract(item.path)) contents.insert(std::move(known));
    }
    m_contents = std::move(contents);
    begin(false);
}

void MacroSearch::setContent(const std::string& path, const std::string& content) {
    m_contents[path] = foldedBytes(content.substr(0, longestContent));
    const auto found = m_indices.find(path);
    if (found == m_indices.end()) return;
    const std::size_t index = found->second;
    m_states[index] = stateByName(index);
    m_next = std::min(m_next, index);
}

MacroSearch::State MacroSearch::stateByName(std::size_t index) const {
    return m_items[index].words.contains(m_query) ? State::found : State::open;
}

void MacroSearch::setQuery(const QString& query) {
    const QString wanted = folded(query.trimmed());
    const bool isNarrower = !m_query.isEmpty() && wanted.contains(m_query);
    m_query = wanted;
    m_bytes = wanted.toStdString();
    begin(isNarrower);
}

void MacroSearch::begin(bool isNarrower) {
    if (!isNarrower || m_states.size() != m_items.size()) m_states.assign(m_items.size(), State::open);
    for (std::size_t index = 0; index < m_items.size(); ++index) {
        // What the shorter query has missed this one misses too.
        if (m_states[index] == State::missed) continue;
        m_states[index] = stateByName(index);
    }
    m_next = 0;
}

bool MacroSearch::searchOn(std::size_t bytes) {
    bool hasFound = false;
    for (std::size_t looked = 0; !isDone() && looked < bytes; ++m_next) {
        if (m_states[m_next] != State::open) continue;
        const auto content = m_contents.find(m_items[m_next].path);
        // It may be read later.
        if (content == m_contents.end()) continue;
        looked += content->second.size() + 1;
        const bool isFound = content->second.find(m_bytes) != std::string::npos;
        m_states[m_next] = isFound ? State::found : State::missed;
        hasFound = hasFound || isFound;
    }
    return hasFound;
}
