// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

/// The state of a check box, there from the program's start.
class ToggleModel : public QObject {
    Q_OBJECT

  public:
    bool isOn() const { return m_on; }
    void setOn(bool on);

  signals:
    void changed();

  private:
    bool m_on = false;
};
