// SPDX-License-Identifier: MIT
#include "platform/x11/watch/HoldWatch.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <utility>

#include "platform/x11/server/Event.h"
#include "platform/x11/server/Property.h"

namespace x11 {

namespace {

/// A menu's window is there before it takes the keyboard, or soon after.
constexpr std::chrono::milliseconds before{1000};
constexpr std::chrono::milliseconds after{500};
/// Some toolkits hold on to a window that is no more than that until their menu is there.
constexpr int leastSize = 12;

constexpr EventKind<xcb_map_notify_event_t> mapNotify{XCB_MAP_NOTIFY};
constexpr EventKind<xcb_unmap_notify_event_t> unmapNotify{XCB_UNMAP_NOTIFY};

bool isHeld(const XReply<xcb_grab_keyboard_reply_t>& reply) {
    return reply && reply->status == XCB_GRAB_STATUS_ALREADY_GRABBED;
}

std::uint64_t areaOf(const xcb_get_geometry_reply_t& place) {
    return std::uint64_t{place.width} * place.height;
}

bool isHeld(const XReply<xcb_grab_pointer_reply_t>& reply) {
    return reply && reply->status == XCB_GRAB_STATUS_ALREADY_GRABBED;
}

}  // namespace

Result<std::unique_ptr<HoldWatch>> HoldWatch::open(const std::string& display, const XConnection& asker) {
    auto connection = XConnection::open(display);
    if (!connection) return connection.error();
    return std::unique_ptr<HoldWatch>(new HoldWatch(std::move(connection).value(), asker));
}

HoldWatch::HoldWatch(XConnection connection, const XConnection& asker)
    : m_connection(std::move(connection)), m_asker(asker), m_question(asker) {
    const auto atoms = m_connection.atoms(std::array{
        "_NET_WM_WINDOW_TYPE", "_NET_WM_PID", "_NET_WM_WINDOW_TYPE_TOOLTIP",
        "_NET_WM_WINDOW_TYPE_NOTIFICATION", "_NET_WM_WINDOW_TYPE_DOCK", "_NET_WM_WINDOW_TYPE_DESKTOP"});
    m_type = atoms[0];
    m_process = atoms[1];
    m_otherTypes.assign(atoms.begin() + 2, atoms.end());
}

void HoldWatch::follow(bool follows) {
    if (std::exchange(m_follows, follows) == follows) return;
    const std::uint32_t mask = follows ? XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY : XCB_EVENT_MASK_NO_EVENT;
    xcb_change_window_attributes(m_connection, m_connection.root(), XCB_CW_EVENT_MASK, &mask);
    m_connection.roundTrip();
    while (const Event unused = m_connection.nextEvent()) continue;
    m_candidates.clear();
    m_since.reset();
    m_isExplained = false;
}

HoldSigns HoldWatch::look(Clock::Time now) {
    const auto keyboard = xcb_grab_keyboard(m_asker, 0, m_question.id(), XCB_CURRENT_TIME,
                                            XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    const auto pointer = xcb_grab_pointer(m_asker, 0, m_question.id(), 0, XCB_GRAB_MODE_ASYNC,
                                          XCB_GRAB_MODE_ASYNC, XCB_NONE, XCB_NONE, XCB_CURRENT_TIME);
    HoldSigns signs;
    signs.keyboard = isHeld(replyTo(m_asker, keyboard, xcb_grab_keyboard_reply));
    signs.pointer = isHeld(replyTo(m_asker, pointer, xcb_grab_pointer_reply));
    if (signs.keyboard && !m_since) m_since = now;
    if (!signs.keyboard) m_since.reset();
    // What happened to windows before the answer is known with this.
    if (signs.keyboard) m_connection.roundTrip();
    readEvents(now);
    if (signs.keyboard) addSigns(signs);
    m_isExplained = signs.keyboard && signs.popup && !signs.cover;
    return signs;
}

void HoldWatch::readEvents(Clock::Time now) {
    while (const Event event = m_connection.nextEvent()) {
        if (const auto* map = event.as(mapNotify); map != nullptr && map->override_redirect != 0) {
            m_candidates.push_back({map->window, now});
        } else if (const auto* unmap = event.as(unmapNotify)) {
            std::erase_if(m_candidates, [&](const Candidate& one) { return one.window == unmap->window; });
        }
    }
    if (m_isExplained && m_since) return;
    const Clock::Time start = m_since.value_or(now);
    std::erase_if(m_candidates, [&](const Candidate& one) {
        return one.mapped < start - before || one.mapped > start + after;
    });
}

void HoldWatch::addSigns(HoldSigns& signs) const {
    const auto screen =
        replyTo(m_connection, xcb_get_geometry(m_connection, m_connection.root()), xcb_get_geometry_reply);
    if (!screen) return;
    std::uint64_t covered = 0;
    bool isSeen = false;
    for (const Candidate& candidate : m_candidates) {
        const auto place =
            replyTo(m_connection, xcb_get_geometry(m_connection, candidate.window), xcb_get_geometry_reply);
        if (!place || isNoMenu(candidate.window)) continue;
        covered += areaOf(*place);
        // A window without a depth cannot be seen.
        if (place->depth != 0 && place->width >= leastSize && place->height >= leastSize) isSeen = true;
    }
    // A locker has a window for each monitor, and comes to one after the other.
    signs.cover = covered >= areaOf(*screen) / 2;
    signs.popup = isSeen && !signs.cover;
}

/// A window of ours, or of a kind that never takes the keyboard (Extended Window Manager Hints 1.5).
bool HoldWatch::isNoMenu(xcb_window_t window) const {
    const auto own = static_cast<std::uint32_t>(getpid());
    if (Property(m_connection, window, m_process).number(XCB_ATOM_CARDINAL) == own) return true;
    constexpr std::uint32_t most = 16;
    const auto types = Property(m_connection, window, m_type).numbers(XCB_ATOM_ATOM, most);
    return std::any_of(types.begin(), types.end(), [this](xcb_atom_t type) {
        return std::find(m_otherTypes.begin(), m_otherTypes.end(), type) != m_otherTypes.end();
    });
}

}  // namespace x11
