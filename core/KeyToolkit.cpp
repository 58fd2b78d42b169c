// SPDX-License-Identifier: MIT
#include "core/KeyToolkit.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

/// The value under a key; empty when it is absent or of another type.
template <typename Value>
std::optional<Value> valueFor(const DetailedError& error, const char* key) {
    const auto entry = error.userInfo.find(key);
    if (entry == error.userInfo.end()) return std::nullopt;
    const auto* value = std::get_if<Value>(&entry->second);
    return value != nullptr ? std::optional(*value) : std::nullopt;
}

}  // namespace

double easeInOut(double t) {
    constexpr double pi = std::numbers::pi;
    return (std::sin(pi * t - pi / 2) + 1) * 0.5;
}

ClosedArcPath bezierPathWithSRCRoundRectInRect(const FloatRect& rect, float radius) {
    const float cut = std::min(radius, std::min(rect.width, rect.height) / 2);
    const float left = rect.x + cut;
    const float bottom = rect.y + cut;
    const float right = rect.x + rect.width - cut;
    const float top = rect.y + rect.height - cut;
    return {{{{left, bottom, cut, 180, 270},
              {right, bottom, cut, 270, 360},
              {right, top, cut, 0, 90},
              {left, top, cut, 90, 180}}}};
}

std::optional<std::string> localizedDescription(const DetailedError& error) {
    return valueFor<std::string>(error, "NSLocalizedDescription");
}

std::optional<std::string> localizedFailureReason(const DetailedError& error) {
    return valueFor<std::string>(error, "NSLocalizedFailureReasonErrorKey");
}

std::optional<std::string> localizedRecoverySuggestion(const DetailedError& error) {
    return valueFor<std::string>(error, "NSLocalizedRecoverySuggestionErrorKey");
}

std::optional<std::vector<std::string>> localizedRecoveryOptions(const DetailedError& error) {
    return valueFor<std::vector<std::string>>(error, "NSLocalizedRecoveryOptionsKey");
}

AlertContent alertWithNonRecoverableError(const DetailedError& error) {
    AlertContent alert;
    alert.messageText = localizedDescription(error);
    const auto options = localizedRecoveryOptions(error);
    if (options && !options->empty()) alert.defaultButton = options->front();
    alert.informativeText = localizedRecoverySuggestion(error).value_or("");
    return alert;
}
