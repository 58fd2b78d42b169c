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

std::string LocalMacroFiles::prepareFolder() {
    const std::string support = m_home + "/Library/Application Support";
    std::error_code ignored;
    if (std::filesystem::is_directory(support, ignored)) {
        std::string folder = support + "/Keyrill";
        mkdir(folder.c_str(), 0777);
        FileReplacement::sweep(folder);
        return folder;
    }
    std::string folder = m_dataFolder + "/keyrill";
    // For the user alone, as the standard asks.
    g_mkdir_with_parents(folder.c_str(), 0700);
    FileReplacement::sweep(folder);
    return folder;
}

Result<std::string> LocalMacroFiles::read(const std::string& path) const {
    auto content = WholeFile(path).read(largestScript);
    if (!content) return content.error();
    std::string text = decodedText(std::move(content).value());
    if (text.size() <= largestScript) return text;
    return Error{"The file " + path + " cannot be read: It is larger than 16 MiB", "Choose a smaller file."};
}

Result<> LocalMacroFiles::write(const std::string& path, std::string_view text) {
    Result<> ascii = checkAscii(text);
    return ascii ? WholeFile(path).write(text) : ascii;
}
