// SPDX-License-Identifier: MIT
#include "app/languages/Catalogues.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include "platform/Sentence.h"

namespace {

std::string translated(const char* context, const char* english) {
    return QCoreApplication::translate(context, english).toStdString();
}

bool hasWindows() { return qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr; }

}  // namespace

Catalogues::Catalogues(const QStringList& wanted) : m_language(chosenLanguage(wanted, offeredLanguages())) {
    if (m_language.isEmpty()) return;
    install(QLibraryInfo::path(QLibraryInfo::TranslationsPath) + QStringLiteral("/qtbase_") + m_language);
    // The latest is asked first.
    install(catalogueOf(m_language));
    translateSentencesBy(translated);
    // The toolkit takes the direction from its own catalogue, which may not be there.
    if (hasWindows()) QGuiApplication::setLayoutDirection(QLocale(m_language).textDirection());
}

Catalogues::~Catalogues() {
    if (m_language.isEmpty()) return;
    translateSentencesBy(nullptr);
    if (hasWindows()) QGuiApplication::setLayoutDirection(Qt::LayoutDirectionAuto);
}

void Catalogues::install(const QString& file) {
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(file)) return;
    QCoreApplication::installTranslator(translator.get());
    m_translators.push_back(std::move(translator));
}
