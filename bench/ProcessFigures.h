// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

/// What the system tells of a process. Each throws where the process is gone.

/// Its memory that is in use.
double residentMebibytes(pid_t process);

/// The process and all that it has started, as far as they still run.
std::vector<pid_t> familyOf(pid_t process);

/// The memory of all of them; what several share is counted once.
double proportionalMebibytes(const std::vector<pid_t>& processes);

/// How often a processor has changed over to each thread of a process since it was started, by its number.
std::map<pid_t, std::uint64_t> contextSwitches(pid_t process);

/// How often since then; threads that have ended meanwhile count for one.
std::uint64_t contextSwitchesSince(const std::map<pid_t, std::uint64_t>& before, pid_t process);

/// What had to be read from the disk for it.
double mebibytesFromDisk(pid_t process);

/// The files that are in its memory: the program, libraries, caches.
std::vector<std::string> filesInMemoryOf(pid_t process);

/// The system forgets what it has kept of a file, except what running processes have in use.
void dropFromCache(const std::string& file);
