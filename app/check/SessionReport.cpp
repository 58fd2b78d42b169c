// SPDX-License-Identifier: MIT
#include "app/check/SessionReport.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>
#include <algorithm>
#include <array>

#include "app/check/CapabilityWords.h"
#include "app/shortcuts/ShortcutTitles.h"
#include "platform/Parts.h"

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(SessionReport)
};

QString joined(const std::vector<std::string>& words) {
    QStringList list;
    for (const std::string& word : words) list.append(QString::fromStdString(word));
    //: between the names of a list
    return list.join(Words::tr(", "));
}

ReportLine line(Verdict verdict, const QString& title, const QString& text, const QString& advice = {}) {
    //: a line of keyrill --check: what was looked at, and what was found
    return {verdict, Words::tr("%1: %2").arg(title, text).toStdString(), advice.toStdString()};
}

ReportLine sessionLine(const SessionFacts& facts) {
    const QString title = Words::tr("Session");
    if (facts.noSession) {
        return line(Verdict::fails, title, QString::fromStdString(facts.noSession->message),
                    QString::fromStdString(facts.noSession->hint));
    }
    return line(Verdict::works, title,
                Words::tr("%1, display %2")
                    .arg(QString::fromStdString(facts.kind), QString::fromStdString(facts.details.display)));
}

/// Those that are there; what the others cost stands at the capabilities.
ReportLine partsLine(const SessionDetails& details) {
    std::vector<std::string> there;
    std::vector<std::string> missing;
    for (const auto& part : details.parts) (part.isThere ? there : missing).push_back(part.name);
    const QString title = Words::tr("Parts");
    if (missing.empty()) return line(Verdict::works, title, joined(there));
    return line(Verdict::fails, title,
                Words::tr("missing: %1; there: %2").arg(joined(missing), joined(there)));
}

struct CapabilityRow {
    CapabilityState SessionCapabilities::*state;
    const char* title;
};

constexpr std::array capabilityRows = {
    CapabilityRow{&SessionCapabilities::recording, QT_TRANSLATE_NOOP("SessionReport", "Recording")},
    CapabilityRow{&SessionCapabilities::hotKeys, QT_TRANSLATE_NOOP("SessionReport", "Hot keys")},
    CapabilityRow{&SessionCapabilities::pressing, QT_TRANSLATE_NOOP("SessionReport", "Pressing keys")},
    CapabilityRow{&SessionCapabilities::text, QT_TRANSLATE_NOOP("SessionReport", "Typing text")},
    CapabilityRow{&SessionCapabilities::clipboard, QT_TRANSLATE_NOOP("SessionReport", "Clipboard")},
    CapabilityRow{&SessionCapabilities::overlay, QT_TRANSLATE_NOOP("SessionReport", "Overlay")},
    CapabilityRow{&SessionCapabilities::windows,
                  QT_TRANSLATE_NOOP("SessionReport", "Windows of other programs")},
    CapabilityRow{&SessionCapabilities::tray, QT_TRANSLATE_NOOP("SessionReport", "Tray")},
};

ReportLine capabilityLine(const CapabilityRow& row, const SessionCapabilities& capabilities) {
    const CapabilityState& state = capabilities.*row.state;
    const QString means = meansWords(state.means);
    const LackWords words = lackWords(state.lack);
    if (state.extent == Extent::fully) return line(Verdict::works, Words::tr(row.title), means);
    //: by what it works, and what is missing all the same, which is a sentence
    const QString text = means.isEmpty() ? words.loss : Words::tr("%1. %2").arg(means, words.loss);
    return line(Verdict::fails, Words::tr(row.title), text, words.advice);
}

