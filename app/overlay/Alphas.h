// SPDX-License-Identifier: MIT
#pragma once

/// The opacity of the recorder overlay and of the prompt once they have faded in.
inline constexpr double overlayAlpha = 0.8;
/// That of all other windows that fade in.
inline constexpr double panelAlpha = 0.9;
