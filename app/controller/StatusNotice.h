// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>
#include <map>

#include "platform/HotKeys.h"

class StatusItem;

/// What the status item tells: which hot keys were refused, a line each in the order of their numbers, or one
/// for all where none can be had for the same reason; then what the user should know of the session, and what
/// nobody else tells of a macro.
class StatusNotice {
    Q_DECLARE_TR_FUNCTIONS(StatusNotice)

  public:
    /// The item outlives this.
    explicit StatusNotice(StatusItem& item) : m_item(item) {}

    const QString& hint() const { return m_hint; }
    /// Empty for nothing.
    void setHint(const QString& hint);
    /// What is wrong with the macro that was played or loaded last; empty for nothing.
    void setFault(const QString& fault);
    /// Of one of the shortcuts.
    void noteHotKey(HotKeyId id, const HotKeyState& state);

  private:
    void show();
    QStringList refusals() const;

    StatusItem& m_item;
    QString m_hint;
    QString m_fault;
    std::map<HotKeyId, Error> m_refused;
};
