// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>

/// An entry of the history menu: stands for a macro by its number and holds nothing else of it.
class MacroMenuItem : public QAction {
    Q_OBJECT

  public:
    /// `title` as the menu shows it, "&" not yet doubled.
    explicit MacroMenuItem(const QString& title, QObject* parent = nullptr);

    int macroId() const { return m_macroId; }
    void setMacroId(int macroId) { m_macroId = macroId; }

  private:
    int m_macroId = 0;
};
