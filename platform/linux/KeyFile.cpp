// SPDX-License-Identifier: MIT
#include "platform/linux/KeyFile.h"

#include <string_view>

#include "platform/Sentence.h"

namespace {

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r";
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::vector<std::string> copyOf(const GTexts& texts) {
    std::vector<std::string> copy;
    for (char** text = texts.get(); text != nullptr && *text != nullptr; ++text) copy.emplace_back(*text);
    return copy;
}

}  // namespace

KeyFile::KeyFile() : m_file(g_key_file_new()) {}

Result<KeyFile> KeyFile::parse(const std::string& content) {
    constexpr auto keepAll =
        static_cast<GKeyFileFlags>(G_KEY_FILE_KEEP_COMMENTS | G_KEY_FILE_KEEP_TRANSLATIONS);
    KeyFile file;
    if (content.empty()) return file;
    // The library would take the text up to there for all of it.
    if (content.find('\0') != std::string::npos) return Error{sentence("Settings", "It has a zero byte"), ""};
    GError* error = nullptr;
    if (g_key_file_load_from_data(file.m_file.get(), content.data(), content.size(), keepAll, &error) ==
        FALSE) {
        return Error{GFailure(error)->message, ""};
    }
    return file;
}

std::vector<std::string> KeyFile::groups() const {
    return copyOf(GTexts(g_key_file_get_groups(m_file.get(), nullptr)));
}

std::vector<std::string> KeyFile::keys(const std::string& group) const {
    return copyOf(GTexts(g_key_file_get_keys(m_file.get(), group.c_str(), nullptr, nullptr)));
}

std::optional<std::string> KeyFile::text(const std::string& group, const std::string& key) const {
    const GText value(g_key_file_get_value(m_file.get(), group.c_str(), key.c_str(), nullptr));
    if (!value) return std::nullopt;
    return std::string(trimmed(value.get()));
}

bool KeyFile::set(const std::string& group, const std::string& key, const std::string& text) {
    if (this->text(group, key) == text) return false;
    g_key_file_set_value(m_file.get(), group.c_str(), key.c_str(), text.c_str());
    return true;
}

void KeyFile::remove(const std::string& group, const std::string& key) {
    g_key_file_remove_key(m_file.get(), group.c_str(), key.c_str(), nullptr);
}

void KeyFile::removeGroup(const std::string& group) {
    g_key_file_remove_group(m_file.get(), group.c_str(), nullptr);
}

std::string KeyFile::content() const {
    gsize length = 0;
    const GText content(g_key_file_to_data(m_file.get(), &length, nullptr));
    return {content.get(), length};
}
