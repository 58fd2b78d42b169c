// SPDX-License-Identifier: MIT
#include "platform/script/values/Text.h"

#include <algorithm>
#include <utility>

namespace script {
namespace {

bool isAsciiText(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return (static_cast<unsigned char>(c) & 0x80U) == 0; });
}

}  // namespace

Text::Body::Body(std::string content)
    : plain(std::move(content)),
      text(plain),
      isAscii(isAsciiText(text)),
      memory(text.size() + sizeof(Body)) {}

Text::Body::Body(Shared<GrowingBytes> grown, std::size_t size, bool ascii)
    : bytes(std::move(grown)), text((*bytes)->all().substr(0, size)), isAscii(ascii), memory(sizeof(Body)) {}

Text::Text(std::string text) : m_body(makeShared<Body>(std::move(text))) {}

Text Text::with(std::string_view addition) const {
    constexpr std::size_t shortText = 256;
    const std::size_t size = str().size() + addition.size();
    if (size < shortText) {
        std::string both;
        both.reserve(size);
        return Text(both.append(str()).append(addition));
    }
    const bool ascii = isAscii() && isAsciiText(addition);
    const auto& bytes = m_body->bytes;
    const bool isLast = bytes && (*bytes)->size() == str().size();
    if (!isLast || !(*bytes)->hasRoomFor(addition.size())) return moved(addition, ascii);
    (*bytes)->append(addition);
    Text longer(makeShared<Body>(*bytes, size, ascii));
    longer.m_body->index = std::move(m_body->index);
    return longer;
}

/// In bytes of its own, with room for more if this is not the first time.
Text Text::moved(std::string_view addition, bool ascii) const {
    const std::size_t size = str().size() + addition.size();
    Shared<GrowingBytes> bytes = makeShared<GrowingBytes>(m_body->bytes ? 2 * size : size);
    bytes->append(str());
    bytes->append(addition);
    return Text(makeShared<Body>(std::move(bytes), size, ascii));
}

const CharacterIndex& Text::index() const {
    Body& body = *m_body;
    if (!body.index) body.index = std::make_unique<CharacterIndex>();
    body.index->extend(body.text);
    return *body.index;
}

std::size_t Text::characterCount() const { return isAscii() ? str().size() : index().count(); }

std::size_t Text::offsetOf(std::size_t character) const {
    return isAscii() ? std::min(character, str().size()) : index().offsetOf(str(), character);
}

}  // namespace script
