// SPDX-License-Identifier: MIT
#include "platform/x11/clipboard/SelectionOwner.h"

#include <algorithm>
#include <array>
#include <utility>

#include "platform/Utf8.h"

namespace x11 {

namespace {

/// Far below what any server takes in one request.
constexpr std::size_t pieceSize = 128U << 10U;
/// Whoever asks for no more after so long has gone or hangs.
constexpr std::chrono::seconds longestIdle{30};

/// STRING is Latin-1 by the standard; what that lacks becomes a question mark.
std::string latin1(std::string_view text) {
    constexpr std::uint32_t last = 0xFF;
    std::string out;
    while (!text.empty()) {
        const Utf8Character first = firstCharacter(text);
        out += first.code && *first.code <= last ? static_cast<char>(*first.code) : '?';
        text.remove_prefix(first.length);
    }
    return out;
}

std::vector<xcb_atom_t> formsOf(const SelectionAtoms& atoms) {
    return {atoms.utf8, atoms.markedPlain, atoms.plain, atoms.text, XCB_ATOM_STRING};
}

}  // namespace

SelectionOwner::SelectionOwner(const XConnection& connection)
    : m_connection(connection), m_atoms(connection), m_window(xcb_generate_id(connection)) {
    xcb_create_window(m_connection, 0, m_window, m_connection.root(), -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
}

bool SelectionOwner::own(std::string text, xcb_timestamp_t time) {
    m_text = std::make_shared<const std::string>(std::move(text));
    m_time = time;
    xcb_set_selection_owner(m_connection, m_window, m_atoms.clipboard, time);
    const XReply<xcb_get_selection_owner_reply_t> owner(xcb_get_selection_owner_reply(
        m_connection, xcb_get_selection_owner(m_connection, m_atoms.clipboard), nullptr));
    m_isOwner = owner && owner->owner == m_window;
    return m_isOwner;
}

bool SelectionOwner::isSending() {
    forgetIdleTransfers();
    return !m_transfers.empty();
}

void SelectionOwner::handle(const xcb_generic_event_t& event) {
    constexpr std::uint8_t sent = 0x80;
    switch (event.response_type & static_cast<std::uint8_t>(~sent)) {
        case XCB_SELECTION_CLEAR:
            m_isOwner = false;
            break;
        case XCB_SELECTION_REQUEST:
            answer(reinterpret_cast<const xcb_selection_request_event_t&>(event));
            break;
        case XCB_PROPERTY_NOTIFY:
            propertyChanged(reinterpret_cast<const xcb_property_notify_event_t&>(event));
            break;
        case XCB_DESTROY_NOTIFY: {
            const xcb_window_t gone = reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window;
            std::erase_if(m_transfers, [gone](const Transfer& one) { return one.requestor == gone; });
            break;
        }
        default:
            break;
    }
}

/// No property in the answer says that there is no such form.
void SelectionOwner::answer(const xcb_selection_request_event_t& request) {
    forgetIdleTransfers();
    // Old clients leave it to the owner where the answer goes.
    const xcb_atom_t property = request.property == XCB_ATOM_NONE ? request.target : request.property;
    const bool isOfNow = request.time == XCB_CURRENT_TIME || request.time - m_time < 1U << 31U;
    xcb_selection_notify_event_t reply{};
    reply.response_type = XCB_SELECTION_NOTIFY;
    reply.time = request.time;
    reply.requestor = request.requestor;
    reply.selection = request.selection;
    reply.target = request.target;
    const bool isGiven =
        m_isOwner && isOfNow &&
        (request.target == m_atoms.multiple ? convertAll(request.requestor, property)
                                            : convert(request.requestor, request.target, property));
    reply.property = isGiven ? property : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
    xcb_send_event(m_connection, 0, request.requestor, 0, reinterpret_cast<const char*>(&reply));
}

void SelectionOwner::nameForms(const XConnection& connection, const SelectionAtoms& atoms,
                               xcb_window_t window) {
    const std::vector<xcb_atom_t> forms = formsOf(atoms);
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, atoms.answer, XCB_ATOM_ATOM, 32,
                        static_cast<std::uint32_t>(forms.size()), forms.data());
}

bool SelectionOwner::convert(xcb_window_t requestor, xcb_atom_t target, xcb_atom_t property) {
    const std::vector<xcb_atom_t> forms = formsOf(m_atoms);
    if (target == m_atoms.targets) {
        std::vector<xcb_atom_t> all{m_atoms.targets, m_atoms.multiple, m_atoms.timestamp};
        all.insert(all.end(), forms.begin(), forms.end());
        xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, requestor, property, XCB_ATOM_ATOM, 32,
                            static_cast<std::uint32_t>(all.size()), all.data());
    } else if (target == m_atoms.timestamp) {
        xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, requestor, property, XCB_ATOM_INTEGER, 32, 1,
                            &m_time);
    } else if (target == XCB_ATOM_STRING) {
        give(requestor, property, target, std::make_shared<const std::string>(latin1(*m_text)));
    } else if (std::find(forms.begin(), forms.end(), target) != forms.end()) {
        // TEXT leaves the encoding to the owner.
        give(requestor, property, target == m_atoms.text ? m_atoms.utf8 : target, m_text);
    } else {
        return false;
    }
    return true;
}

