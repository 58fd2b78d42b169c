// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <vector>

namespace script {

/// A script to take and change.
struct Recipe {
    std::string_view title;
    std::string_view words;   ///< what is to be known of it, a paragraph
    std::string_view script;  ///< lines, with tabs
    /// What tracing it prints; empty where that depends on the day.
    std::string_view events;
};

const std::vector<Recipe>& recipes();

}  // namespace script
