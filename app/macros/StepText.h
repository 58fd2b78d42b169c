// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include "library/steps/Steps.h"

// Steps in words, with the names of keys under the present layout.

/// As it stands in the list: "Hello", "Ctrl+S", "↓ × 5", "Pause 0.5 s".
QString stepText(const steps::Step& step);
/// As it is spoken: "Type Hello", "Press Ctrl+S", "Press ↓ 5 times", "Wait 0.5 seconds".
QString stepSpeech(const steps::Step& step);
/// What is changed of it by typing: the text, the seconds, the times.
QString stepValue(const steps::Step& step);
