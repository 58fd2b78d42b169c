// SPDX-License-Identifier: MIT
#include "app/macros/StepText.h"

#include <QCoreApplication>
#include <QLocale>

#include "app/shortcuts/CombinationText.h"
#include "app/widgets/MenuTitle.h"
#include "core/KeyNames.h"
#include "platform/KeyCodes.h"

namespace {

using steps::Step;
using steps::StepKind;

struct Words {
    Q_DECLARE_TR_FUNCTIONS(MacroSteps)
};

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
    return step.repeats == 1 ? text
                             : Words::tr("%1 × %2").arg(text, QLocale().toString(qulonglong{step.repeats}));
}

}  // namespace

QString stepText(const Step& step) {
    switch (step.kind) {
        case StepKind::typing:
            return inItsDirection(QString::fromStdString(step.text));
        case StepKind::key:
            return times(inItsDirection(keyOf(step)), step);
        case StepKind::pause:
            return times(Words::tr("Pause %1 s").arg(numberText(step.seconds)), step);
        case StepKind::text:
            return times(Words::tr("Text: %1").arg(typedText(step)), step);
        case StepKind::keyDown:
            //: a key that goes down and stays there
            return Words::tr("Hold %1").arg(keyOf(step));
        case StepKind::keyUp:
            return Words::tr("Let go of %1").arg(keyOf(step));
        case StepKind::question:
            //: a dialog of a script, with its question
            return Words::tr("Ask: %1").arg(QString::fromStdString(step.text));
        case StepKind::notification:
            return Words::tr("Tell: %1").arg(QString::fromStdString(step.text));
    }
    return {};
}

QString stepSpeech(const Step& step) {
    const int count = static_cast<int>(step.repeats);
    switch (step.kind) {
        case StepKind::typing:
            return Words::tr("Type %1").arg(QString::fromStdString(step.text));
        case StepKind::key:
            return step.repeats == 1 ? Words::tr("Press %1").arg(keyOf(step))
                                     : Words::tr("Press %1 %Ln times", nullptr, count).arg(keyOf(step));
        case StepKind::pause:
            return step.repeats == 1 ? Words::tr("Wait %1 seconds").arg(numberText(step.seconds))
                                     : Words::tr("Wait %1 seconds, %Ln times", nullptr, count)
                                           .arg(numberText(step.seconds));
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
