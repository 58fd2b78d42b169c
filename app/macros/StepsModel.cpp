// SPDX-License-Identifier: MIT
#include "app/macros/StepsModel.h"

#include <QElapsedTimer>
#include <QLocale>
#include <cmath>

#include "app/macros/StepText.h"
#include "library/steps/Foreseen.h"
#include "library/steps/TypingKeys.h"

namespace {

/// What a script may take that is only looked at.
constexpr qint64 longestLookMilliseconds = 60;
constexpr double longestPause = 86'400;
constexpr qulonglong mostTimes = 10'000;

std::string manyTimes(const std::string& lines, std::size_t times) {
    std::string all;
    for (std::size_t time = 0; time < times; ++time) all += lines;
    return all;
}

}  // namespace

StepsModel::StepsModel(const KeyboardLayout& layout, QObject* parent)
    : QAbstractListModel(parent), m_layout(layout) {}

void StepsModel::showScript(const std::string& script) {
    beginResetModel();
    m_notice.clear();
    m_recording.reset();
    auto recording = steps::RecordedScript::parse(script);
    if (recording) {
        m_recording = std::move(recording).value();
        m_steps = steps::stepsOf(*m_recording, m_layout);
    } else {
        m_otherLine = recording.error().line;
        foresee(script);
    }
    endResetModel();
}

void StepsModel::foresee(const std::string& script) {
    QElapsedTimer watch;
    watch.start();
    steps::Foreseen seen =
        steps::foreseen(script, {.isOver = [&watch] { return watch.elapsed() > longestLookMilliseconds; }});
    m_steps = std::move(seen.steps);
    if (seen.error) {
        m_notice = tr("Line %1: %2")
                       .arg(QLocale().toString(seen.error->location.line),
                            QString::fromStdString(seen.error->message));
    } else if (seen.isCut) {
        m_notice = tr("The script goes on; only its beginning is shown.");
    }
}

int StepsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_steps.size());
}

QVariant StepsModel::data(const QModelIndex& index, int role) const {
    const auto row = static_cast<std::size_t>(index.row());
    if (!index.isValid() || row >= m_steps.size()) return {};
    switch (role) {
        case Qt::DisplayRole:
            return stepText(m_steps[row]);
        case Qt::EditRole:
            return stepValue(m_steps[row]);
        case Qt::AccessibleTextRole:
            return stepSpeech(m_steps[row]);
        default:
            return {};
    }
}

bool StepsModel::isEditable(const steps::Step& step) const {
    return isRecording() && !stepValue(step).isNull();
}

Qt::ItemFlags StepsModel::flags(const QModelIndex& index) const {
    Qt::ItemFlags flags = QAbstractListModel::flags(index) | Qt::ItemNeverHasChildren;
    const auto row = static_cast<std::size_t>(index.row());
    if (index.isValid() && row < m_steps.size() && isEditable(m_steps[row])) flags |= Qt::ItemIsEditable;
    return flags;
}

bool StepsModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    const auto row = static_cast<std::size_t>(index.row());
    if (role != Qt::EditRole || !index.isValid() || row >= m_steps.size()) return false;
    const QString typed = value.toString();
    if (typed == stepValue(m_steps[row])) return false;
    const Result<steps::Splice> splice = edited(m_steps[row], typed);
    if (splice) {
        emit editWanted(splice.value());
    } else {
        emit refused(splice.error());
    }
    return static_cast<bool>(splice);
}

Result<steps::Splice> StepsModel::edited(const steps::Step& step, const QString& value) const {
    bool isNumber = false;
    switch (step.kind) {
        case steps::StepKind::typing:
            return steps::retyped(*m_recording, step.first, step.count, value.toStdString(), m_layout);
        case steps::StepKind::text:
            return m_recording->replaced(step.first, step.count,
                                         manyTimes(steps::textLines(value.toStdString()), step.repeats));
        case steps::StepKind::pause: {
            const double seconds = QLocale().toDouble(value.trimmed(), &isNumber);
            if (isNumber && std::isfinite(seconds) && seconds >= 0 && seconds <= longestPause) {
                return m_recording->replaced(step.first, step.count,
                                             manyTimes(steps::pauseLines(seconds), step.repeats));
            }
            return Error{tr("A pause is a number of seconds from 0 to a day.").toStdString(), ""};
        }
        case steps::StepKind::key: {
            const qulonglong times = QLocale().toULongLong(value.trimmed(), &isNumber);
            if (!isNumber || times < 1 || times > mostTimes)
                return Error{tr("A key is pressed from 1 to 10,000 times.").toStdString(), ""};
            const steps::Line& line = m_recording->lines()[step.first];
            return m_recording->replaced(step.first, step.count,
                                         manyTimes(steps::keyLines(line.keyCode, line.modifiers), times));
        }
        default:
            return Error{tr("This step cannot be changed here.").toStdString(), ""};
    }
}
