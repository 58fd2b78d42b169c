// SPDX-License-Identifier: MIT
#pragma once

#include <QFontMetrics>
#include <QString>
#include <concepts>

/// The sign before a pause's seconds in a macro's display text (core/Delay.cpp).
inline constexpr char32_t pauseSign = U'⌛';

/// A macro's display text without the signs that would be shown as empty boxes. `canShow` says of a character
/// whether some font has it.
QString withSignsThatShow(const QString& text, std::predicate<char32_t> auto canShow) {
    if (canShow(pauseSign)) return text;
    return QString(text).remove(QString::fromUcs4(&pauseSign, 1) + u' ');
}

/// The same for a font, with those that the toolkit takes where it lacks a character.
inline QString withSignsThatShow(const QString& text, const QFontMetrics& metrics) {
    return withSignsThatShow(text, [&metrics](char32_t sign) { return metrics.inFontUcs4(sign); });
}
