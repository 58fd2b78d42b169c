// SPDX-License-Identifier: MIT
#pragma once

#include <concepts>
#include <iosfwd>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// What says a sentence in another language, with its placeholders; any thread may call it.
using SentenceTranslation = std::string (*)(const char* context, const char* english);

/// A sentence for the user, UTF-8, in the language that translateSentencesBy() speaks at the moment when it
/// becomes a text: what a room that knows no toolkit says. The catalogues know it by its context and its
/// English words, which both stand in the source as they are: `sentence("Files", "%1 is a
/// folder.").arg(file)`.
class Sentence {
  public:
    /// Says nothing.
    Sentence() = default;
    /// Both outlive it.
    Sentence(const char* context, const char* english) : m_context(context), m_english(english) {}
    /// Words that are the same in all languages: names, values, what others have said.
    template <std::convertible_to<std::string_view> Words>
    // NOLINTNEXTLINE(google-explicit-constructor,bugprone-forwarding-reference-overload)
    Sentence(Words&& words) : m_words(std::forward<Words>(words)) {}
    Sentence(const Sentence& other);
    Sentence(Sentence&& other) noexcept;
    Sentence& operator=(const Sentence& other);
    Sentence& operator=(Sentence&& other) noexcept;
    ~Sentence();

    /// What stands for %1, then for %2, ... %9; each as often as the sentence has it. A part that is a
    /// sentence, too, is said in the language of the whole.
    Sentence& arg(Sentence part) &;
    Sentence&& arg(Sentence part) && { return std::move(arg(std::move(part))); }

    std::string text() const;
    /// Whatever is spoken: for what reads and compares it and is no person.
    std::string english() const;
    bool empty() const { return m_english == nullptr ? m_words.empty() : *m_english == '\0'; }
    // NOLINTNEXTLINE(google-explicit-constructor)
    operator std::string() const { return text(); }

    /// Whether they say the same.
    friend bool operator==(const Sentence& one, const Sentence& other) { return one.text() == other.text(); }

  private:
    std::string saidBy(SentenceTranslation translation) const;

    const char* m_context = nullptr;
    const char* m_english = nullptr;  ///< null where the words are the same in all languages
    std::string m_words;
    std::vector<Sentence> m_parts;
};

std::ostream& operator<<(std::ostream& out, const Sentence& sentence);

inline Sentence sentence(const char* context, const char* english) { return {context, english}; }

/// The English words of a sentence that stands in a table, where the catalogues find them:
/// `sentence("Files", row.words)`.
constexpr const char* englishOf(const char* /*context*/, const char* english) { return english; }

/// From now on; null for English, as at first.
void translateSentencesBy(SentenceTranslation translation);
