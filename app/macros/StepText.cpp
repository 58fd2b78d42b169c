// SPDX-License-Identifier: MIT
#include "app/macros/StepText.h"

#include <QCoreApplication>
#include <QLocale>

#include "app/shortcuts/CombinationText.h"
#include "core/KeyNames.h"
#include "platform/KeyCodes.h"

namespace {

using steps::Step;
using steps::StepKind;

QString tr(const char* text) { return QCoreApplication::translate("MacroSteps", text); }

/// What is pressed or held.
QString keyOf(const Step& step) {
    const QString modifiers = modifiersText(carbonToCocoaFlags(step.modifiers));
    if (step.keyCode != keycode::none)
        return modifiers + QString::fromStdString(keyNameForKeyCode(static_cast<short>(step.keyCode)));
    if (!step.text.empty()) return modifiers + QString::fromStdString(step.text);
    // Without its plus sign.
    return modifiers.chopped(modifiers.isEmpty() ? 0 : 1);
}

/// A text that is typed with modifiers held over each character is a combination.
QString typedText(const Step& step) {
    return modifiersText(carbonToCocoaFlags(step.modifiers)) + QString::fromStdString(step.text);
}

QString numberText(double seconds) {
    return QLocale().toString(seconds, 'g', QLocale::FloatingPointShortest);
}

QString times(const QString& text, const Step& step) {
    return step.repeats == 1 ? text : tr("%1 × %2").arg(text, QLocale().toString(qulonglong{step.repeats}));
}

}  // namespace

QString stepText(const Step& step) {
    switch (step.kind) {
        case StepKind::typing:
            return QString::fromStdString(step.text);
        case StepKind::key:
            return times(keyOf(step), step);
        case StepKind::pause:
            return times(tr("Pause %1 s").arg(numberText(step.seconds)), step);
        case StepKind::text:
            return times(tr("Text: %1").arg(typedText(step)), step);
        case StepKind::keyDown:
            return tr("Hold %1").arg(keyOf(step));
        case StepKind::keyUp:
            return tr("Let go of %1").arg(keyOf(step));
        case StepKind::question:
            return tr("Ask: %1").arg(QString::fromStdString(step.text));
        case StepKind::notification:
            return tr("Tell: %1").arg(QString::fromStdString(step.text));
    }
    return {};
}

QString stepSpeech(const Step& step) {
    const QString count = QLocale().toString(qulonglong{step.repeats});
    switch (step.kind) {
        case StepKind::typing:
            return tr("Type %1").arg(QString::fromStdString(step.text));
        case StepKind::key:
            return step.repeats == 1 ? tr("Press %1").arg(keyOf(step))
                                     : tr("Press %1 %2 times").arg(keyOf(step), count);
        case StepKind::pause:
            return step.repeats == 1 ? tr("Wait %1 seconds").arg(numberText(step.seconds))
                                     : tr("Wait %1 seconds, %2 times").arg(numberText(step.seconds), count);
        default:
            return stepText(step);
    }
}

QString stepValue(const Step& step) {
    switch (step.kind) {
        case StepKind::typing:
        case StepKind::text:
            return QString::fromStdString(step.text);
        case StepKind::pause:
            return numberText(step.seconds);
        case StepKind::key:
            return QLocale().toString(qulonglong{step.repeats});
        default:
            return {};
    }
}
