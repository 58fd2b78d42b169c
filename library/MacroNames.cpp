// SPDX-License-Identifier: MIT
#include "library/MacroNames.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <tuple>

#include "library/MacroLibrary.h"
#include "platform/EditDistance.h"

namespace {

constexpr std::size_t mostNear = 3;
/// One slip in so many letters.
constexpr std::size_t lettersASlip = 3;
/// What is part of more names than it tells apart.
constexpr std::size_t shortestPart = 3;
constexpr std::size_t longestCompared = 100;
/// It can hardly be meant.
constexpr std::size_t tooFar = 1000;

std::string lowered(std::string_view text) {
    std::string low(text);
    std::transform(low.begin(), low.end(), low.begin(), [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    });
    return low;
}

/// How far a name is from what was written, both in small letters.
std::size_t distanceOf(const std::string& name, const std::string& written) {
    if (name.size() > longestCompared || written.size() > longestCompared) return tooFar;
    const std::size_t forgiven = std::max<std::size_t>(1, written.size() / lettersASlip);
    const std::size_t apart = editDistance(name, written);
    if (apart <= forgiven) return apart;
    const bool isPart = written.size() >= shortestPart && name.find(written) != std::string::npos;
    return isPart ? forgiven + 1 : tooFar;
}

std::vector<std::string> namesNear(const std::vector<LibraryEntry>& entries, std::string_view name) {
    const std::string written =
        lowered(name.ends_with(macroEnding) ? name.substr(0, name.size() - macroEnding.size()) : name);
    const std::string writtenName = written.substr(written.rfind('/') + 1);
    std::vector<std::tuple<std::size_t, std::string>> near;
    for (const LibraryEntry& entry : entries) {
        const std::string own = lowered(entry.name());
        const std::size_t distance =
            std::min({distanceOf(lowered(longName(entry)), written), distanceOf(own, written),
                      // In another group.
                      distanceOf(own, writtenName) + 1});
        if (distance < tooFar) near.emplace_back(distance, longName(entry));
    }
    std::sort(near.begin(), near.end());
    std::vector<std::string> names;
    for (const auto& [distance, nearName] : near) {
        if (names.size() == mostNear) break;
        names.push_back(nearName);
    }
    return names;
}

}  // namespace

std::string_view longName(const LibraryEntry& entry) {
    return std::string_view(entry.path).substr(0, entry.path.size() - macroEnding.size());
}

Result<std::string, UnknownName> pathOfNamed(const MacroLibrary& library, std::string_view name) {
    if (const LibraryEntry* const entry = library.find(name)) return entry->path;
    const std::vector<LibraryEntry> named = library.named(name);
    std::vector<LibraryEntry> exact;
    std::copy_if(named.begin(), named.end(), std::back_inserter(exact),
                 [name](const LibraryEntry& entry) { return longName(entry) == name; });
    const std::vector<LibraryEntry>& found = exact.empty() ? named : exact;
    if (found.size() == 1) return found.front().path;
    UnknownName unknown;
    for (const LibraryEntry& entry : found) unknown.several.emplace_back(longName(entry));
    if (found.empty()) unknown.near = namesNear(library.entries(), name);
    return unknown;
}
