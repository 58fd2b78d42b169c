// SPDX-License-Identifier: MIT
#include "platform/linux/KeyFileSettings.h"

#include <glib.h>

#include <charconv>
#include <memory>
#include <string_view>
#include <vector>

namespace {

constexpr const char* fileName = "/keyrill/keyrill.conf";
constexpr const char* group = "Settings";

struct FreeMemory {
    void operator()(void* memory) const { g_free(memory); }
};
using Text = std::unique_ptr<char, FreeMemory>;

struct FreeError {
    void operator()(GError* error) const { g_error_free(error); }
};
using Failure = std::unique_ptr<GError, FreeError>;

struct FreeTexts {
    void operator()(char** texts) const { g_strfreev(texts); }
};
using Texts = std::unique_ptr<char*, FreeTexts>;

struct FreeKeyFile {
    void operator()(GKeyFile* file) const { g_key_file_free(file); }
};
using KeyFile = std::unique_ptr<GKeyFile, FreeKeyFile>;

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r";
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// 0 for what is no integer.
std::int64_t integerFrom(std::string_view text) {
    if (text == "true") return 1;
    std::int64_t value = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    return error == std::errc() && stop == end ? value : 0;
}

bool isAbsence(const GError& error) {
    return error.domain == G_FILE_ERROR &&
           (error.code == G_FILE_ERROR_NOENT || error.code == G_FILE_ERROR_NOTDIR);
}

/// Null where there is no such file.
Result<KeyFile> read(const std::string& path) {
    char* content = nullptr;
    gsize length = 0;
    GError* error = nullptr;
    if (g_file_get_contents(path.c_str(), &content, &length, &error) == FALSE) {
        const Failure failure(error);
        if (isAbsence(*failure)) return KeyFile();
        return Error{"The settings file " + path + " cannot be read: " + failure->message,
                     "Check who may read the file."};
    }
    const Text owned(content);
    KeyFile file(g_key_file_new());
    if (g_key_file_load_from_data(file.get(), content, length, G_KEY_FILE_NONE, &error) == FALSE) {
        const Failure failure(error);
        return Error{"The settings file " + path + " is not a key file: " + failure->message,
                     "Correct the file or remove it."};
    }
    return file;
}

}  // namespace

KeyFileSettings::KeyFileSettings(const ConfigFolders& folders) {
    std::vector<std::string> all = {folders.user};
    all.insert(all.end(), folders.system.begin(), folders.system.end());
    for (const std::string& folder : all) {
        const Result<> added = addDomain(folder);
        if (!added && !m_problem) m_problem = added.error();
    }
}

std::optional<std::int64_t> KeyFileSettings::integer(const std::string& key) const {
    const auto value = m_values.find(key);
    return value != m_values.end() ? std::optional(value->second) : std::nullopt;
}

Result<> KeyFileSettings::addDomain(const std::string& folder) {
    auto file = read(folder + fileName);
    if (!file) return file.error();
    if (!file.value()) return {};
    const Texts keys(g_key_file_get_keys(file.value().get(), group, nullptr, nullptr));
    for (char** key = keys.get(); key != nullptr && *key != nullptr; ++key) {
        const Text value(g_key_file_get_value(file.value().get(), group, *key, nullptr));
        m_values.emplace(*key, integerFrom(trimmed(value.get())));
    }
    return {};
}
