// SPDX-License-Identifier: MIT
#include "app/languages/Catalogues.h"

#include <QCoreApplication>
#include <QDir>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <algorithm>

#include "platform/Sentence.h"

namespace {

const QString ownFolder = QStringLiteral(":/keyrill/languages");
const QString ownPrefix = QStringLiteral("keyrill_");
const QString toolkitPrefix = QStringLiteral("qtbase_");
const QString suffix = QStringLiteral(".qm");

/// "de" of "de_AT.UTF-8".
QString languageOf(const QString& name) {
    const auto* const end =
        std::find_if_not(name.begin(), name.end(), [](QChar sign) { return sign.isLetter(); });
    return name.left(end - name.begin()).toLower();
}

std::string translated(const char* context, const char* english) {
    return QCoreApplication::translate(context, english).toStdString();
}

bool hasWindows() { return qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr; }

}  // namespace

QStringList offeredLanguages() {
    // The catalogues are in a library of which nothing else asks for them.
    Q_INIT_RESOURCE(keyrill_languages);
    QStringList languages;
    for (const QString& file :
         QDir(ownFolder).entryList({ownPrefix + u'*' + suffix}, QDir::Files, QDir::Name))
        languages.append(file.mid(ownPrefix.size()).chopped(suffix.size()));
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

Catalogues::Catalogues(const QStringList& wanted) : m_language(chosenLanguage(wanted, offeredLanguages())) {
    if (m_language.isEmpty()) return;
    install(toolkitPrefix, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    // The latest is asked first.
    install(ownPrefix, ownFolder);
    translateSentencesBy(translated);
    // The toolkit takes the direction from its own catalogue, which may not be there.
    if (hasWindows()) QGuiApplication::setLayoutDirection(QLocale(m_language).textDirection());
}

Catalogues::~Catalogues() {
    if (m_language.isEmpty()) return;
    translateSentencesBy(nullptr);
    if (hasWindows()) QGuiApplication::setLayoutDirection(Qt::LayoutDirectionAuto);
}

void Catalogues::install(const QString& name, const QString& folder) {
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(name + m_language, folder)) return;
    QCoreApplication::installTranslator(translator.get());
    m_translators.push_back(std::move(translator));
}
