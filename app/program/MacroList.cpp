// SPDX-License-Identifier: MIT
#include "app/program/MacroList.h"

#include <poll.h>

#include <QString>
#include <algorithm>
#include <chrono>
#include <optional>
#include <tuple>
#include <utility>

#include "library/MacroNames.h"
#include "platform/Encoding.h"
#include "platform/linux/ConfigFolders.h"
#include "platform/linux/LocalFolderFollower.h"
#include "platform/linux/LocalMacroFiles.h"

namespace {

/// It may lie on another machine.
constexpr std::chrono::seconds patience{5};

struct Shown {
    explicit Shown(LibraryEntry listed)
        : entry(std::move(listed)), group(shown(entry.group())), name(shown(entry.name())) {}

    static QString shown(std::string_view bytes) {
        return QString::fromStdString(decodedText(std::string(bytes)));
    }

    LibraryEntry entry;
    QString group;
    QString name;
};

bool isBefore(const Shown& one, const Shown& other) {
    const int groups = QString::compare(one.group, other.group, Qt::CaseInsensitive);
    const int names = QString::compare(one.name, other.name, Qt::CaseInsensitive);
    return std::tie(groups, names, one.entry.path) < std::make_tuple(0, 0, other.entry.path);
}

std::string lineOf(std::string name) {
    constexpr char del = 0x7F;
    std::replace_if(
        name.begin(), name.end(), [](char letter) { return (letter >= 0 && letter < ' ') || letter == del; },
        '?');
    return name + '\n';
}

}  // namespace

Result<MacroList> readMacroList() {
    const LocalMacroFiles files(homeOfProcess(), userDataFolder(environmentOfProcess(), homeOfProcess()));
    std::optional<MacroList> list;
    LocalFolderFollower follower;
    follower.follow(files.folder(), std::string(macroEnding), [&list](const FolderChanges& changes) {
        list = MacroList{.faults = changes.faults};
        for (const std::string& path : changes.appeared) list->entries.push_back({path});
    });
    const auto deadline = std::chrono::steady_clock::now() + patience;
    while (!list) {
        const auto left =
            std::chrono::ceil<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
        pollfd told{.fd = follower.fileDescriptor(), .events = POLLIN, .revents = 0};
        if (left.count() <= 0 || poll(&told, 1, static_cast<int>(left.count())) == 0) {
            return Error{"The folder " + files.folder() + " does not answer.", ""};
        }
        follower.dispatch();
    }
    return *std::move(list);
}

std::string linesOf(std::vector<LibraryEntry> entries) {
    std::vector<Shown> shown;
    shown.reserve(entries.size());
    for (LibraryEntry& entry : entries) shown.emplace_back(std::move(entry));
    std::sort(shown.begin(), shown.end(), isBefore);
    std::string lines;
    for (const Shown& each : shown) lines += lineOf(std::string(longName(each.entry)));
    return lines;
}
