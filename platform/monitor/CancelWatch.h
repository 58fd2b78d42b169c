// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <optional>
#include <utility>

#include "platform/Clock.h"
#include "platform/monitor/MonitorEvents.h"

/// The user's wish to end the playback: Escape held for 0.3 s on a keyboard, another program's
/// included, or a hot key that cancels.
class CancelWatch {
  public:
    static constexpr std::chrono::milliseconds holdTime{300};

    /// `clock` outlives this.
    explicit CancelWatch(const Clock& clock) : m_clock(clock) {}

    void start() {
        m_cancelled = false;
        m_escapeStop = false;
        // What was held before counts anew.
        if (m_escape) m_escape->since = m_clock.now();
    }
    void cancel() { m_cancelled = true; }

    /// Whether a held Escape has become a stop; true once for each.
    bool takeEscapeStop() {
        if (m_escape && m_clock.now() >= *deadline() && !std::exchange(m_escape->isTaken, true)) return true;
        return std::exchange(m_escapeStop, false);
    }

    void escapePressed(const RawKey& key) { m_escape = Escape{key.source, key.time, m_clock.now()}; }
    void escapeReleased(const RawKey& key) {
        if (!m_escape || m_escape->source != key.source) return;
        // Press and release may be read at once, long after they happened; the server knows how long it was.
        if (millisecondsAfter(key.time, m_escape->time) >= holdTime.count()) {
            m_cancelled = true;
            m_escapeStop = m_escapeStop || !m_escape->isTaken;
        }
        m_escape.reset();
    }
    void keyboardGone(std::uint16_t source) {
        if (m_escape && m_escape->source == source) m_escape.reset();
    }

    bool isCancelled() const { return m_cancelled || (m_escape && m_clock.now() >= *deadline()); }
    std::optional<Clock::Time> deadline() const {
        if (!m_escape) return std::nullopt;
        return m_escape->since + holdTime;
    }

  private:
    struct Escape {
        std::uint16_t source;
        ServerTime time;
        Clock::Time since;
        bool isTaken = false;
    };

    const Clock& m_clock;
    bool m_cancelled = false;
    bool m_escapeStop = false;
    std::optional<Escape> m_escape;
};
