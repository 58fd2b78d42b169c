// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// A text as the title of a menu's line: no letter of it is a mnemonic.
QString menuTitle(QString text);

/// A macro's display text as such a title: without the signs that the font of menus lacks, and in its own
/// direction among lines that are written from right to left.
QString macroMenuTitle(const QString& text);
