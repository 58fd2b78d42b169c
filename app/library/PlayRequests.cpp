// SPDX-License-Identifier: MIT
#include "app/library/PlayRequests.h"

#include <QStringList>
#include <chrono>
#include <optional>
#include <utility>

#include "app/library/MacroTitles.h"
#include "engine/EngineState.h"
#include "library/MacroLibrary.h"
#include "library/MacroNames.h"
#include "platform/MacroFiles.h"
#include "platform/ScriptingService.h"

namespace {

using Cause = Refusal::Cause;

/// In quotation marks: a name may have blanks and commas.
QString list(const std::vector<std::string>& names) {
    QStringList quoted;
    for (const std::string& name : names) quoted.append(u'"' + shownText(name) + u'"');
    return quoted.join(QStringLiteral(", "));
}

PlayedAt now() { return std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now()); }

}  // namespace

Result<std::string, Refusal> PlayRequests::pathOf(const std::string& name) const {
    auto path = pathOfNamed(m_library, name);
    if (path) return std::move(path).value();
    const auto& [several, near] = path.error();
    if (!several.empty()) {
        return Refusal{Cause::severalMacros,
                       {tr("There are several macros called \"%1\".").arg(shownText(name)).toStdString(),
                        tr("Say which one: %1.").arg(list(several)).toStdString()}};
    }
    const QString hint = near.empty() ? tr("keyrill --list lists all.") : tr("Similar: %1.").arg(list(near));
    return Refusal{
        Cause::noSuchMacro,
        {tr("There is no macro called \"%1\".").arg(shownText(name)).toStdString(), hint.toStdString()}};
}

PlayRequests::Made PlayRequests::ofCurrent(const PlayWish& wish) const {
    const auto& macro = engineState().currentMacro;
    if (!macro) {
        return Refusal{Cause::notNow, {tr("There is no macro to play yet.").toStdString(), {}}};
    }
    PlayRequest request{.script = macro->script(), .options = wish.over({})};
    const std::optional<ScriptFailure> failure = m_scripting.check(request.script);
    if (!failure) return request;
    return Refusal{Cause::notPlayable,
                   {tr("What Play plays cannot be played: its script is wrong in line %1.")
                        .arg(failure->line)
                        .toStdString(),
                    tr("Play in the menu tells more.").toStdString()}};
}

Result<PlayRequest> PlayRequests::ofPath(const std::string& path) {
    auto text = m_library.text(path);
    if (!text) return text.error();
    return PlayRequest{.script = std::move(text).value(),
                       .options = m_library.settings(path).play,
                       .begins = [&library = m_library, path] { library.notePlayed(path, now()); }};
}

PlayRequests::Made PlayRequests::ofMacro(const std::string& name, const PlayWish& wish) {
    const auto found = pathOf(name);
    if (!found) return found.error();
    auto request = ofPath(found.value());
    if (!request) return Refusal{Cause::notPlayable, request.error()};
    request.value().options = wish.over(request.value().options);
    return checked(std::move(request).value(), shownText(name), m_library.fileOf(found.value()));
}

PlayRequests::Made PlayRequests::ofFile(const std::string& path, const PlayWish& wish) const {
    auto text = m_files.read(path);
    if (!text) return Refusal{Cause::notPlayable, text.error()};
    return checked({.script = std::move(text).value(), .options = wish.over({})}, shownText(path), path);
}

// What the compiler says may quote the script, and the answer goes to whoever asks on the bus.
PlayRequests::Made PlayRequests::checked(PlayRequest request, const QString& name,
                                         const std::string& file) const {
    const std::optional<ScriptFailure> failure = m_scripting.check(request.script);
    if (!failure) return request;
    const QString message = tr("\"%1\" cannot be played: its script is wrong in line %2.")
                                .arg(name, QString::number(failure->line));
    const QString hint = tr("keyrill-script check \"%1\" tells more.").arg(shownText(file));
    return Refusal{Cause::notPlayable, {message.toStdString(), hint.toStdString()}};
}
