// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>

/// Lets all keys go to one widget of a window on the screen, for the life of the object. The window system
/// takes precedence over the hot keys of all programs then; where it refuses, the widget gets what its focus
/// gives it.
class KeyboardHold {
  public:
    explicit KeyboardHold(QWidget& widget) : m_widget(&widget) { widget.grabKeyboard(); }
    ~KeyboardHold() {
        if (m_widget) m_widget->releaseKeyboard();
    }
    KeyboardHold(const KeyboardHold&) = delete;
    KeyboardHold& operator=(const KeyboardHold&) = delete;

  private:
    QPointer<QWidget> m_widget;
};
