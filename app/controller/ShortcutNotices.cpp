// SPDX-License-Identifier: MIT
#include "app/controller/ShortcutNotices.h"

#include <QCoreApplication>
#include <algorithm>

#include "app/library/MacroTitles.h"
#include "app/shortcuts/CombinationText.h"
#include "app/shortcuts/ShortcutTitles.h"

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(ShortcutNotices)
};

bool works(const ShortcutFacts& shortcut) {
    return shortcut.state.status == HotKeyStatus::registered ||
           shortcut.state.status == HotKeyStatus::changed;
}

/// Whether the user has cleared the shortcut and it fires all the same.
bool outlivesItsField(const ShortcutFacts& shortcut) {
    return shortcut.field == KeyCombo() && works(shortcut);
}

QString refusal(const ShortcutFacts& refused, const AllShortcutFacts& all) {
    const auto* holder = std::find_if(all.begin(), all.end(), [&refused](const ShortcutFacts& other) {
        return works(other) && other.asked == refused.asked;
    });
    if (holder == all.end()) {
        return refused.state.error ? QString::fromStdString(refused.state.error->message) : QString();
    }
    const QString command = shortcutTitles(static_cast<std::size_t>(holder - all.begin())).command;
    return outlivesItsField(*holder) ? Words::tr("Still used by %1 until Keyrill restarts.").arg(command)
                                     : Words::tr("Already used by %1.").arg(command);
}

/// What the desktop has made of a combination that it has not refused.
QString answerText(HotKeyStatus status, const std::string& trigger) {
    if (status == HotKeyStatus::pending) return Words::tr("The desktop has not answered yet.");
    if (status != HotKeyStatus::changed) return {};
    return trigger.empty()
               ? Words::tr("Set in the desktop's settings.")
               : Words::tr("Set in the desktop's settings: %1").arg(QString::fromStdString(trigger));
}

QString noticeFor(const ShortcutFacts& shortcut, const AllShortcutFacts& all) {
    if (outlivesItsField(shortcut)) {
        return Words::tr("%1 still works until Keyrill restarts.").arg(combinationText(shortcut.asked));
    }
    if (shortcut.field == KeyCombo()) return {};
    if (shortcut.state.status == HotKeyStatus::refused) return refusal(shortcut, all);
    if (!shortcut.macro.isEmpty())
        return Words::tr("Already used by macro \"%1\", which gives way.").arg(shortcut.macro);
    return answerText(shortcut.state.status, shortcut.state.trigger);
}

QString conflictText(const HotKeyConflict& conflict) {
    switch (conflict.with) {
        case HotKeyConflict::With::shortcut:
            return Words::tr("Already used by %1.").arg(shortcutTitles(conflict.shortcut).command);
        case HotKeyConflict::With::macro:
            return Words::tr("Already used by macro \"%1\".").arg(macroName(conflict.macro));
        case HotKeyConflict::With::other:
            break;
    }
    return conflict.error ? QString::fromStdString(conflict.error->message) : QString();
}

}  // namespace

ShortcutNoticeTexts shortcutNotices(const AllShortcutFacts& facts) {
    ShortcutNoticeTexts texts;
    std::transform(facts.begin(), facts.end(), texts.begin(),
                   [&facts](const ShortcutFacts& shortcut) { return noticeFor(shortcut, facts); });
    return texts;
}

QString macroHotKeyNotice(const MacroHotKeyState& state) {
    if (state.conflict) return conflictText(*state.conflict);
    return answerText(state.status, state.trigger);
}
