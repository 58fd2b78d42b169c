// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/check/HotKeyProbe.h"
#include "platform/Capabilities.h"
#include "platform/Result.h"

/// What was found out of the session.
struct SessionFacts {
    /// The kind of session, as users write it; empty if the process was started in none.
    std::string kind;
    /// Why it was started in none.
    std::optional<Error> noSession;
    SessionCapabilities capabilities;
    SessionDetails details;
    bool hasSessionBus = false;
    bool isRunning = false;
    /// Empty where none could be asked for.
    std::vector<HotKeyFact> hotKeys;
};

enum class Verdict {
    works,
    /// It does not, or not everywhere.
    fails,
    uncertain,
};

struct ReportLine {
    Verdict verdict = Verdict::works;
    std::string text = {};
    /// What to do; empty if nothing.
    std::string advice = {};

    friend bool operator==(const ReportLine&, const ReportLine&) = default;
};

/// In the user's language, in a fixed order.
std::vector<ReportLine> sessionReport(const SessionFacts& facts);

/// Lines with their ends: "ok  ...", "no  ...", "?   ...", the advice below, moved to the right.
std::string reportText(const std::vector<ReportLine>& report);
/// The report of such a text; what is no line of one is left out.
std::vector<ReportLine> reportOf(std::string_view text);

/// 1 if something does not work, else 2 if that of something is uncertain, else 0.
int reportStatus(const std::vector<ReportLine>& report);
