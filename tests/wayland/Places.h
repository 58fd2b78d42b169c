// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include "wayland/KWinProgram.h"
#include "wayland/SwayProgram.h"

/// Where the program has to do the same: sway, which has virtual keyboards, and KDE, which presses keys by
/// its portal.
namespace place {

inline std::unique_ptr<ProgramSession> onSway(const SwayProgram::Options& options) {
    return std::make_unique<SwayProgram>(options);
}
inline std::unique_ptr<ProgramSession> onKWin(const KWin::Options& options) {
    return std::make_unique<KWinProgram>(options);
}

inline const Place sway{"sway", [] { return onSway({.hasSessionBus = true}); }, Target::Kind::terminal};
inline const Place kwin{"kwin", [] { return onKWin({.hasXServer = true}); }, Target::Kind::qt,
                        KWin::repeatDelay};

// Of whose screen there are pictures.
inline const Place& seenSway = sway;
inline const Place seenKWin{"kwin", [] { return onKWin({.hasXServer = true, .hasPictures = true}); },
                            Target::Kind::qt};

// Whose screen has four pixels where programs have one.
inline const Place sharpSway{"sway", [] { return onSway({.configuration = "output HEADLESS-1 scale 2"}); },
                             Target::Kind::terminal};
inline const Place sharpKWin{
    "kwin", [] { return onKWin({.hasXServer = true, .hasPictures = true, .scale = 2}); }, Target::Kind::qt};

// Without an X server.
inline const Place pureSway{"sway", [] { return onSway({.hasXServer = false}); }, Target::Kind::terminal};
inline const Place pureKWin{"kwin", [] { return onKWin({.hasXServer = false}); }, Target::Kind::qt};

}  // namespace place

inline std::string nameOf(const testing::TestParamInfo<Place>& place) { return place.param.name; }
