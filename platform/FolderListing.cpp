// SPDX-License-Identifier: MIT
#include "platform/FolderListing.h"

#include <algorithm>
#include <optional>
#include <set>
#include <utility>

namespace {

using Identity = decltype(FileStamp::identity);

/// The names that files have had and have no more, by what tells the files apart.
class LeftNames {
  public:
    LeftNames(const FolderListing& before, const FolderListing& now) {
        for (const auto& [path, stamp] : before) {
            const auto same = now.find(path);
            if (same == now.end() || same->second.identity != stamp.identity)
                m_names.emplace(stamp.identity, path);
        }
    }

    /// One of the file's; each is given once.
    std::optional<std::string> take(const Identity& identity) {
        const auto name = m_names.find(identity);
        if (name == m_names.end()) return std::nullopt;
        return m_names.extract(name).mapped();
    }

  private:
    std::multimap<Identity, std::string> m_names;
};

}  // namespace

FolderChanges changesBetween(const FolderListing& before, const FolderListing& now) {
    FolderChanges changes;
    LeftNames left(before, now);
    std::set<std::string> moved;
    std::vector<std::string> others;
    for (const auto& [path, stamp] : now) {
        const auto old = before.find(path);
        if (old != before.end() && old->second.identity == stamp.identity) {
            if (old->second.version != stamp.version) changes.changed.push_back(path);
        } else if (auto from = left.take(stamp.identity)) {
            moved.insert(*from);
            changes.renamed.push_back({*std::move(from), path});
        } else {
            others.push_back(path);
        }
    }
    for (std::string& path : others) {
        const bool isInPlace = before.contains(path) && !moved.contains(path);
        (isInPlace ? changes.changed : changes.appeared).push_back(std::move(path));
    }
    std::sort(changes.changed.begin(), changes.changed.end());
    for (const auto& [path, stamp] : before) {
        if (!now.contains(path) && !moved.contains(path)) changes.gone.push_back(path);
    }
    return changes;
}
