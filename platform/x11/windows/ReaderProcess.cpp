// SPDX-License-Identifier: MIT
#include "platform/x11/windows/ReaderProcess.h"

#include <cstdlib>
#include <fstream>
#include <string>

#include "platform/x11/windows/UnreadBytes.h"

namespace x11 {

namespace {

/// So long nothing keeps a program asleep that has something to read: a little more than a busy server takes
/// to answer it.
constexpr std::chrono::milliseconds soundSleep{50};
/// So long one that never sleeps soundly may take from reading to looking a key up.
constexpr std::chrono::milliseconds livelyTime{2000};

enum class Doing {
    running,
    sleeping,
    /// In a sleep of its own choice, in which nothing that comes wakes it.
    napping,
    stopped,
};

struct ProcessState {
    Doing doing = Doing::running;
    long switches = 0;
};

std::string folderOf(pid_t process) { return "/proc/" + std::to_string(process); }

bool isNapping(pid_t process) {
    std::ifstream file(folderOf(process) + "/wchan");
    std::string place;
    std::getline(file, place);
    return place.find("nanosleep") != std::string::npos;
}

Doing doingOf(pid_t process, const std::string& state) {
    if (state.find("T (") != std::string::npos || state.find("t (") != std::string::npos) {
        return Doing::stopped;
    }
    if (state.find("S (") == std::string::npos) return Doing::running;
    return isNapping(process) ? Doing::napping : Doing::sleeping;
}

/// proc(5); empty if there is no such process here, or only its remains.
std::optional<ProcessState> stateOf(pid_t process) {
    std::ifstream lines(folderOf(process) + "/status");
    std::optional<ProcessState> state;
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("State:")) {
            if (line.find("Z (") != std::string::npos) return std::nullopt;
            state = ProcessState{doingOf(process, line), 0};
        }
        if (!state || line.find("ctxt_switches:") == std::string::npos) continue;
        state->switches += std::strtol(line.c_str() + line.find(':') + 1, nullptr, 10);
    }
    return state;
}

}  // namespace

bool ReaderProcess::hasRead(Clock::Time now) {
    const auto state = stateOf(m_id);
    if (!state) return true;
    const bool isSame = state->switches == m_switches;
    m_switches = state->switches;
    const bool isAsleep = state->doing == Doing::sleeping || state->doing == Doing::napping;
    if (!isAsleep || !isSame) m_asleepSince.reset();
    if (isAsleep && !m_asleepSince) m_asleepSince = now;
    const bool sleepsSoundly = m_asleepSince && now - *m_asleepSince >= soundSleep;
    const bool isAway = state->doing == Doing::stopped || (sleepsSoundly && state->doing == Doing::napping);
    if (!m_livelySince) m_livelySince = now;
    const bool seemsDone = !isAway && (sleepsSoundly || now - *m_livelySince >= livelyTime);
    const bool isDone = seemsDone && !hasUnreadBytes(m_id);
    if (isAway || seemsDone) m_livelySince.reset();
    return isDone;
}

}  // namespace x11
