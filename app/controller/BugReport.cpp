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

std::string systemVersionString(const SystemFacts& facts) { return facts.systemVersion(); }

std::int32_t processorClockSpeed(const SystemFacts& facts) { return facts.processorClock(); }

std::uint32_t countProcessors(const SystemFacts& facts) { return facts.processors(); }

std::string bugReportBody(const SystemFacts& facts) {
    return "Version:\t" + std::string(diagnosticVersion) + "\nSystem:\t" + systemVersionString(facts) +
           "\nMac:\t" + machineType(facts) + "\nCPU:\t" + std::to_string(countProcessors(facts)) + "x" +
           std::to_string(processorClockSpeed(facts)) + "MHz\nRAM:\t" + std::to_string(facts.memory()) +
           "MB\n\nDetails:\n";
}
