// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

#include "prefs/PauseChoice.h"

/// How long to wait before each action of a recording, so that it is played at the pace at which it was made.
///
/// A played action takes time itself (Macro::pauseAfterAction), and so does a pause. Where keys came faster
/// than that the time is taken from the pauses that follow: a key is as long after the first one as it was
/// typed, or a little later.
class RecordedPauses {
  public:
    /// The pause before an action that is recorded now and happened then (KeyEvent::time), in seconds, to the
    /// millisecond; empty if there is to be none.
    std::optional<double> before(std::uint32_t time, const PauseChoice& choice);

    /// An action was put in that is played on the way.
    void addAction();

    /// The user has recorded a pause himself, in seconds: so much of what passes is no news.
    void addByHand(double seconds);

  private:
    /// Of the last action.
    std::optional<std::uint32_t> m_lastTime;
    /// The pauses since then that the user has recorded himself, in seconds.
    double m_byHand = 0;
    /// How much later than it was made the last action is played, in seconds; negative if earlier.
    double m_lead = 0;
};
