// SPDX-License-Identifier: MIT
#pragma once

#include <string>

class SystemFacts;

/// The machine's model, or the text that stands for an unknown one.
std::string machineType(const SystemFacts& facts);

/// The body of a bug report: a description of the machine, below which the user writes.
std::string bugReportBody(const SystemFacts& facts);
