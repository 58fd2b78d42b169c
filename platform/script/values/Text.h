// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/script/values/CharacterIndex.h"
#include "platform/script/values/GrowingBytes.h"
#include "platform/script/values/Shared.h"

namespace script {

/// Immutable UTF-8 text, shared by its owners.
///
/// A text that is made longer again and again shares its bytes with what it becomes, so that it costs what is
/// put behind it and not all of it each time.
class Text {
  public:
    explicit Text(std::string text);

    /// As long as the text, or one that shares its bytes, lives.
    const std::string_view& str() const { return m_body->text; }
    /// Whether all characters are single bytes, so that they are counted at once.
    bool isAscii() const { return m_body->isAscii; }
    /// The text and another one behind it, in UTF-8.
    Text with(std::string_view addition) const;
    bool sharesBytesOf(const Text& other) const { return str().data() == other.str().data(); }

    std::size_t characterCount() const;
    /// The byte at which a character begins, from 0; the size for the one behind the last.
    std::size_t offsetOf(std::size_t character) const;

  private:
    struct Body : Counted {
        explicit Body(std::string content);
        Body(Shared<GrowingBytes> bytes, std::size_t size, bool ascii);
        std::string plain;                          ///< empty where the bytes are shared
        std::optional<Shared<GrowingBytes>> bytes;  ///< the text is their beginning
        std::string_view text;
        bool isAscii;
        HeldMemory memory;
        std::unique_ptr<CharacterIndex> index;  ///< made when it is asked for
    };
    explicit Text(Shared<Body> body) : m_body(std::move(body)) {}
    const CharacterIndex& index() const;
    Text moved(std::string_view addition, bool ascii) const;

    Shared<Body> m_body;
};

}  // namespace script
