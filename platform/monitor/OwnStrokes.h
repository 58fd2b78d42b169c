// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <deque>

#include "platform/monitor/MonitorEvents.h"

/// The strokes that a running script has announced and that the server has not shown yet.
class OwnStrokes {
  public:
    void expect(std::uint8_t keycode, bool press) { m_expected.push_back({keycode, press}); }

    /// Whether a raw event is one of them; it is crossed off. They come in the order in which they were
    /// announced, other programs' between them.
    bool take(const RawKey& key) {
        if (!key.synthetic) return false;
        const auto stroke = std::find_if(m_expected.begin(), m_expected.end(), [&](const Stroke& expected) {
            return expected.keycode == key.keycode && expected.press == key.press;
        });
        if (stroke == m_expected.end()) return false;
        m_expected.erase(stroke);
        return true;
    }

    /// The run is over and all its events have come; the server made none of what is left.
    void forget() { m_expected.clear(); }

  private:
    struct Stroke {
        std::uint8_t keycode;
        bool press;
    };
    std::deque<Stroke> m_expected;
};
