// SPDX-License-Identifier: MIT
#include "library/MacroLibrary.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <utility>

#include "platform/Encoding.h"
#include "platform/MacroFiles.h"
#include "platform/RecordStore.h"
#include "platform/Utf8.h"

namespace {

bool isBefore(const LibraryEntry& one, const LibraryEntry& other) { return one.path < other.path; }

/// The path or an end of it behind a stroke, with or without the ending.
bool hasName(const std::string& path, std::string_view name) {
    const auto isIt = [&path, name](std::size_t begin) {
        const std::string_view rest = std::string_view(path).substr(begin);
        return rest == name || rest.substr(0, rest.size() - macroEnding.size()) == name;
    };
    return isIt(0) || isIt(path.rfind('/') + 1);
}

}  // namespace

MacroLibrary::MacroLibrary(FolderFollower& follower, RecordStore& records, MacroFiles& files)
    : m_follower(follower), m_records(records), m_files(files) {}

void MacroLibrary::open() {
    m_folder = m_files.folder();
    m_follower.follow(m_folder, std::string(macroEnding),
                      [this](const FolderChanges& changes) { follow(changes); });
}

const LibraryEntry* MacroLibrary::find(std::string_view path) const {
    const auto entry = std::lower_bound(
        m_entries.begin(), m_entries.end(), path,
        [](const LibraryEntry& known, std::string_view wanted) { return known.path < wanted; });
    return entry != m_entries.end() && entry->path == path ? &*entry : nullptr;
}

std::vector<LibraryEntry> MacroLibrary::named(std::string_view name) const {
    std::vector<LibraryEntry> found;
    std::copy_if(m_entries.begin(), m_entries.end(), std::back_inserter(found),
                 [name](const LibraryEntry& entry) {
                     return hasName(entry.path, name) ||
                            (invalidUtf8(entry.path) && hasName(decodedText(entry.path), name));
                 });
    return found;
}

std::string MacroLibrary::fileOf(std::string_view path) const { return m_folder + "/" + std::string(path); }

Result<std::string> MacroLibrary::text(std::string_view path) const { return m_files.read(fileOf(path)); }

MacroSettings MacroLibrary::settings(const std::string& path) const {
    const auto record = m_records.records().find(path);
    return record == m_records.records().end() ? MacroSettings() : settingsFrom(record->second);
}

void MacroLibrary::setSettings(const std::string& path, const MacroSettings& settings) {
    if (this->settings(path) == settings) return;
    const auto known = m_records.records().find(path);
    Record record = known == m_records.records().end() ? Record() : known->second;
    putSettings(record, settings);
    m_records.set(path, record);
    tell({.settings = {path}});
}

void MacroLibrary::notePlayed(const std::string& path, PlayedAt when) {
    MacroSettings played = settings(path);
    played.lastPlayed = when;
    setSettings(path, played);
}

std::vector<std::string> MacroLibrary::pathsWithHotKeys() const {
    std::vector<std::string> paths;
    for (const auto& [path, record] : m_records.records()) {
        if (settingsFrom(record).hasHotKey()) paths.push_back(path);
    }
    return paths;
}

std::optional<Error> MacroLibrary::takeFault() { return m_records.takeFault(); }

void MacroLibrary::addListener(LibraryListener& listener) { m_listeners.push_back(&listener); }

void MacroLibrary::removeListener(LibraryListener& listener) {
    std::replace(m_listeners.begin(), m_listeners.end(), &listener, static_cast<LibraryListener*>(nullptr));
}

void MacroLibrary::follow(const FolderChanges& changes) {
    replaceEntries(changes);
    moveSettings(changes.renamed);
    const bool hasOtherFaults = std::exchange(m_faults, changes.faults) != changes.faults;
    tell({.isFirst = !std::exchange(m_isRead, true),
          .appeared = changes.appeared,
          .gone = changes.gone,
          .renamed = changes.renamed,
          .changed = changes.changed,
          .hasOtherFaults = hasOtherFaults});
}

// A name may be left by one macro and taken by another at the same time.
void MacroLibrary::replaceEntries(const FolderChanges& changes) {
    std::vector<std::string> left = changes.gone;
    std::vector<LibraryEntry> come;
    for (const FolderChanges::Rename& rename : changes.renamed) {
        left.push_back(rename.from);
        left.push_back(rename.to);
        come.push_back({rename.to});
    }
    for (const std::string& path : changes.appeared) come.push_back({path});
    std::sort(left.begin(), left.end());
    std::sort(come.begin(), come.end(), isBefore);
    std::erase_if(m_entries, [&left](const LibraryEntry& entry) {
        return std::binary_search(left.begin(), left.end(), entry.path);
    });
    const auto middle = static_cast<std::ptrdiff_t>(m_entries.size());
    std::move(come.begin(), come.end(), std::back_inserter(m_entries));
    std::inplace_merge(m_entries.begin(), m_entries.begin() + middle, m_entries.end(), isBefore);
}

void MacroLibrary::moveSettings(const std::vector<FolderChanges::Rename>& renamed) {
    std::map<std::string, Record> moved;
    for (const FolderChanges::Rename& rename : renamed) {
        const auto record = m_records.records().find(rename.from);
        if (record == m_records.records().end()) continue;
        moved[rename.to] = record->second;
    }
    for (const FolderChanges::Rename& rename : renamed) {
        if (m_records.records().contains(rename.from)) m_records.set(rename.from, {});
    }
    for (const auto& [path, record] : moved) m_records.set(path, record);
}

void MacroLibrary::tell(LibraryChanges changes) {
    m_untold.push_back(std::move(changes));
    if (std::exchange(m_isTelling, true)) return;
    while (!m_untold.empty()) {
        const LibraryChanges next = std::move(m_untold.front());
        m_untold.pop_front();
        // Who is added meanwhile hears of the next one.
        const std::size_t count = m_listeners.size();
        for (std::size_t i = 0; i < count; ++i) {
            if (m_listeners[i] != nullptr) m_listeners[i]->libraryChanged(next);
        }
    }
    std::erase(m_listeners, nullptr);
    m_isTelling = false;
}
