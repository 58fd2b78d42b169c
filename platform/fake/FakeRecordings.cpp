// SPDX-License-Identifier: MIT
#include "platform/fake/FakeRecordings.h"

#include <algorithm>
#include <iterator>
#include <utility>

Result<std::string> FakeRecordings::keep(const StoredRecording& recording) {
    if (auto error = m_nextError.take()) return *std::move(error);
    StoredRecording kept = recording;
    kept.name = std::to_string(++m_lastName);
    if (m_recordings.size() == most) m_recordings.pop_back();
    const auto isEarlier = [&kept](const StoredRecording& other) {
        return other.recordedAt <= kept.recordedAt;
    };
    m_recordings.insert(std::find_if(m_recordings.begin(), m_recordings.end(), isEarlier), kept);
    return kept.name;
}

Result<> FakeRecordings::forget(const std::string& name) {
    if (auto error = m_nextError.take()) return *std::move(error);
    std::erase_if(m_recordings, [&name](const StoredRecording& one) { return one.name == name; });
    return {};
}

Result<> FakeRecordings::forgetAll() {
    if (auto error = m_nextError.take()) return *std::move(error);
    m_recordings.clear();
    return {};
}

std::vector<std::string> FakeRecordings::titles() const {
    std::vector<std::string> titles;
    std::transform(m_recordings.begin(), m_recordings.end(), std::back_inserter(titles),
                   [](const StoredRecording& one) { return one.title; });
    return titles;
}
