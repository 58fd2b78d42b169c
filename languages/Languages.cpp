// SPDX-License-Identifier: MIT
#include "languages/Languages.h"

#include <QDir>
#include <QLocale>
#include <algorithm>

namespace {

const QString folder = QStringLiteral(":/keyrill/languages");
const QString prefix = QStringLiteral("keyrill_");
const QString suffix = QStringLiteral(".qm");

/// "de" of "de_AT.UTF-8".
QString languageOf(const QString& name) {
    const auto* const end =
        std::find_if_not(name.begin(), name.end(), [](QChar sign) { return sign.isLetter(); });
    return name.left(end - name.begin()).toLower();
}

}  // namespace

QString catalogueOf(const QString& language) { return folder + u'/' + prefix + language + suffix; }

QStringList offeredLanguages() {
    // The catalogues are in a library of which nothing else asks for them.
    Q_INIT_RESOURCE(keyrill_languages);
    QStringList languages;
    for (const QString& file : QDir(folder).entryList({prefix + u'*' + suffix}, QDir::Files, QDir::Name))
        languages.append(file.mid(prefix.size()).chopped(suffix.size()));
    return languages;
}

QString chosenLanguage(const QStringList& wanted, const QStringList& offered) {
    for (const QString& name : wanted) {
        QString language = languageOf(name);
        if (language == u"en" || language == u"c" || language == u"posix") return {};
        if (offered.contains(language)) return language;
    }
    return {};
}

QStringList languagesOfDesktop() {
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const QByteArray locale = qgetenv(name);
        if (locale.isEmpty()) continue;
        return locale == "C" || locale == "POSIX" ? QStringList() : QLocale::system().uiLanguages();
    }
    return {};
}
