// SPDX-License-Identifier: MIT
#include "languages/SpokenSentences.h"

#include <QTranslator>
#include <memory>

#include "platform/Sentence.h"

namespace {

std::unique_ptr<QTranslator> translator;

std::string translated(const char* context, const char* english) {
    const QString words = translator->translate(context, english);
    return words.isEmpty() ? english : words.toStdString();
}

}  // namespace

SpokenSentences::SpokenSentences(const QStringList& wanted) {
    const QString language = chosenLanguage(wanted, offeredLanguages());
    if (language.isEmpty()) return;
    translator = std::make_unique<QTranslator>();
    if (translator->load(catalogueOf(language))) translateSentencesBy(translated);
}

SpokenSentences::~SpokenSentences() {
    translateSentencesBy(nullptr);
    translator.reset();
}
