// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <map>
#include <optional>
#include <string>
#include <variant>
#include <vector>

// The key module's small tools that need no keyboard: a curve, a path and the reading of error objects. They
// are values, for whatever toolkit draws or shows them.

/// (sin(pi * t - pi / 2) + 1) / 2: 0 at 0, a half at 0.5, 1 at 1.
double easeInOut(double t);

/// The origin is the lower left corner; y grows upwards.
struct FloatRect {
    float x = 0;
    float y = 0;
    float width = 0;
    float height = 0;
};

/// Angles in degrees, counter-clockwise from the x axis; endAngle is the greater one.
struct Arc {
    float centreX = 0;
    float centreY = 0;
    float radius = 0;
    float startAngle = 0;
    float endAngle = 0;

    friend bool operator==(const Arc&, const Arc&) = default;
};

/// Arcs in drawing order, each joined to the one before by a straight line, the last one to the first.
struct ClosedArcPath {
    std::array<Arc, 4> arcs;
};

/// The rectangle with rounded corners: lower left, lower right, upper right, upper left. The radius is cut to
/// half of the shorter side.
ClosedArcPath bezierPathWithSRCRoundRectInRect(const FloatRect& rect, float radius);

/// An error object: texts, and lists of texts, under well-known keys.
struct DetailedError {
    using Value = std::variant<std::string, std::vector<std::string>>;
    std::map<std::string, Value> userInfo;
};

// What the error says under "NSLocalizedDescription", "NSLocalizedFailureReasonErrorKey",
// "NSLocalizedRecoverySuggestionErrorKey" and "NSLocalizedRecoveryOptionsKey"; empty when absent.
std::optional<std::string> localizedDescription(const DetailedError& error);
std::optional<std::string> localizedFailureReason(const DetailedError& error);
std::optional<std::string> localizedRecoverySuggestion(const DetailedError& error);
std::optional<std::vector<std::string>> localizedRecoveryOptions(const DetailedError& error);

/// What an alert shows. An absent default button has the toolkit's own title; other absent buttons are not
/// shown.
struct AlertContent {
    std::optional<std::string> messageText;
    std::optional<std::string> defaultButton;
    std::optional<std::string> alternateButton;
    std::optional<std::string> otherButton;
    std::string informativeText;
};

/// The error's description, the first of its recovery options as the only button, its recovery suggestion.
AlertContent alertWithNonRecoverableError(const DetailedError& error);
