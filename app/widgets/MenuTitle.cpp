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

QString macroMenuTitle(const QString& text) {
    const QString title = menuTitle(withSignsThatShow(text, QFontMetrics(QApplication::font("QMenu"))));
    if (!QApplication::isRightToLeft()) return title;
    return firstStrongIsolate + title + popDirectionalIsolate;
}
