// SPDX-License-Identifier: MIT
#include "platform/linux/KeyFileSettings.h"

#include <glib.h>

#include <array>
#include <cerrno>
#include <charconv>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <filesystem>
#include <string_view>
#include <utility>

#include "platform/linux/KeyFile.h"
#include "platform/linux/WholeFile.h"

namespace {

constexpr const char* fileName = "/keyrill/keyrill.conf";
constexpr const char* group = "Settings";

/// 0 for what is no integer.
std::int64_t integerFrom(std::string_view text) {
    if (text == "true") return 1;
    std::int64_t value = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    return error == std::errc() && stop == end ? value : 0;
}

WholeFile settingsFile(const std::string& path) { return WholeFile(path, "settings file"); }

Result<KeyFile> readFile(const std::string& path) {
    const auto content = settingsFile(path).read();
    if (!content) return content.error();
    auto file = KeyFile::parse(content.value());
    if (file) return file;
    return Error{"The settings file " + path + " is not a key file: " + file.error().message,
                 "Correct the file or remove it."};
}

/// A name for a file that is put aside, which nothing has yet.
std::string asideName(const std::string& path) {
    const std::time_t now = std::time(nullptr);
    std::tm utc{};
    gmtime_r(&now, &utc);
    std::array<char, 32> time{};
    std::strftime(time.data(), time.size(), "%Y%m%d-%H%M%S", &utc);
    const std::string first = path + ".bad-" + time.data();
    std::string name = first;
    std::error_code error;
    for (int number = 2; std::filesystem::exists(std::filesystem::symlink_status(name, error)); ++number) {
        name = first + "-" + std::to_string(number);
    }
    return name;
}

}  // namespace

KeyFileSettings::KeyFileSettings(const ConfigFolders& folders, Use use) : KeyFileSettings(folders, use, {}) {}

KeyFileSettings::KeyFileSettings(const ConfigFolders& folders, std::function<void()> awaitTurnEnd)
    : KeyFileSettings(folders, Use::readAndWrite, std::move(awaitTurnEnd)) {}

KeyFileSettings::KeyFileSettings(const ConfigFolders& folders, Use use, std::function<void()> awaitTurnEnd)
    : m_path(folders.user + fileName), m_use(use), m_awaitTurnEnd(std::move(awaitTurnEnd)) {
    const auto user = readUsersFile();
    if (user) {
        // Not earlier: beside what a useless link leads to there is nothing of ours.
        if (m_use == Use::readAndWrite) settingsFile(m_path).removeLeftovers();
        add(user.value());
    } else {
        m_faults.push_back(user.error());
    }
    for (const std::string& folder : folders.system) {
        const std::string path = folder + fileName;
        if (settingsFile(path).isAbsent()) continue;
        const auto file = readFile(path);
        if (file) {
            add(file.value());
        } else {
            m_faults.push_back(file.error());
        }
    }
}

KeyFileSettings::~KeyFileSettings() { endTurn(); }

std::optional<std::int64_t> KeyFileSettings::integer(const std::string& key) const {
    const auto value = m_values.find(key);
    return value != m_values.end() ? std::optional(value->second) : std::nullopt;
}

void KeyFileSettings::setInteger(const std::string& key, std::int64_t value) {
    set(key, value, std::to_string(value));
}

void KeyFileSettings::setBool(const std::string& key, bool value) {
    set(key, value ? 1 : 0, value ? "true" : "false");
}

void KeyFileSettings::set(const std::string& key, std::int64_t value, const std::string& text) {
    m_values[key] = value;
    m_unstored[key] = text;
    if (!std::exchange(m_isDue, true) && m_awaitTurnEnd) m_awaitTurnEnd();
}

std::optional<Error> KeyFileSettings::takeFault() {
    if (m_faults.empty()) return std::nullopt;
    Error fault = std::move(m_faults.front());
    m_faults.pop_front();
    return fault;
}

void KeyFileSettings::endTurn() {
    if (!m_isDue) return;
    const std::optional<Error> before = m_lastFailure;
    const Result<> stored = KeyFileSettings::synchronize();
    if (!stored && stored.error() != before) m_faults.push_back(stored.error());
}

Result<> KeyFileSettings::synchronize() {
    m_isDue = false;
    if (m_unstored.empty()) return {};
    Result<> stored = store();
    if (stored) {
        m_unstored.clear();
        m_lastFailure.reset();
    } else {
        m_lastFailure = stored.error();
    }
    return stored;
}

Result<> KeyFileSettings::store() {
    auto file = readUsersFile();
    if (!file) return file.error();
    bool isChanged = false;
    for (const auto& [key, text] : m_unstored) isChanged |= file.value().set(group, key, text);
    if (!isChanged) return {};
    const std::string folder = std::filesystem::path(m_path).parent_path();
    if (g_mkdir_with_parents(folder.c_str(), 0700) != 0) {
        return Error{"The settings folder " + folder + " cannot be made: " + std::strerror(errno),
                     "Check who may write there."};
    }
    return settingsFile(m_path).write(file.value().content(), 0600);
}

Result<KeyFile> KeyFileSettings::readUsersFile() {
    if (!settingsFile(m_path).isAbsent()) {
        auto file = readFile(m_path);
        if (file || m_use == Use::readOnly) return file;
        const Result<> aside = putAside(file.error());
        if (!aside) return aside.error();
    }
    return KeyFile();
}

Result<> KeyFileSettings::putAside(const Error& fault) {
    // A link by itself: what it leads to may be anybody's, and be used elsewhere.
    const std::string aside = asideName(m_path);
    if (std::rename(m_path.c_str(), aside.c_str()) != 0) {
        return Error{fault.message, "It could not be put aside either: " + std::string(std::strerror(errno))};
    }
    m_faults.push_back({fault.message, "It was renamed to " + aside + ", and the settings begin anew."});
    return {};
}

void KeyFileSettings::add(const KeyFile& file) {
    for (const std::string& key : file.keys(group)) {
        m_values.emplace(key, integerFrom(file.text(group, key).value_or("")));
    }
}
