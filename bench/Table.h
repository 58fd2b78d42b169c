// SPDX-License-Identifier: MIT
#pragma once

#include <cstdio>
#include <string>

/// One measurement beside its yardstick, which is a peer or the ideal measured in the same run.
struct TableRow {
    std::string what;       ///< what was measured, "pacing, 1000 strokes at 10 ms"
    double ours = 0;        ///< in `unit`
    std::string yardstick;  ///< what stands beside it, "ideal" or "xdotool key"
    double theirs = 0;      ///< in `unit`
    std::string unit;       ///< "s", "characters/s", "MiB"
    std::string aim;        ///< "ratio <= 1.001"; empty if none is set
};

/// Prints a row of the table that bench/run heads: what | ours | beside | ratio ours/beside | aim.
inline void printRow(const TableRow& row) {
    std::printf("| %-54s | %9.5g %-12s | %-22s %9.5g | %9.4f | %s\n", row.what.c_str(), row.ours,
                row.unit.c_str(), row.yardstick.c_str(), row.theirs,
                row.theirs == 0 ? 0 : row.ours / row.theirs, row.aim.c_str());
    std::fflush(stdout);
}

/// A row for what a peer does not do here, and why.
inline void printAbsence(const std::string& what, const std::string& peer, const std::string& why) {
    std::printf("| %-54s | %s %s\n", what.c_str(), peer.c_str(), why.c_str());
    std::fflush(stdout);
}