ReportLine hotKeyLine(const HotKeyFact& fact) {
    const QString title = Words::tr("Hot key of \"%1\"").arg(shortcutTitles(fact.shortcut).command);
    const QString combination = QString::fromStdString(fact.combination);
    switch (fact.finding) {
        case HotKeyFinding::unset:
            return line(Verdict::works, title, Words::tr("none is chosen"));
        case HotKeyFinding::free:
            return line(Verdict::works, title, Words::tr("%1, which nobody else has").arg(combination));
        case HotKeyFinding::ours:
            return line(Verdict::works, title,
                        Words::tr("%1, which the running Keyrill has").arg(combination));
        case HotKeyFinding::taken:
            return line(Verdict::fails, title, QString::fromStdString(fact.why.message),
                        QString::fromStdString(fact.why.hint));
        case HotKeyFinding::uncertain:
            break;
    }
    return line(Verdict::uncertain, title,
                Words::tr("%1; the session does not tell who has it").arg(combination));
}

ReportLine busLine(bool isThere) {
    const QString title = Words::tr("Session bus");
    //: the session bus exists
    if (isThere) return line(Verdict::works, title, Words::tr("there"));
    return line(
        Verdict::fails, title,
        Words::tr("There is none: \"keyrill --action\", notifications and many trays need it, and a locked "
                  "screen is not noticed at once."),
        Words::tr("Start Keyrill from within the desktop session."));
}

ReportLine programLine(bool isRunning) {
    return line(Verdict::works, Words::tr("Keyrill"),
                isRunning ? Words::tr("is running") : Words::tr("is not running"));
}

QString locksWords(const std::vector<std::string>& locks) {
    if (locks.empty()) return Words::tr("no lock is on");
    return Words::tr("on: %1, which macros do not mind").arg(joined(locks));
}

ReportLine keyboardLine(const SessionDetails& details) {
    const QString layouts = details.layouts.empty() ? Words::tr("layout unknown")
                                                    : Words::tr("layout %1").arg(joined(details.layouts));
    return line(Verdict::works, Words::tr("Keyboard"),  //: the keyboard layouts, and the locks that are on
                Words::tr("%1; %2").arg(layouts, locksWords(details.locksOn)));
}

constexpr std::string_view adviceIndent = "        ";

const char* mark(Verdict verdict) {
    switch (verdict) {
        case Verdict::works:
            return "ok  ";
        case Verdict::fails:
            return "no  ";
        case Verdict::uncertain:
            break;
    }
    return "?   ";
}

bool has(const std::vector<ReportLine>& report, Verdict verdict) {
    return std::any_of(report.begin(), report.end(),
                       [verdict](const ReportLine& found) { return found.verdict == verdict; });
}

}  // namespace

std::vector<ReportLine> sessionReport(const SessionFacts& facts) {
    std::vector<ReportLine> report = {sessionLine(facts)};
    if (!facts.noSession) {
        report.push_back(partsLine(facts.details));
        for (const CapabilityRow& row : capabilityRows)
            report.push_back(capabilityLine(row, facts.capabilities));
        for (const HotKeyFact& fact : facts.hotKeys) report.push_back(hotKeyLine(fact));
        report.push_back(keyboardLine(facts.details));
    }
    report.push_back(busLine(facts.hasSessionBus));
    report.push_back(programLine(facts.isRunning));
    return report;
}

std::string reportText(const std::vector<ReportLine>& report) {
    std::string text;
    for (const ReportLine& found : report) {
        text += mark(found.verdict) + found.text + "\n";
        if (!found.advice.empty()) text += std::string(adviceIndent) + found.advice + "\n";
    }
    return text;
}

std::vector<ReportLine> reportOf(std::string_view text) {
    std::vector<ReportLine> report;
    while (!text.empty()) {
        const std::string_view written = takePart(text, '\n');
        for (const Verdict verdict : {Verdict::works, Verdict::fails, Verdict::uncertain}) {
            const std::string_view begin = mark(verdict);
            if (written.starts_with(begin))
                report.push_back({.verdict = verdict, .text = std::string(written.substr(begin.size()))});
        }
        if (written.starts_with(adviceIndent) && !report.empty())
            report.back().advice = written.substr(adviceIndent.size());
    }
    return report;
}

int reportStatus(const std::vector<ReportLine>& report) {
    if (has(report, Verdict::fails)) return 1;
    return has(report, Verdict::uncertain) ? 2 : 0;
}
