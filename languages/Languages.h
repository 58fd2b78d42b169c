// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

/// Where a QTranslator finds the catalogue of an offered language: ":/keyrill/languages/keyrill_de.qm".
QString catalogueOf(const QString& language);

/// The languages that the program has words in beside that of its sources, which is English: "de", "fr", ...;
/// sorted.
QStringList offeredLanguages();

/// The first of `wanted` that is spoken; empty for English, or if none is. `wanted` holds names as "de",
/// "de-AT" or "de_AT.UTF-8", the best first; "C" and "POSIX" are English.
QString chosenLanguage(const QStringList& wanted, const QStringList& offered);

/// The languages that the user has chosen in the desktop's settings, the best first: LANGUAGE, else LC_ALL,
/// LC_MESSAGES or LANG; none where these say "C" or nothing, whatever LANGUAGE is ("The LANGUAGE variable" in
/// GNU gettext's manual).
QStringList languagesOfDesktop();
