// SPDX-License-Identifier: MIT
#include "app/controller/ShortcutNotices.h"

#include <QCoreApplication>
#include <algorithm>

#include "app/shortcuts/CombinationText.h"
#include "app/shortcuts/ShortcutTitles.h"

namespace {

QString tr(const char* text) { return QCoreApplication::translate("ShortcutNotices", text); }

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
    return outlivesItsField(*holder) ? tr("Still used by %1 until Keyrill restarts.").arg(command)
                                     : tr("Already used by %1.").arg(command);
}

QString noticeFor(const ShortcutFacts& shortcut, const AllShortcutFacts& all) {
    if (outlivesItsField(shortcut)) {
        return tr("%1 still works until Keyrill restarts.").arg(combinationText(shortcut.asked));
    }
    if (shortcut.field == KeyCombo()) return {};
    switch (shortcut.state.status) {
        case HotKeyStatus::refused:
            return refusal(shortcut, all);
        case HotKeyStatus::pending:
            return tr("The desktop has not answered yet.");
        case HotKeyStatus::changed:
            return shortcut.state.trigger.empty() ? tr("Set in the desktop's settings.")
                                                  : tr("Set in the desktop's settings: %1")
                                                        .arg(QString::fromStdString(shortcut.state.trigger));
        case HotKeyStatus::unset:
        case HotKeyStatus::registered:
            break;
    }
    return {};
}

}  // namespace

ShortcutNoticeTexts shortcutNotices(const AllShortcutFacts& facts) {
    ShortcutNoticeTexts texts;
    std::transform(facts.begin(), facts.end(), texts.begin(),
                   [&facts](const ShortcutFacts& shortcut) { return noticeFor(shortcut, facts); });
    return texts;
}
