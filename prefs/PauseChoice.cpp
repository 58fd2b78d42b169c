// SPDX-License-Identifier: MIT
#include "prefs/PauseChoice.h"

#include "platform/SettingsStore.h"

namespace {

constexpr const char* pausesKey = "recordPauses";
constexpr const char* limitKey = "recordPausesLimit";

}  // namespace

PauseChoice storedPauseChoice(const SettingsStore& store) {
    PauseChoice choice;
    const std::int64_t pauses = store.integer(pausesKey).value_or(0);
    if (pauses == static_cast<std::int64_t>(PauseRecording::asTyped)) choice.kind = PauseRecording::asTyped;
    if (pauses == static_cast<std::int64_t>(PauseRecording::atMost)) choice.kind = PauseRecording::atMost;
    const std::int64_t limit = store.integer(limitKey).value_or(PauseChoice::usualLimit);
    if (limit >= PauseChoice::shortestLimit && limit <= PauseChoice::longestLimit) {
        choice.limit = static_cast<std::int32_t>(limit);
    }
    return choice;
}

void storePauseChoice(SettingsStore& store, const PauseChoice& choice) {
    store.setInteger(pausesKey, static_cast<std::int64_t>(choice.kind));
    store.setInteger(limitKey, choice.limit);
}
