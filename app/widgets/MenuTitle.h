// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// A text as the title of a menu's line: no letter of it is a mnemonic.
QString menuTitle(QString text);

/// The same text, in the direction of its first letter also among lines that are written from right to left.
QString inItsDirection(const QString& text);

/// A macro's display text as such a title: without the signs that the font of menus lacks, and in its
/// direction.
QString macroMenuTitle(const QString& text);