/// The property holds pairs of target and property; what cannot be had loses its property there.
bool SelectionOwner::convertAll(xcb_window_t requestor, xcb_atom_t property) {
    constexpr std::uint32_t most = 1024;
    const XReply<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        m_connection,
        xcb_get_property(m_connection, 0, requestor, property, XCB_GET_PROPERTY_TYPE_ANY, 0, most), nullptr));
    if (!reply || reply->format != 32 || reply->value_len % 2 != 0) return false;
    const auto* first = static_cast<const xcb_atom_t*>(xcb_get_property_value(reply.get()));
    std::vector<xcb_atom_t> pairs(first, first + reply->value_len);
    for (std::size_t i = 0; i < pairs.size(); i += 2) {
        if (pairs[i + 1] == XCB_ATOM_NONE || !convert(requestor, pairs[i], pairs[i + 1])) {
            pairs[i + 1] = XCB_ATOM_NONE;
        }
    }
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, requestor, property, m_atoms.atomPair, 32,
                        static_cast<std::uint32_t>(pairs.size()), pairs.data());
    return true;
}

void SelectionOwner::give(xcb_window_t requestor, xcb_atom_t property, xcb_atom_t type, const Text& text) {
    if (text->size() <= pieceSize) {
        xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, requestor, property, type, 8,
                            static_cast<std::uint32_t>(text->size()), text->data());
        return;
    }
    // Each piece is asked for by deleting the one before, the first by deleting the announcement.
    const std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(m_connection, requestor, XCB_CW_EVENT_MASK, &mask);
    const auto atLeast = static_cast<std::uint32_t>(text->size());
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, requestor, property, m_atoms.incremental, 32, 1,
                        &atLeast);
    std::erase_if(m_transfers, [&](const Transfer& one) {
        return one.requestor == requestor && one.property == property;
    });
    m_transfers.push_back({requestor, property, type, text, 0, std::chrono::steady_clock::now()});
}

void SelectionOwner::propertyChanged(const xcb_property_notify_event_t& event) {
    if (event.state != XCB_PROPERTY_DELETE) return;
    const auto transfer = std::find_if(m_transfers.begin(), m_transfers.end(), [&event](const Transfer& one) {
        return one.requestor == event.window && one.property == event.atom;
    });
    if (transfer == m_transfers.end() || sendNextPiece(*transfer)) return;
    m_transfers.erase(transfer);
    ignore(event.window);
}

bool SelectionOwner::sendNextPiece(Transfer& transfer) {
    const std::size_t size = std::min(transfer.text->size() - transfer.sent, pieceSize);
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, transfer.requestor, transfer.property,
                        transfer.type, 8, static_cast<std::uint32_t>(size),
                        transfer.text->data() + transfer.sent);
    transfer.sent += size;
    transfer.lastStep = std::chrono::steady_clock::now();
    return size > 0;
}

void SelectionOwner::forgetIdleTransfers() {
    const Moment oldest = std::chrono::steady_clock::now() - longestIdle;
    std::erase_if(m_transfers, [oldest](const Transfer& one) { return one.lastStep < oldest; });
}

void SelectionOwner::ignore(xcb_window_t requestor) {
    const bool isNeeded = std::any_of(m_transfers.begin(), m_transfers.end(),
                                      [=](const Transfer& one) { return one.requestor == requestor; });
    const std::uint32_t mask = XCB_EVENT_MASK_NO_EVENT;
    if (!isNeeded) xcb_change_window_attributes(m_connection, requestor, XCB_CW_EVENT_MASK, &mask);
}

}  // namespace x11
