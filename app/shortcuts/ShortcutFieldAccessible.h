// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessibleWidget>

class SRRecorderControl;

/// The shortcut field to assistive technology: a button by its name, with what it shows as its value and its
/// description, and with the action to start recording.
class ShortcutFieldAccessible : public QAccessibleWidget {
  public:
    explicit ShortcutFieldAccessible(SRRecorderControl& field);

    /// Makes the fields of this process known. May be called again.
    static void install();

    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString& action) override;

  private:
    SRRecorderControl& m_field;
};
