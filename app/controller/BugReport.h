// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

class SystemFacts;

// What it tells of the machine; unknown numbers are 0.

std::string systemVersionString(const SystemFacts& facts);
/// The model, or the text that stands for an unknown one.
std::string machineType(const SystemFacts& facts);
/// In MHz.
std::int32_t processorClockSpeed(const SystemFacts& facts);
std::uint32_t countProcessors(const SystemFacts& facts);

/// The body of a bug report: a description of the machine, below which the user writes.
std::string bugReportBody(const SystemFacts& facts);
