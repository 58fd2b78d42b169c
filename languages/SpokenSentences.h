// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include "languages/Languages.h"

/// The sentences of rooms without a toolkit (platform/Sentence.h) in the user's language while it lives: for
/// a program that has no application object. One at a time.
class SpokenSentences {
  public:
    explicit SpokenSentences(const QStringList& wanted = languagesOfDesktop());
    ~SpokenSentences();
    SpokenSentences(const SpokenSentences&) = delete;
    SpokenSentences& operator=(const SpokenSentences&) = delete;
};
