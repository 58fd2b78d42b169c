// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include "compositor/ScreenPicture.h"
#include "support/Child.h"

/// Takes a picture of a screen.
using ScreenLook = std::function<ScreenPicture()>;

/// The screen, once each of these places has that colour and nothing has changed for a while: compositors
/// give programs time to draw themselves at a new size (sway 0.2 s) before they move anything; its own
/// pixels.
inline ScreenPicture pictureWith(const ScreenLook& look, const ScreenPicture::Colour& colour,
                                 const std::vector<std::pair<int, int>>& places) {
    constexpr std::chrono::milliseconds rest{400};
    std::optional<ScreenPicture> picture;
    auto lastChange = std::chrono::steady_clock::now();
    const auto hasCome = [&] {
        const auto time = std::chrono::steady_clock::now();
        ScreenPicture now(look());
        // Looks may take long: a rest lies between the end of one and the beginning of another.
        if (!picture || now.differsFrom(*picture)) lastChange = std::chrono::steady_clock::now();
        picture.emplace(std::move(now));
        return time - lastChange >= rest && std::all_of(places.begin(), places.end(), [&](const auto& place) {
                   return picture->at(place.first, place.second) == colour;
               });
    };
    const bool isThere = eventually(hasCome, std::chrono::seconds(30));
    EXPECT_TRUE(isThere) << "what was typed into is not to be seen, or the screen keeps changing";
    return *picture;
}

/// Where the screen is another than in the picture, once it has been there for two looks: fades are over.
/// From its first change it has so long for that.
inline std::optional<ScreenArea> changedArea(const ScreenLook& look, const ScreenPicture& before,
                                             std::chrono::milliseconds patience = std::chrono::seconds(10)) {
    constexpr std::chrono::seconds longestStart{30};
    std::optional<ScreenPicture> last;
    std::optional<std::chrono::steady_clock::time_point> end;
    bool isSettled = false;
    eventually(
        [&] {
            const auto time = std::chrono::steady_clock::now();
            std::optional<ScreenPicture> now(look());
            const bool hasChanged = now->differsFrom(before).has_value();
            if (hasChanged && !end) end = time + patience;
            isSettled = last && hasChanged && !now->differsFrom(*last);
            last = std::move(now);
            return isSettled || (end && time > *end);
        },
        longestStart + patience);
    EXPECT_TRUE(isSettled) << "it keeps changing, or has not changed at all";
    return last->differsFrom(before);
}
