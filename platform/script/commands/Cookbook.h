// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string_view>

namespace script {

/// A script to take and change.
struct Recipe {
    std::string_view title;
    std::string_view words;   ///< what is to be known of it, a paragraph
    std::string_view script;  ///< lines, with tabs
    /// What tracing it prints; empty where that depends on the day.
    std::string_view events;
};

std::span<const Recipe> recipes();

}  // namespace script
