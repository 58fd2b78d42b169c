// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

/// A sentence for the user, UTF-8, in the language that translateSentencesBy() speaks at the moment when it
/// becomes a text: what a room that knows no toolkit says. The catalogues know it by its context and its
/// English words, which both stand in the source as they are: `sentence("Files", "%1 is a
/// folder.").arg(file)`.
class Sentence {
  public:
    /// Both outlive it.
    Sentence(const char* context, const char* english) : m_context(context), m_english(english) {}

    /// What stands for %1, then for %2, ... %9; each as often as the sentence has it.
    Sentence& arg(std::string_view text) {
        m_arguments.emplace_back(text);
        return *this;
    }

    std::string text() const;
    // NOLINTNEXTLINE(google-explicit-constructor)
    operator std::string() const { return text(); }

  private:
    const char* m_context;
    const char* m_english;
    std::vector<std::string> m_arguments;
};

inline Sentence sentence(const char* context, const char* english) { return {context, english}; }

/// The English words of a sentence that stands in a table, where the catalogues find them:
/// `sentence("Files", row.words)`.
constexpr const char* englishOf(const char* /*context*/, const char* english) { return english; }

/// What says a sentence in another language, with its placeholders; any thread may call it.
using SentenceTranslation = std::string (*)(const char* context, const char* english);

/// From now on; null for English, as at first.
void translateSentencesBy(SentenceTranslation translation);
