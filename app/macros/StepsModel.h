// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractListModel>
#include <optional>
#include <string>
#include <vector>

#include "library/steps/RecordedScript.h"
#include "library/steps/Steps.h"
#include "platform/Result.h"

class KeyboardLayout;

/// The steps of a macro as the lines of a list. Those of a recording can be edited: an edit is asked for as a
/// splice of the script, and the steps are others once showScript() has the script after it. Words of a step
/// are made when its line is shown.
class StepsModel : public QAbstractListModel {
    Q_OBJECT

  public:
    /// The layout outlives the model.
    explicit StepsModel(const KeyboardLayout& layout, QObject* parent = nullptr);

    void showScript(const std::string& script);

    /// Whether it is a recording, which can be edited.
    bool isRecording() const { return m_recording.has_value(); }
    const steps::RecordedScript& recording() const { return *m_recording; }
    /// Of any other script the first line that makes it one, counted from 1.
    std::size_t otherLine() const { return m_otherLine; }
    const std::vector<steps::Step>& steps() const { return m_steps; }
    /// What should be known of the steps of any other script: that they are not all, or why they end. Empty
    /// for nothing.
    const QString& notice() const { return m_notice; }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// Of text, seconds or times as the user has typed them.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

  signals:
    void editWanted(const steps::Splice& splice);
    /// What was typed has no sense there.
    void refused(const Error& why);

  private:
    void foresee(const std::string& script);
    Result<steps::Splice> edited(const steps::Step& step, const QString& value) const;
    bool isEditable(const steps::Step& step) const;

    const KeyboardLayout& m_layout;
    std::optional<steps::RecordedScript> m_recording;
    std::size_t m_otherLine = 1;
    std::vector<steps::Step> m_steps;
    QString m_notice;
};
