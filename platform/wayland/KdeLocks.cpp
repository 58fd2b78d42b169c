// SPDX-License-Identifier: MIT
#include "platform/wayland/KdeLocks.h"

#include <kde-keystate-client-protocol.h>

namespace wayland {

KdeLocks::~KdeLocks() {
    if (m_keystate != nullptr) org_kde_kwin_keystate_destroy(m_keystate);
}

xkb_mod_mask_t KdeLocks::locked(const ModifierMasks& masks) {
    if (m_keystate == nullptr) {
        m_keystate =
            static_cast<org_kde_kwin_keystate*>(m_connection.bind(org_kde_kwin_keystate_interface, 1));
        if (m_keystate == nullptr) return 0;
        static constexpr org_kde_kwin_keystate_listener listener{.stateChanged = told};
        org_kde_kwin_keystate_add_listener(m_keystate, &listener, this);
    }
    org_kde_kwin_keystate_fetchStates(m_keystate);
    // Who is gone has no locks.
    [[maybe_unused]] const auto answered = m_connection.roundTrip();
    const std::array<xkb_mod_mask_t, 3> locks{masks.capsLock, masks.numLock, masks.scrollLock};
    xkb_mod_mask_t locked = 0;
    for (std::size_t i = 0; i < locks.size(); ++i) locked |= m_isOn.at(i) ? locks.at(i) : 0;
    return locked;
}

void KdeLocks::told(void* self, org_kde_kwin_keystate* /*keystate*/, std::uint32_t key, std::uint32_t state) {
    auto& isOn = static_cast<KdeLocks*>(self)->m_isOn;
    if (key < isOn.size()) isOn.at(key) = state != 0;
}

}  // namespace wayland
