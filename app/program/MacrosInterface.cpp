// SPDX-License-Identifier: MIT
#include "app/program/MacrosInterface.h"

#include <QUrl>
#include <utility>

#include "app/program/ApplicationObject.h"
#include "app/program/PlayWords.h"

namespace {

using Of = PlayErrand::Of;

Result<PlayWish> wishOf(const QVariantMap& options) {
    for (auto option = options.begin(); option != options.end(); ++option) {
        if (option.key() == QLatin1String("times") || option.key() == QLatin1String("speed")) continue;
        return Error{MacrosInterface::tr("There is no option \"%1\".").arg(option.key()).toStdString(),
                     MacrosInterface::tr("There are: %1.").arg(QStringLiteral("times, speed")).toStdString()};
    }
    const auto textOf = [&options](const QString& name) -> std::optional<std::string> {
        const auto option = options.find(name);
        if (option == options.end()) return std::nullopt;
        return option->toString().toStdString();
    };
    return playWish(textOf(QStringLiteral("times")), textOf(QStringLiteral("speed")));
}

}  // namespace

MacrosInterface::MacrosInterface(ApplicationObject& object)
    : QDBusAbstractAdaptor(&object), m_object(object) {}

void MacrosInterface::Play(const QVariantMap& options, const QDBusMessage& call) {
    play({.of = Of::current}, options, call);
}

void MacrosInterface::PlayMacro(const QString& name, const QVariantMap& options, const QDBusMessage& call) {
    if (name.isEmpty()) return m_object.refuse(noName(), call);
    play({.of = Of::macro, .name = name.toStdString()}, options, call);
}

void MacrosInterface::PlayFile(const QString& uri, const QVariantMap& options, const QDBusMessage& call) {
    const QUrl url(uri, QUrl::StrictMode);
    if (!url.isLocalFile()) {
        return m_object.refuse({tr("\"%1\" is no file of this machine.").arg(uri).toStdString(),
                                tr("It begins with file:///.").toStdString()},
                               call);
    }
    play({.of = Of::file, .name = url.toLocalFile().toStdString()}, options, call);
}

void MacrosInterface::Show(const QString& name, const QDBusMessage& call) {
    m_object.ask(ShowErrand{name.toStdString()}, call);
}

void MacrosInterface::play(PlayErrand errand, const QVariantMap& options, const QDBusMessage& call) {
    const auto wish = wishOf(options);
    if (!wish) return m_object.refuse(wish.error(), call);
    errand.wish = wish.value();
    m_object.ask(std::move(errand), call);
}
