// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <map>
#include <string>

#include "platform/HotKeys.h"

class StatusItem;

/// What the status item tells: which hot keys were refused, a line each in the order of their numbers, then
/// what the user should know of the session.
class StatusNotice {
  public:
    /// The item outlives this.
    explicit StatusNotice(StatusItem& item) : m_item(item) {}

    const QString& hint() const { return m_hint; }
    /// Empty for nothing.
    void setHint(const QString& hint);
    void noteHotKey(HotKeyId id, const HotKeyState& state);

  private:
    void show();

    StatusItem& m_item;
    QString m_hint;
    std::map<HotKeyId, std::string> m_refused;
};
