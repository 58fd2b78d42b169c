// SPDX-License-Identifier: MIT
#include "platform/x11/clipboard/SelectionReader.h"

#include <poll.h>

#include <algorithm>
#include <cstring>

#include "platform/Utf8.h"
#include "platform/x11/clipboard/SelectionOwner.h"

namespace x11 {

namespace {

constexpr std::chrono::milliseconds longestSilence{1000};
constexpr std::uint8_t typeOfEvent = 0x7F;

std::string fromLatin1(std::string_view bytes) {
    std::string text;
    for (const char byte : bytes) appendUtf8(text, static_cast<unsigned char>(byte));
    return text;
}

}  // namespace

SelectionReader::SelectionReader(const XConnection& connection)
    : m_connection(connection), m_atoms(connection), m_window(xcb_generate_id(connection)) {
    const std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(m_connection, 0, m_window, m_connection.root(), -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &mask);
}

Result<std::string> SelectionReader::text() {
    for (const xcb_atom_t form : formsToTry()) {
        Answer answer = ask(form);
        if (answer.outcome == Outcome::tooLong) return Error{"The text in the clipboard is too long.", ""};
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
    xcb_delete_property(m_connection, m_window, m_atoms.answer);
    const auto property = convert(m_atoms.clipboard, target);
    if (!property) return {Outcome::silent};
    if (*property == XCB_ATOM_NONE) return {Outcome::refused};
    Piece whole = take();
    if (whole.type == m_atoms.incremental) return collect();
    if (whole.bytes.size() > longestText) return {Outcome::tooLong};
    return {Outcome::given, std::move(whole.bytes)};
}

/// With the announcement taken away the owner puts down the first piece; the last one is empty.
SelectionReader::Answer SelectionReader::collect() {
    Answer answer{Outcome::given};
    const auto isPiece = [this](const xcb_generic_event_t& event) {
        if ((event.response_type & typeOfEvent) != XCB_PROPERTY_NOTIFY) return false;
        const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        return change.atom == m_atoms.answer && change.state == XCB_PROPERTY_NEW_VALUE;
    };
    while (await(isPiece)) {
        const Piece piece = take();
        // An event from before, whose piece has been taken already.
        if (piece.type == XCB_ATOM_NONE) continue;
        if (piece.bytes.empty()) return answer;
        answer.bytes += piece.bytes;
        if (answer.bytes.size() > longestText) return {Outcome::tooLong};
    }
    return {Outcome::silent};
}

bool SelectionReader::handOver() {
    const XReply<xcb_get_selection_owner_reply_t> manager(xcb_get_selection_owner_reply(
        m_connection, xcb_get_selection_owner(m_connection, m_atoms.manager), nullptr));
    if (!manager || manager->owner == XCB_WINDOW_NONE) return false;
    SelectionOwner::nameForms(m_connection, m_atoms, m_window);
    return convert(m_atoms.manager, m_atoms.saveTargets).value_or(XCB_ATOM_NONE) != XCB_ATOM_NONE;
}

// The server stamps a change of a property, also one that appends nothing.
xcb_timestamp_t SelectionReader::serverTime() {
    xcb_change_property(m_connection, XCB_PROP_MODE_APPEND, m_window, m_atoms.timestamp, XCB_ATOM_INTEGER, 32,
                        0, nullptr);
    const Event event = await([this](const xcb_generic_event_t& candidate) {
        return (candidate.response_type & typeOfEvent) == XCB_PROPERTY_NOTIFY &&
               reinterpret_cast<const xcb_property_notify_event_t&>(candidate).atom == m_atoms.timestamp;
    });
    return event ? reinterpret_cast<const xcb_property_notify_event_t&>(*event).time
                 : static_cast<xcb_timestamp_t>(XCB_CURRENT_TIME);
}

std::optional<xcb_atom_t> SelectionReader::convert(xcb_atom_t selection, xcb_atom_t target) {
    xcb_convert_selection(m_connection, m_window, selection, target, m_atoms.answer, serverTime());
    const Event event = await([=](const xcb_generic_event_t& candidate) {
        if ((candidate.response_type & typeOfEvent) != XCB_SELECTION_NOTIFY) return false;
        const auto& notice = reinterpret_cast<const xcb_selection_notify_event_t&>(candidate);
        return notice.selection == selection && notice.target == target;
    });
    if (!event) return std::nullopt;
    return reinterpret_cast<const xcb_selection_notify_event_t&>(*event).property;
}

SelectionReader::Event SelectionReader::await(const Wanted& wanted) {
    xcb_flush(m_connection);
    const auto end = std::chrono::steady_clock::now() + longestSilence;
    while (!m_connection.isBroken()) {
        while (Event event{xcb_poll_for_event(m_connection)}) {
            if (wanted(*event)) return event;
        }
        const auto left =
            std::chrono::ceil<std::chrono::milliseconds>(end - std::chrono::steady_clock::now());
        if (left.count() <= 0) break;
        pollfd entry{m_connection.fileDescriptor(), POLLIN, 0};
        poll(&entry, 1, static_cast<int>(left.count()));
    }
    return nullptr;
}

SelectionReader::Piece SelectionReader::take() const {
    constexpr std::uint32_t mostWords = longestText / 4 + 1;
    const XReply<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        m_connection,
        xcb_get_property(m_connection, 1, m_window, m_atoms.answer, XCB_GET_PROPERTY_TYPE_ANY, 0, mostWords),
        nullptr));
    if (!reply || reply->type == XCB_ATOM_NONE) return {};
    const auto* bytes = static_cast<const char*>(xcb_get_property_value(reply.get()));
    return {reply->type,
            std::string(bytes, static_cast<std::size_t>(xcb_get_property_value_length(reply.get())))};
}

}  // namespace x11
