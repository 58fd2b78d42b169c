// SPDX-License-Identifier: MIT
#include "platform/linux/KeyFileSettings.h"

#include <algorithm>
#include <charconv>
#include <string_view>
#include <utility>

#include "platform/linux/KeyFile.h"
#include "platform/linux/StoreSchedule.h"
#include "platform/linux/UserKeyFile.h"
#include "platform/linux/WholeFile.h"

namespace {

constexpr const char* fileName = "/keyrill/keyrill.conf";
constexpr const char* group = "Settings";
constexpr auto kind = UserKeyFile::Kind::settings;

/// 0 for what is no integer.
std::int64_t integerFrom(std::string_view text) {
    if (text == "true") return 1;
    std::int64_t value = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    return error == std::errc() && stop == end ? value : 0;
}

/// The most important first; each once, so that what is wrong with one is told once.
std::vector<std::string> presetFolders(const ConfigFolders& folders) {
    std::vector<std::string> all = folders.system;
    const std::string& own = folders.installation;
    if (!own.empty() && std::find(all.begin(), all.end(), own) == all.end()) all.push_back(own);
    return all;
}

}  // namespace

KeyFileSettings::KeyFileSettings(const ConfigFolders& folders, Use use) : KeyFileSettings(folders, use, {}) {}

KeyFileSettings::KeyFileSettings(const ConfigFolders& folders, std::function<void()> awaitTurnEnd)
    : KeyFileSettings(folders, Use::readAndWrite, std::move(awaitTurnEnd)) {}

KeyFileSettings::KeyFileSettings(const ConfigFolders& folders, Use use, std::function<void()> awaitTurnEnd)
    : m_schedule(std::make_unique<StoreSchedule>([this] { return store(); }, std::move(awaitTurnEnd))),
      m_file(std::make_unique<UserKeyFile>(folders.user + fileName, kind,
                                           [this](const Error& fault) { m_schedule->addFault(fault); })) {
    const bool isReader = use == Use::readOnly;
    const auto user = m_file->read(isReader ? UserKeyFile::Damaged::stays : UserKeyFile::Damaged::isPutAside);
    if (user) {
        // Not earlier: beside what a useless link leads to there is nothing of ours.
        if (!isReader) m_file->removeLeftovers();
        add(user.value());
    } else {
        m_schedule->addFault(user.error());
    }
    for (const std::string& folder : presetFolders(folders)) {
        const std::string path = folder + fileName;
        if (WholeFile(path).isAbsent()) continue;
        const auto file = UserKeyFile::readAny(path, kind);
        if (file) {
            add(file.value());
        } else {
            m_schedule->addFault(file.error());
        }
    }
}

KeyFileSettings::~KeyFileSettings() { m_schedule->end(); }

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
    m_schedule->noteChange();
}

std::optional<Error> KeyFileSettings::takeFault() { return m_schedule->takeFault(); }

void KeyFileSettings::endTurn() { m_schedule->endTurn(); }

Result<> KeyFileSettings::synchronize() { return m_schedule->storeNow(); }

Result<> KeyFileSettings::store() {
    if (m_unstored.empty()) return {};
    auto file = m_file->read(UserKeyFile::Damaged::isPutAside);
    if (!file) return file.error();
    bool isChanged = false;
    for (const auto& [key, text] : m_unstored) isChanged |= file.value().set(group, key, text);
    Result<> stored = isChanged ? m_file->write(file.value()) : Result<>();
    if (stored) m_unstored.clear();
    return stored;
}

void KeyFileSettings::add(const KeyFile& file) {
    for (const std::string& key : file.keys(group)) {
        m_values.emplace(key, integerFrom(file.text(group, key).value_or("")));
    }
}
