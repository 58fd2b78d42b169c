// SPDX-License-Identifier: MIT
#include "app/widgets/PanelText.h"

#include <QApplication>
#include <QIcon>
#include <QLabel>

#include "app/icons/ProgramIcon.h"

namespace {

constexpr int iconSize = 64;
/// In widths of a lower case letter.
constexpr int lettersOfLine = 62;

QLabel* makeBold(const QString& text, double scale) {
    QLabel* label = makeLine(text);
    QFont font = label->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * scale);
    label->setFont(font);
    return label;
}

}  // namespace

QLabel* makeLine(const QString& text) {
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    // Else a text in another script than the panel's would go to the other side.
    const Qt::Alignment leading = QGuiApplication::isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft;
    label->setAlignment(leading | Qt::AlignAbsolute | Qt::AlignVCenter);
    return label;
}

QLabel* makeProgramIcon() {
    auto* label = new QLabel;
    label->setPixmap(programIcon().pixmap(QSize(iconSize, iconSize), label->devicePixelRatioF()));
    label->setAccessibleName(QStringLiteral("Keyrill"));
    return label;
}

QLabel* makeTitle(const QString& text) { return makeBold(text, 1.6); }

QLabel* makeHeading(const QString& text) { return makeBold(text, 1); }

QLabel* makeParagraph(const QString& text) {
    QLabel* label = makeLine(text);
    label->setWordWrap(true);
    label->setMinimumWidth(paragraphWidth(*label));
    return label;
}

int paragraphWidth(const QLabel& label) { return label.fontMetrics().averageCharWidth() * lettersOfLine; }

QLabel* makeKeyCap(const QString& combination) {
    QLabel* label = makeLine(combination);
    label->setFrameShape(QFrame::StyledPanel);
    label->setMargin(2);
    label->setAlignment(Qt::AlignCenter);
    return label;
}
