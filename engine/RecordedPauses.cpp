// SPDX-License-Identifier: MIT
#include "engine/RecordedPauses.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/Macro.h"

namespace {

constexpr double millisecond = 0.001;

/// The clock wraps around; what seems to be earlier came at once.
double secondsFrom(std::uint32_t earlier, std::uint32_t later) {
    return std::max(0, static_cast<std::int32_t>(later - earlier)) * millisecond;
}

}  // namespace

std::optional<double> RecordedPauses::before(std::uint32_t time, const PauseChoice& choice) {
    const std::optional<std::uint32_t> last = std::exchange(m_lastTime, time);
    const double byHand = std::exchange(m_byHand, 0);
    if (!last || choice.kind == PauseRecording::never) return std::nullopt;
    double waited = std::max(0.0, secondsFrom(*last, time) - byHand);
    if (choice.kind == PauseRecording::atMost) waited = std::min(waited, choice.limit * millisecond);
    m_lead += Macro::pauseAfterAction - waited;
    const double pause = std::round((-m_lead - Macro::pauseAfterAction) / millisecond) * millisecond;
    if (pause < millisecond / 2) return std::nullopt;
    m_lead += pause + Macro::pauseAfterAction;
    return pause;
}

void RecordedPauses::addAction() { m_lead += Macro::pauseAfterAction; }

void RecordedPauses::addByHand(double seconds) {
    m_byHand += seconds;
    addAction();
}
