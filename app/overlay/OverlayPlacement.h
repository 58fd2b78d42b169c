// SPDX-License-Identifier: MIT
#pragma once

/// Sizes and points in logical pixels.
struct OverlaySize {
    int width = 0;
    int height = 0;
};

/// A point with the screen's lower left corner as origin, y upwards.
struct OverlayOrigin {
    int x = 0;
    int y = 0;

    friend bool operator==(const OverlayOrigin&, const OverlayOrigin&) = default;
};

inline constexpr int overlayDistanceRight = 10;
inline constexpr int overlayDistanceTop = 30;

/// Where the lower left corner of the recorder overlay goes. Only sizes enter, not the screen's own place.
constexpr OverlayOrigin overlayOrigin(OverlaySize screen, OverlaySize overlay) {
    return {.x = screen.width - overlay.width - overlayDistanceRight,
            .y = screen.height - overlay.height - overlayDistanceTop};
}
