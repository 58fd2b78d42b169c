// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <memory>
#include <vector>

#include "languages/Languages.h"

class QTranslator;

/// The program's words in the user's language while it lives, those of rooms without a toolkit
/// (platform/Sentence.h) among them, and the toolkit's, which stand in its standard
/// dialogs; a program with windows lays them out as the language is written. Needs the application object;
/// made before the first window.
///
/// Where there is no such catalogue, or a text is not in it, the words of the sources are shown. What the
/// program reads and writes for itself (scripts, settings, options) is the same in all languages.
class Catalogues {
  public:
    explicit Catalogues(const QStringList& wanted = languagesOfDesktop());
    ~Catalogues();
    Catalogues(const Catalogues&) = delete;
    Catalogues& operator=(const Catalogues&) = delete;

    /// One of offeredLanguages(); empty for English.
    const QString& language() const { return m_language; }

  private:
    void install(const QString& file);

    QString m_language;
    std::vector<std::unique_ptr<QTranslator>> m_translators;
};
