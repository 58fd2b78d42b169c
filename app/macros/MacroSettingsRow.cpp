// SPDX-License-Identifier: MIT
#include "app/macros/MacroSettingsRow.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSpinBox>
#include <array>

#include "app/shortcuts/SRRecorderControl.h"
#include "app/widgets/NoticeLine.h"
#include "app/widgets/WrappingRow.h"

namespace {

constexpr int mostTimes = 999'999;
constexpr double speedStep = 0.25;

QLabel* makeLabel(const QString& text, QWidget* field) {
    auto* label = new QLabel(text);
    label->setBuddy(field);
    return label;
}

}  // namespace

MacroSettingsRow::MacroSettingsRow(QWidget* parent) : QWidget(parent), m_notice(new NoticeLine) {
    auto* row = new WrappingRow;
    row->addLayout(makeHotKey());
    row->addLayout(makeTimes());
    row->addLayout(makeSpeed());
    auto* box = new QVBoxLayout(this);
    box->setContentsMargins(0, 0, 0, 0);
    box->addLayout(row);
    box->addWidget(m_notice);
}

MacroSettingsRow::~MacroSettingsRow() {
    // It looks at the combination once more when it loses the focus.
    delete m_field;
}

QLayout* MacroSettingsRow::makeHotKey() {
    m_field = new SRRecorderControl(m_hotKey, tr("Hot key"), this);
    auto* row = new QHBoxLayout;
    row->addWidget(makeLabel(tr("&Hot key:"), m_field));
    row->addWidget(m_field);
    connect(&m_hotKey, &ShortcutModel::keyComboDidChange, this,
            [this] { emit hotKeyWanted(m_hotKey.keyCombo()); });
    connect(m_field, &SRRecorderControl::recordingChanged, this,
            [this] { emit recordingChanged(m_field->isRecording()); });
    return row;
}

QLayout* MacroSettingsRow::makeTimes() {
    m_times = new QSpinBox;
    m_times->setRange(1, mostTimes);
    m_times->setAccessibleName(tr("Times"));
    m_untilStopped = new QCheckBox(tr("Unt&il stopped"));
    auto* row = new QHBoxLayout;
    row->addWidget(makeLabel(tr("&Times:"), m_times));
    row->addWidget(m_times);
    row->addWidget(m_untilStopped);
    connect(m_times, &QSpinBox::valueChanged, this, &MacroSettingsRow::tellTimes);
    connect(m_untilStopped, &QCheckBox::toggled, this, [this](bool isOn) {
        m_times->setEnabled(!isOn);
        tellTimes();
    });
    return row;
}

QLayout* MacroSettingsRow::makeSpeed() {
    m_speed = new QDoubleSpinBox;
    m_speed->setRange(playspeed::slowest, playspeed::fastest);
    m_speed->setSingleStep(speedStep);
    m_speed->setValue(m_play.speed);
    m_speed->setSuffix(tr(" ×", "behind a number: so many times as fast"));
    m_speed->setToolTip(tr("The pauses of the macro are divided by this"));
    m_speed->setAccessibleName(tr("Speed"));
    auto* row = new QHBoxLayout;
    row->addWidget(makeLabel(tr("Sp&eed:"), m_speed));
    row->addWidget(m_speed);
    connect(m_speed, &QDoubleSpinBox::valueChanged, this, &MacroSettingsRow::tellSpeed);
    return row;
}

void MacroSettingsRow::showSettings(KeyCombo hotKey, const PlayOptions& play) {
    m_hotKey.setKeyCombo(hotKey);
    // Whoever is typing a number goes on.
    if (play == m_play) return;
    m_play = play;
    const std::array<QSignalBlocker, 3> blockers = {QSignalBlocker(m_times), QSignalBlocker(m_untilStopped),
                                                    QSignalBlocker(m_speed)};
    m_times->setValue(play.times.count.value_or(1));
    m_untilStopped->setChecked(!play.times.count);
    m_times->setEnabled(play.times.count.has_value());
    m_speed->setValue(play.speed);
}

void MacroSettingsRow::setNotice(const QString& notice) { m_notice->setNotice(notice); }

void MacroSettingsRow::tellTimes() {
    m_play.times = m_untilStopped->isChecked() ? PlayTimes::untilStopped() : PlayTimes{m_times->value()};
    emit playWanted(m_play);
}

void MacroSettingsRow::tellSpeed() {
    m_play.speed = m_speed->value();
    emit playWanted(m_play);
}
