// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QLabel;

// The texts of the panels, shown as they are. The layout that takes a label becomes its owner.

/// The program's icon beside what a panel greets with.
QLabel* makeProgramIcon();
/// The largest text of a panel.
QLabel* makeTitle(const QString& text);
/// Above a group of controls.
QLabel* makeHeading(const QString& text);
/// One line.
QLabel* makeLine(const QString& text);
/// Several lines, as wide as reads well.
QLabel* makeParagraph(const QString& text);
/// How wide that is, with the label's font.
int paragraphWidth(const QLabel& label);
/// A combination, framed as a key is.
QLabel* makeKeyCap(const QString& combination);
