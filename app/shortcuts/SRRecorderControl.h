// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>
#include <QWidget>
#include <memory>

#include "prefs/KeyCombo.h"

class KeyboardHold;
class QToolButton;
class ShortcutModel;

/// The field in which the user sets a shortcut. It shows the model's combination; what the user records goes
/// to the model.
///
/// | state     | left for  | by                                                                           |
/// | idle      | recording | click, Space, Return, the assistive action "Press"                            |
/// | recording | idle      | Escape, Tab, a second click, loss of the focus, 5 s                           |
/// | recording | releasing | a combination or Backspace, which is taken                                    |
/// | releasing | idle      | the release of its key that no repeat follows, loss of the focus, 5 s since   |
/// |           |           | recording began                                                              |
///
/// From recording on the field holds the whole keyboard, so that what is a hot key of any program can be
/// typed into it; while releasing it still does, or repeats of the key would fire that hot key.
class SRRecorderControl : public QWidget {
    Q_OBJECT

  public:
    /// `name` is what assistive technology calls the field. The model outlives the widget.
    SRRecorderControl(ShortcutModel& model, const QString& name, QWidget* parent = nullptr);
    ~SRRecorderControl() override;

    bool isRecording() const { return m_state == State::recording; }
    /// Takes the focus and the keyboard.
    void startRecording();

    /// What the field shows: the combination, or what it waits for.
    QString displayText() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  signals:
    /// It starts or ends.
    void recordingChanged();

  protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    enum class State { idle, recording, releasing };

    bool pressWhileIdle(const QKeyEvent& press);
    bool pressWhileRecording(const QKeyEvent& press);
    void release(const QKeyEvent& release);
    void take(KeyCombo keyCombo, quint32 scanCode);
    void clear();
    void endRecording();
    void enter(State state);
    void makeTimers();
    void showValue();
    void paintRecordingMark(QPainter& painter) const;

    ShortcutModel& m_model;
    QToolButton* m_clearButton;
    State m_state = State::idle;
    std::unique_ptr<KeyboardHold> m_keyboard;
    QTimer m_patience;
    QTimer m_repeatGap;
    Qt::KeyboardModifiers m_heldModifiers;
    bool m_needsModifier = false;  ///< the last key typed something
    quint32 m_takenScanCode = 0;
};
