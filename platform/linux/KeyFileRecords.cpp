// SPDX-License-Identifier: MIT
#include "platform/linux/KeyFileRecords.h"

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <utility>

#include "platform/Utf8.h"
#include "platform/linux/KeyFile.h"
#include "platform/linux/StoreSchedule.h"
#include "platform/linux/UserKeyFile.h"

namespace {

constexpr const char* fileName = "/keyrill/macros.conf";
constexpr std::string_view hexDigits = "0123456789ABCDEF";

void appendEscaped(std::string& text, std::string_view bytes) {
    for (const char letter : bytes) {
        const auto byte = static_cast<std::uint8_t>(letter);
        text += {'%', hexDigits[byte >> 4U], hexDigits[byte & 0xFU]};
    }
}

/// Also blanks at the ends, which editors are fond of removing.
bool isEscaped(const Utf8Character& character, bool isAtEnd) {
    if (!character.code) return true;
    const std::uint32_t code = *character.code;
    return isControlCode(code) || code == '[' || code == ']' || code == '%' || (isAtEnd && code == ' ');
}

std::string groupOf(std::string_view name) {
    std::string group;
    while (!name.empty()) {
        const Utf8Character character = firstCharacter(name);
        const std::string_view bytes = name.substr(0, character.length);
        name.remove_prefix(character.length);
        if (isEscaped(character, group.empty() || name.empty())) {
            appendEscaped(group, bytes);
        } else {
            group += bytes;
        }
    }
    return group;
}

/// 16 for what is no digit.
std::size_t valueOf(char digit) { return std::min(hexDigits.find(digit), hexDigits.size()); }

std::string nameOf(std::string_view group) {
    std::string name;
    for (std::size_t i = 0; i < group.size(); ++i) {
        const bool isEscape = group[i] == '%' && i + 2 < group.size() &&
                              valueOf(group[i + 1]) < hexDigits.size() &&
                              valueOf(group[i + 2]) < hexDigits.size();
        if (isEscape) {
            name += static_cast<char>(valueOf(group[i + 1]) << 4U | valueOf(group[i + 2]));
            i += 2;
        } else {
            name += group[i];
        }
    }
    return name;
}

/// The same name can be written in several ways.
std::map<std::string, std::string> groupsByName(const KeyFile& file) {
    std::map<std::string, std::string> groups;
    for (const std::string& group : file.groups()) groups[nameOf(group)] = group;
    return groups;
}

/// What the file has in the group and the record has not is removed.
bool write(KeyFile& file, const std::string& group, const Record& record) {
    bool isChanged = false;
    for (const std::string& field : file.keys(group)) {
        if (record.contains(field)) continue;
        file.remove(group, field);
        isChanged = true;
    }
    if (record.empty()) file.removeGroup(group);
    for (const auto& [field, text] : record) isChanged |= file.set(group, field, text);
    return isChanged;
}

}  // namespace

KeyFileRecords::KeyFileRecords(const std::string& configFolder, std::function<void()> awaitTurnEnd)
    : m_schedule(std::make_unique<StoreSchedule>([this] { return store(); }, std::move(awaitTurnEnd))),
      m_file(std::make_unique<UserKeyFile>(configFolder + fileName, UserKeyFile::Kind::macroSettings,
                                           [this](const Error& fault) { m_schedule->addFault(fault); })) {}

KeyFileRecords::~KeyFileRecords() { m_schedule->end(); }

const std::map<std::string, Record>& KeyFileRecords::records() {
    if (std::exchange(m_isRead, true)) return m_records;
    const auto file = m_file->read(UserKeyFile::Damaged::isPutAside);
    if (!file) {
        m_schedule->addFault(file.error());
        return m_records;
    }
    for (const std::string& group : file.value().groups()) {
        Record record;
        for (const std::string& field : file.value().keys(group)) {
            record[field] = file.value().text(group, field).value_or("");
        }
        if (!record.empty()) m_records[nameOf(group)] = std::move(record);
    }
    return m_records;
}

void KeyFileRecords::set(const std::string& name, const Record& record) {
    records();
    if (record.empty()) {
        m_records.erase(name);
    } else {
        m_records[name] = record;
    }
    m_unstored[name] = record;
    m_schedule->noteChange();
}

Result<> KeyFileRecords::synchronize() { return m_schedule->storeNow(); }

std::optional<Error> KeyFileRecords::takeFault() { return m_schedule->takeFault(); }

void KeyFileRecords::endTurn() { m_schedule->endTurn(); }

Result<> KeyFileRecords::store() {
    if (m_unstored.empty()) return {};
    auto file = m_file->read(UserKeyFile::Damaged::isPutAside);
    if (!file) return file.error();
    const std::map<std::string, std::string> groups = groupsByName(file.value());
    bool isChanged = false;
    for (const auto& [name, record] : m_unstored) {
        const auto group = groups.find(name);
        isChanged |= write(file.value(), group == groups.end() ? groupOf(name) : group->second, record);
    }
    Result<> stored = isChanged ? m_file->write(file.value()) : Result<>();
    if (stored) m_unstored.clear();
    return stored;
}
