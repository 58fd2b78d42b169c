// SPDX-License-Identifier: MIT
#include "platform/x11/clipboard/SelectionReader.h"

#include <poll.h>

#include <algorithm>
#include <cstring>

#include "platform/Sentence.h"
#include "platform/Utf8.h"
#include "platform/x11/clipboard/SelectionOwner.h"

namespace x11 {

namespace {

constexpr std::chrono::milliseconds longestSilence{1000};
/// Whether the answer is still wanted.
constexpr std::chrono::milliseconds betweenLooks{20};

std::string fromLatin1(std::string_view bytes) {
    std::string text;
    for (const char byte : bytes) appendUtf8(text, static_cast<unsigned char>(byte));
    return text;
}

}  // namespace

SelectionReader::SelectionReader(const XConnection& connection)
    : m_connection(connection),
      m_atoms(connection),
      m_window(connection, XCB_EVENT_MASK_PROPERTY_CHANGE),
      m_clock(connection) {}

Result<std::string> SelectionReader::text(const IsStopped& isStopped) {
    m_isStopped = isStopped;
    Result<std::string> text = readText();
    m_isStopped = {};
    return text;
}

Result<std::string> SelectionReader::readText() {
    for (const xcb_atom_t form : formsToTry()) {
        Answer answer = ask(form);
        if (answer.outcome == Outcome::tooLong)
            return Error{sentence("Clipboard", "The text in the clipboard is too long."), ""};
        if (answer.outcome == Outcome::silent) break;
        if (answer.outcome == Outcome::given) {
            const bool isUtf8 = form != XCB_ATOM_STRING && !invalidUtf8(answer.bytes);
            return isUtf8 ? std::move(answer.bytes) : fromLatin1(answer.bytes);
        }
    }
    return std::string();
}

/// The best first, as far as the owner says that it has them. Some would give a picture for a text.
std::vector<xcb_atom_t> SelectionReader::formsToTry() {
    std::vector<xcb_atom_t> forms{m_atoms.utf8, m_atoms.markedPlain, XCB_ATOM_STRING};
    const Answer targets = ask(m_atoms.targets);
    if (targets.outcome == Outcome::silent) return {};
    if (targets.outcome != Outcome::given) return forms;
    std::vector<xcb_atom_t> offered(targets.bytes.size() / sizeof(xcb_atom_t));
    std::memcpy(offered.data(), targets.bytes.data(), offered.size() * sizeof(xcb_atom_t));
    std::erase_if(forms, [&offered](xcb_atom_t form) {
        return std::find(offered.begin(), offered.end(), form) == offered.end();
    });
    return forms;
}

SelectionReader::Answer SelectionReader::ask(xcb_atom_t target) {
    answer().remove();
    const auto property = convert(m_atoms.clipboard, target);
    if (!property) return {Outcome::silent};
    if (*property == XCB_ATOM_NONE) return {Outcome::refused};
    Property::Content whole = take();
    if (whole.type == m_atoms.incremental) return collect();
    if (whole.bytes.size() > longestText) return {Outcome::tooLong};
    return {Outcome::given, std::move(whole.bytes)};
}

/// With the announcement taken away the owner puts down the first piece; the last one is empty.
SelectionReader::Answer SelectionReader::collect() {
    Answer answer{Outcome::given};
    const auto isPiece = [this](const Event& event) {
        const auto* change = event.as(propertyNotify);
        return change != nullptr && change->atom == m_atoms.answer && change->state == XCB_PROPERTY_NEW_VALUE;
    };
    while (await(isPiece)) {
        const Property::Content piece = take();
        // An event from before, whose piece has been taken already.
        if (piece.type == XCB_ATOM_NONE) continue;
        if (piece.bytes.empty()) return answer;
        answer.bytes += piece.bytes;
        if (answer.bytes.size() > longestText) return {Outcome::tooLong};
    }
    return {Outcome::silent};
}

bool SelectionReader::handOver() {
    if (m_connection.ownerOf(m_atoms.manager) == XCB_WINDOW_NONE) return false;
    SelectionOwner::nameForms(m_connection, m_atoms, m_window.id());
    return convert(m_atoms.manager, m_atoms.saveTargets).value_or(XCB_ATOM_NONE) != XCB_ATOM_NONE;
}

xcb_timestamp_t SelectionReader::serverTime() {
    m_clock.ask();
    const Event event =
        await([this](const Event& candidate) { return m_clock.answerIn(candidate).has_value(); });
    return m_clock.answerIn(event).value_or(XCB_CURRENT_TIME);
}

std::optional<xcb_atom_t> SelectionReader::convert(xcb_atom_t selection, xcb_atom_t target) {
    xcb_convert_selection(m_connection, m_window.id(), selection, target, m_atoms.answer, serverTime());
    const Event event = await([=](const Event& candidate) {
        const auto* notice = candidate.as(selectionNotify);
        return notice != nullptr && notice->selection == selection && notice->target == target;
    });
    const auto* notice = event.as(selectionNotify);
    return notice != nullptr ? std::optional(notice->property) : std::nullopt;
}

Event SelectionReader::await(const Wanted& wanted) {
    xcb_flush(m_connection);
    const auto end = std::chrono::steady_clock::now() + longestSilence;
    while (!m_connection.isBroken() && !(m_isStopped && m_isStopped())) {
        while (Event event = m_connection.nextEvent()) {
            if (wanted(event)) return event;
        }
        const auto left =
            std::chrono::ceil<std::chrono::milliseconds>(end - std::chrono::steady_clock::now());
        if (left.count() <= 0) break;
        pollfd entry{m_connection.fileDescriptor(), POLLIN, 0};
        poll(&entry, 1, static_cast<int>(std::min(left, betweenLooks).count()));
    }
    return {};
}

Property SelectionReader::answer() const { return {m_connection, m_window.id(), m_atoms.answer}; }

Property::Content SelectionReader::take() const {
    // More than that is read, so that a text that is too long is seen to be.
    return answer().take(longestText + 4);
}

}  // namespace x11
