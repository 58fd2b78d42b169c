// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <numeric>
#include <vector>

/// What some measurements of one thing say. None of these takes an empty row.

inline double meanOf(const std::vector<double>& samples) {
    return std::accumulate(samples.begin(), samples.end(), 0.0) / static_cast<double>(samples.size());
}

/// The value that a share of them, 0 to 1, does not exceed.
inline double quantileOf(std::vector<double> samples, double share) {
    std::sort(samples.begin(), samples.end());
    const auto place = static_cast<std::size_t>(share * static_cast<double>(samples.size()));
    return samples[std::min(place, samples.size() - 1)];
}

inline double medianOf(const std::vector<double>& samples) { return quantileOf(samples, 0.5); }
