// SPDX-License-Identifier: MIT
#include "platform/EditDistance.h"

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

/// Row by row; a swap looks back to the row before the last.
std::size_t editDistance(std::string_view left, std::string_view right) {
    std::vector<std::size_t> before(right.size() + 1);
    std::vector<std::size_t> last(right.size() + 1);
    std::vector<std::size_t> row(right.size() + 1);
    std::iota(row.begin(), row.end(), 0U);
    for (std::size_t i = 1; i <= left.size(); ++i) {
        std::swap(before, last);
        std::swap(last, row);
        row[0] = i;
        for (std::size_t j = 1; j <= right.size(); ++j) {
            const std::size_t changed = last[j - 1] + (left[i - 1] == right[j - 1] ? 0 : 1);
            row[j] = std::min({changed, last[j] + 1, row[j - 1] + 1});
            const bool areSwapped =
                i > 1 && j > 1 && left[i - 1] == right[j - 2] && left[i - 2] == right[j - 1];
            if (areSwapped) row[j] = std::min(row[j], before[j - 2] + 1);
        }
    }
    return row.back();
}
