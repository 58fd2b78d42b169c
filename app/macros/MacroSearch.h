// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

#include "app/macros/MacroListItem.h"

/// Finds macros by their names, groups and contents as somebody types. Case does not matter.
///
/// Why not one pass: contents are many, and each letter has to be answered at once. Names are looked at
/// within setQuery(), contents a part at a time, and a query that goes on only where the shorter one was
/// found.
class MacroSearch {
  public:
    /// In the order of the list. Contents of those that are still there are kept.
    void setItems(const std::vector<MacroListItem>& items);
    /// What is found in it: words, UTF-8 and at most `longestContent` bytes of them.
    static constexpr std::size_t longestContent = std::size_t{1} << 14U;
    void setContent(const std::string& path, const std::string& content);
    void forgetContent(const std::string& path) { m_contents.erase(path); }
    bool hasContent(const std::string& path) const { return m_contents.contains(path); }

    /// Empty finds all.
    void setQuery(const QString& query);
    const QString& query() const { return m_query; }

    /// Looks at some of what has not been looked at; whether that found anything.
    bool searchOn(std::size_t bytes);
    /// Whether there is anything left to look at.
    bool isDone() const { return m_next >= m_items.size() || m_query.isEmpty(); }
    /// Of the item with that index, as far as has been looked.
    bool isFound(std::size_t index) const { return m_query.isEmpty() || m_states[index] == State::found; }

  private:
    enum class State : unsigned char { open, found, missed };
    struct Item {
        std::string path;
        QString words;
    };

    void begin(bool isNarrower);
    State stateByName(std::size_t index) const;

    std::vector<Item> m_items;
    std::unordered_map<std::string, std::size_t> m_indices;
    std::vector<State> m_states;
    std::unordered_map<std::string, std::string> m_contents;
    QString m_query;
    std::string m_bytes;
    std::size_t m_next = 0;
};
