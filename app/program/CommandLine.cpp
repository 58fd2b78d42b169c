// SPDX-License-Identifier: MIT
#include "app/program/CommandLine.h"

#include <QCoreApplication>
#include <QStringList>
#include <algorithm>
#include <array>
#include <string_view>

#include "app/program/PlayWords.h"
#include "app/tray/Actions.h"
#include "platform/sessions/Sessions.h"

namespace {

using Wish = CommandLine::Wish;

struct Words {
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

QString shown(const std::string& argument) { return QString::fromStdString(argument); }

Error refusal(const QString& message, const QString& hint) {
    return {message.toStdString(), hint.toStdString()};
}

struct WishOption {
    std::string_view name;
    Wish wish = Wish::start;
    /// Whether "=NAME" may stand behind it.
    bool takesName = false;
};

constexpr std::array wishOptions = {
    WishOption{"--help", Wish::help},       WishOption{"-h", Wish::help},
    WishOption{"--version", Wish::version}, WishOption{"--check", Wish::check},
    WishOption{"--list", Wish::list},       WishOption{"--play", Wish::play, true},
    WishOption{"--show", Wish::show, true}};

bool takeWish(CommandLine& line, std::string_view name, const std::optional<std::string>& value) {
    const auto* const option = std::find_if(wishOptions.begin(), wishOptions.end(),
                                            [name](const WishOption& row) { return row.name == name; });
    if (option == wishOptions.end() || (value && !option->takesName)) return false;
    const bool isFirst = line.wish == Wish::start || line.wish == option->wish;
    if (!isFirst) line.others.emplace_back(name);
    line.wish = option->wish;
    if (value) line.files.push_back(*value);
    return true;
}

/// Where the value of an option goes that has to have one; null for another option.
std::optional<std::string>* valueOf(CommandLine& line, std::string_view name) {
    if (name == "--action") return &line.action;
    if (name == "--hot-key") return &line.hotKey;
    if (name == "--times") return &line.times;
    return name == "--speed" ? &line.speed : nullptr;
}

/// `next` is the argument behind it, null for none; true if that is its value.
bool takeOption(CommandLine& line, const std::string& option, const std::string* next) {
    const std::size_t sign = option.find('=');
    const std::string name = option.substr(0, sign);
    std::optional<std::string> value;
    if (sign != std::string::npos) value = option.substr(sign + 1);
    const bool takesNext = !value && next != nullptr;
    if (std::optional<std::string>* const place = valueOf(line, name)) {
        *place = takesNext ? *next : value.value_or("");
        return takesNext;
    }
    if (name == "--session" && (takesNext || !value.value_or("").empty())) {
        line.session = takesNext ? *next : *value;
        return takesNext;
    }
    if (!takeWish(line, name, value)) line.unknown.push_back(option);
    return false;
}

}  // namespace

CommandLine readCommandLine(const std::vector<std::string>& arguments) {
    CommandLine line;
    bool isBehindOptions = false;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (isBehindOptions || argument.size() < 2 || argument.front() != '-') {
            line.files.push_back(argument);
        } else if (argument == "--") {
            isBehindOptions = true;
        } else if (takeOption(line, argument, i + 1 < arguments.size() ? &arguments[i + 1] : nullptr)) {
            ++i;
        }
    }
    return line;
}

Result<void> checkOptions(const CommandLine& line) {
    const bool isBesideAction = line.action && line.wish != Wish::start;
    if (!line.others.empty() || isBesideAction) {
        const std::string other = isBesideAction ? "--action" : line.others.front();
        return refusal(Words::tr("\"%1\" is one thing too many.").arg(shown(other)),
                       Words::tr("Call keyrill once for each."));
    }
    if (line.wish != Wish::play && (line.times || line.speed)) {
        return refusal(Words::tr("--times and --speed say how --play plays."),
                       Words::tr("keyrill --help tells more."));
    }
    const bool isHotKeyAlone = line.hotKey && !line.action && line.wish != Wish::play;
    if (line.unknown.empty() && !isHotKeyAlone) return {};
    const std::string option = line.unknown.empty() ? "--hot-key" : line.unknown.front();
    return refusal(Words::tr("There is no option \"%1\".").arg(shown(option)),
                   Words::tr("keyrill --help lists them."));
}

Result<void> checkOwnOptions(CommandLine line) {
    std::erase_if(line.unknown, [](const std::string& option) { return !option.starts_with("--"); });
    return checkOptions(line);
}

Result<void> checkAction(const CommandLine& line) {
    if (actionNamed(*line.action) == nullptr) {
        return refusal(Words::tr("There is no action \"%1\".").arg(shown(*line.action)),
                       Words::tr("Choose one of these: %1.").arg(shown(actionNames())));
    }
    if (!line.files.empty()) {
        return refusal(
            Words::tr("An action takes no file, and \"%1\" was given.").arg(shown(line.files.front())),
            Words::tr("Load it first: keyrill FILE."));
    }
    return {};
}

Result<void> checkMacroCall(const CommandLine& line) {
    auto known = checkOptions(line);
    if (!known) return known;
    const std::vector<std::string>& names = line.files;
    const std::size_t most = line.wish == Wish::list ? 0 : 1;
    if (names.size() > most) {
        return refusal(Words::tr("\"%1\" is too much.").arg(shown(names[most])),
                       most == 0 ? Words::tr("--list takes no name.")
                                 : Words::tr("A name with blanks is put in quotation marks: \"%1\".")
                                       .arg(shown(names[0] + " " + names[1])));
    }
    if (!names.empty() && names.front().empty()) return noName();
    return {};
}

std::string usage(std::span<const SessionKind> kinds) {
    QStringList names;
    for (const SessionKind& kind : kinds)
        names.append(QString::fromUtf8(kind.name.data(), static_cast<qsizetype>(kind.name.size())));
    //: Options, and what stands in capital letters, stay as they are where the program takes them as they
    //: are.
    return Words::
        tr("Usage: keyrill [--session=NAME] [--] [FILE...]   start, or load macros into the one that runs\n"
           "       keyrill [--session=NAME] --action=ACTION   ask the one that runs to act; starts it if "
           "need be\n"
           "       keyrill [--session=NAME] --play [MACRO|FILE] [--times=N|until-stopped] [--speed=X]\n"
           "                                          ask it to play one macro of the macro folder, or a "
           "file\n"
           "       keyrill [--session=NAME] --show [MACRO]   ask it to show the window of the macros\n"
           "       keyrill --list   print the names of the macros in the macro folder\n"
           "       keyrill [--session=NAME] --check   print what works in this session, and what to do\n"
           "       keyrill -h | --help | --version\n"
           "ACTION is one of these: %1.\n"
           "MACRO is a name that --list prints, with its group or without; without MACRO and FILE --play "
           "plays what\n"
           "Play plays. A FILE without MACRO of that name, or one that begins with / or ./ is played as it "
           "is. How often\n"
           "and how fast (0.25 to 4) is what belongs to the macro, unless it is given. --show chooses MACRO "
           "in the\n"
           "window. Of --play, --show and --list the exit status is 0 if it was done, 1 if not, 2 if it was "
           "not\n"
           "well put; standard error tells why.\n"
           "NAME is the kind of desktop session; without it the program finds out itself. There are: %2\n")
            .arg(shown(actionNames()), names.join(u' '))
            .toStdString();
}
