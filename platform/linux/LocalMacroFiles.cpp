// SPDX-License-Identifier: MIT
#include "platform/linux/LocalMacroFiles.h"

#include <sys/stat.h>

#include <filesystem>
#include <utility>

#include "platform/AsciiText.h"
#include "platform/Encoding.h"
#include "platform/ScriptingService.h"
#include "platform/linux/FileReplacement.h"
#include "platform/linux/GLibPointers.h"
#include "platform/linux/WholeFile.h"

LocalMacroFiles::LocalMacroFiles(std::string home, std::string dataFolder)
    : m_home(std::move(home)), m_dataFolder(std::move(dataFolder)) {}

std::optional<std::string> LocalMacroFiles::supportFolder() const {
    const std::string support = m_home + "/Library/Application Support";
    std::error_code ignored;
    if (!std::filesystem::is_directory(support, ignored)) return std::nullopt;
    return support + "/Keyrill";
}

std::string LocalMacroFiles::folder() const { return supportFolder().value_or(m_dataFolder + "/keyrill"); }

std::string LocalMacroFiles::prepareFolder() {
    std::string prepared = folder();
    if (supportFolder()) {
        mkdir(prepared.c_str(), 0777);
    } else {
        // For the user alone, as the standard asks.
        g_mkdir_with_parents(prepared.c_str(), 0700);
    }
    FileReplacement::sweep(prepared);
    return prepared;
}

Result<std::string> LocalMacroFiles::read(const std::string& path) const {
    auto content = WholeFile(path).read(largestScript);
    if (!content) return content.error();
    std::string text = decodedText(std::move(content).value());
    if (text.size() <= largestScript) return text;
    return WholeFile(path).tooLarge(largestScript);
}

Result<> LocalMacroFiles::write(const std::string& path, std::string_view text) {
    Result<> ascii = checkAscii(text);
    return ascii ? WholeFile(path).write(text) : ascii;
}
