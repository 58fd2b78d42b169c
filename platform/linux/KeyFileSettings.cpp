// SPDX-License-Identifier: MIT
#include "platform/linux/KeyFileSettings.h"

#include <glib.h>

#include <charconv>
#include <string_view>

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

}  // namespace

void KeyFileSettings::Free::operator()(_GKeyFile* file) const { g_key_file_free(file); }

KeyFileSettings::KeyFileSettings(const ConfigFolders& folders) {
    addDomain(folders.user);
    for (const std::string& folder : folders.system) addDomain(folder);
}

std::optional<std::int64_t> KeyFileSettings::integer(const std::string& key) const {
    for (const KeyFile& domain : m_domains) {
        const Text value(g_key_file_get_value(domain.get(), group, key.c_str(), nullptr));
        if (value) return integerFrom(trimmed(value.get()));
    }
    return std::nullopt;
}

void KeyFileSettings::addDomain(const std::string& folder) {
    auto file = read(folder + fileName);
    if (!file) {
        if (!m_problem) m_problem = file.error();
    } else if (file.value()) {
        m_domains.push_back(std::move(file).value());
    }
}

/// Null where there is no such file.
Result<KeyFileSettings::KeyFile> KeyFileSettings::read(const std::string& path) {
    char* content = nullptr;
    gsize length = 0;
    GError* error = nullptr;
    if (g_file_get_contents(path.c_str(), &content, &length, &error) == FALSE) {
        const Failure failure(error);
        if (g_error_matches(error, G_FILE_ERROR, G_FILE_ERROR_NOENT) != FALSE ||
            g_error_matches(error, G_FILE_ERROR, G_FILE_ERROR_NOTDIR) != FALSE) {
            return KeyFile();
        }
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
