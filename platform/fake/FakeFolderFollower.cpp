// SPDX-License-Identifier: MIT
#include "platform/fake/FakeFolderFollower.h"

#include <algorithm>
#include <utility>

namespace {

char small(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool endsWith(const std::string& path, const std::string& ending) {
    return path.size() >= ending.size() &&
           std::equal(ending.rbegin(), ending.rend(), path.rbegin(),
                      [](char one, char other) { return small(one) == small(other); });
}

}  // namespace

void FakeFolderFollower::follow(const std::string& folder, const std::string& ending, Observer observer) {
    m_folder = folder;
    m_ending = ending;
    m_observer = std::move(observer);
    m_told.clear();
    m_toldFaults.clear();
    m_hasTold = false;
}

std::string FakeFolderFollower::absolute(const std::string& path) const { return m_folder + "/" + path; }

void FakeFolderFollower::userWrites(const std::string& path, const std::string& text) {
    m_files.put(absolute(path), text);
}

void FakeFolderFollower::userReplaces(const std::string& path, const std::string& text) {
    m_known.erase(absolute(path));
    userWrites(path, text);
}

void FakeFolderFollower::userRenames(const std::string& from, const std::string& to) {
    // What was written and not told of before is known from here on.
    listing();
    for (const auto& [file, moved] : m_files.rename(absolute(from), absolute(to))) {
        const auto known = m_known.extract(file);
        if (!known.empty()) m_known.insert_or_assign(moved, known.mapped());
    }
}

void FakeFolderFollower::userRemoves(const std::string& path) { m_files.remove(absolute(path)); }

bool FakeFolderFollower::isFollowed(const std::string& path) const {
    const bool isHidden = path.starts_with('.') || path.find("/.") != std::string::npos;
    return !isHidden && endsWith(path, m_ending);
}

FolderListing FakeFolderFollower::listing() {
    FolderListing listing;
    std::map<std::string, Known> known;
    const std::string beginning = m_folder + "/";
    for (const auto& [file, text] : m_files.files()) {
        if (!file.starts_with(beginning)) continue;
        const auto before = m_known.find(file);
        Known now =
            before == m_known.end() ? Known{.number = ++m_last, .version = 0, .text = text} : before->second;
        if (now.text != text) now = {.number = now.number, .version = now.version + 1, .text = text};
        const std::string path = file.substr(beginning.size());
        if (isFollowed(path)) listing[path] = {.identity = {now.number}, .version = {now.version}};
        known[file] = std::move(now);
    }
    m_known = std::move(known);
    return listing;
}

void FakeFolderFollower::deliver() {
    if (!m_observer) return;
    FolderListing now = listing();
    FolderChanges changes = changesBetween(m_told, now);
    if (m_hasTold && changes == FolderChanges{} && m_faults == m_toldFaults) return;
    changes.faults = m_faults;
    m_hasTold = true;
    m_told = std::move(now);
    m_toldFaults = m_faults;
    m_observer(changes);
}
