// SPDX-License-Identifier: MIT
#include "app/program/MacroList.h"

#include <poll.h>

#include <QCoreApplication>
#include <QFile>
#include <QString>
#include <algorithm>
#include <chrono>
#include <optional>
#include <string_view>

#include "app/library/MacroTitles.h"
#include "library/MacroNames.h"
#include "platform/Utf8.h"
#include "platform/linux/ConfigFolders.h"
#include "platform/linux/LocalFolderFollower.h"
#include "platform/linux/LocalMacroFiles.h"

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(MacroList)
};

/// It may lie on another machine.
constexpr std::chrono::seconds patience{5};

struct Listed {
    explicit Listed(const LibraryEntry& entry)
        : path(entry.path),
          longName(::longName(entry)),
          group(shownText(entry.group())),
          name(shownText(entry.name())) {}

    std::string path;
    std::string longName;
    QString group;
    QString name;
};

/// A terminal does nothing of what the name says. Bytes that are no characters stay: the name is good to be
/// given to --play.
std::string lineOf(const std::string& name) {
    std::string line;
    for (std::string_view rest = name; !rest.empty();) {
        const Utf8Character character = firstCharacter(rest);
        if (character.code && isControlCode(*character.code)) {
            line += '?';
        } else {
            line += rest.substr(0, character.length);
        }
        rest.remove_prefix(character.length);
    }
    return line + '\n';
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
            return Error{Words::tr("The folder %1 does not answer.")
                             .arg(QFile::decodeName(files.folder().c_str()))
                             .toStdString(),
                         ""};
        }
        follower.dispatch();
    }
    return *std::move(list);
}

std::string linesOf(const std::vector<LibraryEntry>& entries) {
    std::vector<Listed> listed(entries.begin(), entries.end());
    std::sort(listed.begin(), listed.end(), isListedBefore<Listed>);
    std::string lines;
    for (const Listed& each : listed) lines += lineOf(each.longName);
    return lines;
}
