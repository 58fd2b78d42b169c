// SPDX-License-Identifier: MIT
#include "platform/fake/FakeMacroFiles.h"

#include "platform/AsciiText.h"

std::string FakeMacroFiles::prepareFolder() {
    m_journal.note("prepareFolder");
    ++m_preparations;
    return folder();
}

Result<std::string> FakeMacroFiles::read(const std::string& path) const {
    m_journal.note("readFile", path);
    if (const auto error = m_nextError.take()) return *error;
    const auto file = m_files.find(path);
    if (file == m_files.end()) {
        return Error{"The file " + path + " cannot be read: No such file or directory",
                     "Check that the file is there and who may read it."};
    }
    return file->second;
}

Result<> FakeMacroFiles::write(const std::string& path, std::string_view text) {
    m_journal.note("writeFile", path, text);
    if (const auto error = m_nextError.take()) return *error;
    Result<> ascii = checkAscii(text);
    if (ascii) m_files[path] = text;
    return ascii;
}

std::map<std::string, std::string> FakeMacroFiles::rename(const std::string& from, const std::string& to) {
    std::map<std::string, std::string> names;
    for (const auto& [path, text] : m_files) {
        if (path == from || path.starts_with(from + "/")) names[path] = to + path.substr(from.size());
    }
    for (const auto& [path, name] : names) m_files.insert_or_assign(name, m_files.extract(path).mapped());
    return names;
}

void FakeMacroFiles::remove(const std::string& path) {
    std::erase_if(m_files, [&path](const auto& file) {
        return file.first == path || file.first.starts_with(path + "/");
    });
}
