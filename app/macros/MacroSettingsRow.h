// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include "app/shortcuts/ShortcutModel.h"
#include "platform/PlayOptions.h"

class NoticeLine;
class QCheckBox;
class QDoubleSpinBox;
class QLayout;
class QSpinBox;
class SRRecorderControl;

/// What belongs to a macro and not into its text: its hot key, and how often and how fast that plays it. What
/// the user changes is told at once.
class MacroSettingsRow : public QWidget {
    Q_OBJECT

  public:
    explicit MacroSettingsRow(QWidget* parent = nullptr);
    ~MacroSettingsRow() override;
    MacroSettingsRow(const MacroSettingsRow&) = delete;
    MacroSettingsRow& operator=(const MacroSettingsRow&) = delete;

    /// In control flags.
    void showSettings(KeyCombo hotKey, const PlayOptions& play);
    /// What the user should know of the hot key; empty for nothing.
    void setNotice(const QString& notice);

  signals:
    /// Empty for none.
    void hotKeyWanted(KeyCombo hotKey);
    void playWanted(const PlayOptions& play);
    /// The field takes a combination from now on, or no longer.
    void recordingChanged(bool isRecording);

  private:
    QLayout* makeHotKey();
    QLayout* makeTimes();
    QLayout* makeSpeed();
    void tellTimes();
    void tellSpeed();

    ShortcutModel m_hotKey;
    SRRecorderControl* m_field = nullptr;
    /// As it is kept, which may be finer than the fields show.
    PlayOptions m_play;
    QSpinBox* m_times = nullptr;
    QCheckBox* m_untilStopped = nullptr;
    QDoubleSpinBox* m_speed = nullptr;
    NoticeLine* m_notice = nullptr;
};
