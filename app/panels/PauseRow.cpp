// SPDX-License-Identifier: MIT
#include "app/panels/PauseRow.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <cmath>

#include "app/shortcuts/PauseModel.h"

namespace {

constexpr double millisecondsPerSecond = 1000;

}  // namespace

PauseRow::PauseRow(PauseModel& model, QWidget* parent) : QWidget(parent) {
    auto* box = new QComboBox;
    //: whether pauses are recorded: never, as long as they were when typed, or not longer than a number of
    //: seconds
    box->addItem(tr("Never"), QVariant::fromValue(static_cast<int>(PauseRecording::never)));
    box->addItem(tr("As typed"), QVariant::fromValue(static_cast<int>(PauseRecording::asTyped)));
    //: stands before a number of seconds
    box->addItem(tr("At most"), QVariant::fromValue(static_cast<int>(PauseRecording::atMost)));
    box->setAccessibleName(tr("Record pauses"));

    auto* limit = new QDoubleSpinBox;
    limit->setDecimals(1);
    limit->setSingleStep(PauseChoice::shortestLimit / millisecondsPerSecond);
    limit->setRange(PauseChoice::shortestLimit / millisecondsPerSecond,
                    PauseChoice::longestLimit / millisecondsPerSecond);
    limit->setSuffix(tr(" s"));
    limit->setAccessibleName(tr("Longest pause in seconds"));

    auto* label = new QLabel(tr("Record p&auses:"));
    label->setBuddy(box);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(label);
    layout->addWidget(box);
    layout->addWidget(limit);
    layout->addStretch();

    const auto show = [&model, box, limit] {
        // What is shown may be rounded.
        const QSignalBlocker silence(limit);
        const PauseChoice choice = model.choice();
        box->setCurrentIndex(box->findData(static_cast<int>(choice.kind)));
        // What is being typed stays as it is typed.
        const double seconds = choice.limit / millisecondsPerSecond;
        if (limit->value() != seconds) limit->setValue(seconds);
        limit->setEnabled(choice.kind == PauseRecording::atMost);
    };
    connect(box, &QComboBox::currentIndexChanged, &model,
            [&model, box] { model.setKind(static_cast<PauseRecording>(box->currentData().toInt())); });
    connect(limit, &QDoubleSpinBox::valueChanged, &model, [&model](double seconds) {
        model.setLimit(static_cast<std::int32_t>(std::lround(seconds * millisecondsPerSecond)));
    });
    connect(&model, &PauseModel::changed, this, show);
    show();
}
