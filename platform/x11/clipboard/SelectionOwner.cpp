// SPDX-License-Identifier: MIT
#include "platform/x11/clipboard/SelectionOwner.h"

#include <algorithm>
#include <span>
#include <string_view>
#include <utility>

#include "platform/Utf8.h"
#include "platform/x11/server/Property.h"

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
    : m_connection(connection), m_atoms(connection), m_window(connection) {}

bool SelectionOwner::own(std::string text, xcb_timestamp_t time) {
    m_text = std::make_shared<const std::string>(std::move(text));
    m_time = time;
    xcb_set_selection_owner(m_connection, m_window.id(), m_atoms.clipboard, time);
    m_isOwner = m_connection.ownerOf(m_atoms.clipboard) == m_window.id();
    return m_isOwner;
}

bool SelectionOwner::isSending() const {
    return !std::all_of(m_transfers.begin(), m_transfers.end(), isIdle);
}

void SelectionOwner::handle(const Event& event) {
    if (event.is(selectionClear)) m_isOwner = false;
    if (const auto* request = event.as(selectionRequest)) answer(*request);
    if (const auto* change = event.as(propertyNotify)) propertyChanged(*change);
    if (const auto* end = event.as(destroyNotify)) {
        std::erase_if(m_transfers, [end](const Transfer& one) { return one.requestor == end->window; });
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
    Property(connection, window, atoms.answer).write(XCB_ATOM_ATOM, formsOf(atoms));
}

bool SelectionOwner::convert(xcb_window_t requestor, xcb_atom_t target, xcb_atom_t property) {
    const std::vector<xcb_atom_t> forms = formsOf(m_atoms);
    const Property answer(m_connection, requestor, property);
    if (target == m_atoms.targets) {
        std::vector<xcb_atom_t> all{m_atoms.targets, m_atoms.multiple, m_atoms.timestamp};
        all.insert(all.end(), forms.begin(), forms.end());
        answer.write(XCB_ATOM_ATOM, all);
    } else if (target == m_atoms.timestamp) {
        answer.write(XCB_ATOM_INTEGER, std::span(&m_time, 1));
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
    const Property answer(m_connection, requestor, property);
    std::vector<std::uint32_t> pairs = answer.numbers(XCB_GET_PROPERTY_TYPE_ANY, most);
    if (pairs.empty() || pairs.size() % 2 != 0) return false;
    for (std::size_t i = 0; i < pairs.size(); i += 2) {
        if (pairs[i + 1] == XCB_ATOM_NONE || !convert(requestor, pairs[i], pairs[i + 1])) {
            pairs[i + 1] = XCB_ATOM_NONE;
        }
    }
    answer.write(m_atoms.atomPair, pairs);
    return true;
}

void SelectionOwner::give(xcb_window_t requestor, xcb_atom_t property, xcb_atom_t type, const Text& text) {
    const Property answer(m_connection, requestor, property);
    if (text->size() <= pieceSize) return answer.write(type, *text);
    // Each piece is asked for by deleting the one before, the first by deleting the announcement.
    const std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(m_connection, requestor, XCB_CW_EVENT_MASK, &mask);
    const auto atLeast = static_cast<std::uint32_t>(text->size());
    answer.write(m_atoms.incremental, std::span(&atLeast, 1));
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
    const auto piece = std::string_view(*transfer.text).substr(transfer.sent, pieceSize);
    Property(m_connection, transfer.requestor, transfer.property).write(transfer.type, piece);
    transfer.sent += piece.size();
    transfer.lastStep = std::chrono::steady_clock::now();
    return !piece.empty();
}

bool SelectionOwner::isIdle(const Transfer& transfer) {
    return transfer.lastStep < std::chrono::steady_clock::now() - longestIdle;
}

void SelectionOwner::forgetIdleTransfers() { std::erase_if(m_transfers, isIdle); }

void SelectionOwner::ignore(xcb_window_t requestor) {
    const bool isNeeded = std::any_of(m_transfers.begin(), m_transfers.end(),
                                      [=](const Transfer& one) { return one.requestor == requestor; });
    const std::uint32_t mask = XCB_EVENT_MASK_NO_EVENT;
    if (!isNeeded) xcb_change_window_attributes(m_connection, requestor, XCB_CW_EVENT_MASK, &mask);
}

}  // namespace x11
