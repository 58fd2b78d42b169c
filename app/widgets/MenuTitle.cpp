// SPDX-License-Identifier: MIT
#include "app/widgets/MenuTitle.h"

#include <QApplication>
#include <QFontMetrics>

#include "app/widgets/MacroSigns.h"

namespace {

/// The standard's signs around a text whose direction its own first letter decides.
constexpr QChar firstStrongIsolate(0x2068);
constexpr QChar popDirectionalIsolate(0x2069);

}  // namespace

QString menuTitle(QString text) { return text.replace(u'&', QStringLiteral("&&")); }

QString inItsDirection(const QString& text) {
    return QApplication::isRightToLeft() ? firstStrongIsolate + text + popDirectionalIsolate : text;
}

QString macroMenuTitle(const QString& text) {
    return inItsDirection(menuTitle(withSignsThatShow(text, QFontMetrics(QApplication::font("QMenu")))));
}
