// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <chrono>
#include <vector>

#include "platform/Clock.h"
#include "platform/HotKeys.h"

namespace evdev {

/// The presses of hot keys that are known already and that the desktop will tell of once more: a compositor
/// does so up to some hundredths of a second after the keyboard has.
class HotKeyEchoes {
  public:
    /// What has not been told until then never will be.
    static constexpr std::chrono::seconds patience{2};

    void expect(HotKeyId id, Clock::Time now) { m_expected.push_back({id, now}); }

    /// Whether a press that the desktop tells of is one of them; it is crossed off.
    bool take(HotKeyId id, Clock::Time now) {
        std::erase_if(m_expected, [now](const Echo& echo) { return now - echo.since > patience; });
        const auto echo =
            std::find_if(m_expected.begin(), m_expected.end(), [id](const Echo& e) { return e.id == id; });
        if (echo == m_expected.end()) return false;
        m_expected.erase(echo);
        return true;
    }

  private:
    struct Echo {
        HotKeyId id;
        Clock::Time since;
    };
    std::vector<Echo> m_expected;
};

}  // namespace evdev
