// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

#include "prefs/KeyCombo.h"

/// The value of a shortcut field, in control flags. It is there from the program's start; the field itself is
/// built when its panel is first shown.
class ShortcutModel : public QObject {
    Q_OBJECT

  public:
    explicit ShortcutModel(KeyCombo initial = {}) : m_keyCombo(initial) {}

    KeyCombo keyCombo() const { return m_keyCombo; }

    /// By the program: the field shows it, nothing is reported.
    void setKeyCombo(KeyCombo keyCombo);
    /// By the user: sets the combination, the empty one for a cleared field, and reports it.
    void record(KeyCombo keyCombo);

    /// What the user should know of this shortcut ("held by another program"), shown beside the field; empty
    /// for nothing.
    const QString& notice() const { return m_notice; }
    void setNotice(const QString& notice);

    /// Whether the combination does nothing, for the desktop gives it to nobody, or to somebody else.
    bool isRefused() const { return m_isRefused; }
    void setRefused(bool refused);

  signals:
    /// The user has recorded or cleared the combination.
    void keyComboDidChange();
    /// The program has changed the combination, the notice, or whether it is refused: the field shows it at
    /// once.
    void changed();

  private:
    KeyCombo m_keyCombo;
    QString m_notice;
    bool m_isRefused = false;
};
