// SPDX-License-Identifier: MIT
#include "app/controller/BugReport.h"

#include "platform/SystemFacts.h"

namespace {
/// Always this one, whatever the version of the program is.
constexpr const char* diagnosticVersion = "1.0";
}  // namespace

std::string machineType(const SystemFacts& facts) {
    return facts.machineName().value_or("machineType: machine name cannot be determined");
}

std::string bugReportBody(const SystemFacts& facts) {
    return std::string("Version:\t") + diagnosticVersion + "\nSystem:\t" + facts.systemVersion() +
           "\nMac:\t" + machineType(facts) + "\nCPU:\t" + std::to_string(facts.processors()) + "x" +
           std::to_string(facts.processorClock()) + "MHz\nRAM:\t" + std::to_string(facts.memory()) +
           "MB\n\nDetails:\n";
}
