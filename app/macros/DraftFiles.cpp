// SPDX-License-Identifier: MIT
#include "app/macros/DraftFiles.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QByteArray>
#include <QCoreApplication>
#include <QCryptographicHash>
#include <QFile>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <utility>

#include "platform/Descriptor.h"

namespace {

namespace fs = std::filesystem;

struct Words {
    Q_DECLARE_TR_FUNCTIONS(DraftFiles)
};

constexpr const char* ending = ".draft";
constexpr mode_t fileMode = 0600;
constexpr mode_t folderMode = 0700;

/// Before the fingerprint, in a line of its own above the text.
constexpr std::string_view baseMark = "from ";

std::string hashOf(std::string_view bytes) {
    const QByteArray all(bytes.data(), static_cast<qsizetype>(bytes.size()));
    return QCryptographicHash::hash(all, QCryptographicHash::Sha256).toHex().toStdString();
}

/// What follows the path in a file. Earlier versions wrote the text alone.
Draft draftOf(std::string content) {
    const std::size_t begin = baseMark.size();
    const std::size_t end = begin + hashOf({}).size();
    const std::string_view all = content;
    const bool hasBase = all.starts_with(baseMark) && end < all.size() && all[end] == '\n' &&
                         all.substr(begin, end - begin).find_first_not_of("0123456789abcdef") == all.npos;
    if (!hasBase) return {std::move(content)};
    return {content.substr(end + 1), content.substr(begin, end - begin)};
}

/// As the standard asks of folders that are made.
void makeFolders(const fs::path& folder) {
    std::error_code ignored;
    if (fs::exists(folder, ignored) || !folder.has_relative_path()) return;
    makeFolders(folder.parent_path());
    mkdir(folder.c_str(), folderMode);
}

/// So that they outlive a crash of the machine. 0, or the number of the error.
int writeForGood(int file, const std::string& bytes) {
    const int error = writeAll(file, bytes);
    return error != 0 || fsync(file) == 0 ? error : errno;
}

}  // namespace

std::string fingerprintOf(std::string_view text) { return hashOf(text); }

std::string DraftFiles::fileOf(const std::string& path) const {
    return m_folder + "/" + hashOf(path) + ending;
}

std::map<std::string, Draft> DraftFiles::all() const {
    std::map<std::string, Draft> drafts;
    std::error_code error;
    for (const fs::directory_entry& entry : fs::directory_iterator(m_folder, error)) {
        if (entry.path().extension() != ending) continue;
        std::ifstream file(entry.path(), std::ios::binary);
        std::string path;
        if (!std::getline(file, path) || fileOf(path) != entry.path()) continue;
        drafts[path] = draftOf(std::string(std::istreambuf_iterator<char>(file), {}));
    }
    return drafts;
}

Result<> DraftFiles::keep(const std::string& path, const Draft& draft) const {
    std::string content = path + "\n";
    if (!draft.base.empty()) content.append(baseMark).append(draft.base).push_back('\n');
    content += draft.text;
    makeFolders(m_folder);
    const std::string whole = fileOf(path);
    const std::string part = whole + ".new";
    int error = 0;
    {
        const Descriptor file(open(part.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, fileMode));
        error = file ? writeForGood(file.number(), content) : errno;
    }
    if (error == 0 && std::rename(part.c_str(), whole.c_str()) != 0) error = errno;
    if (error == 0) return {};
    unlink(part.c_str());
    //: a folder, and why
    return Error{Words::tr("The folder %1 cannot be written to: %2.")
                     .arg(QFile::decodeName(m_folder.c_str()), QString::fromLocal8Bit(std::strerror(error)))
                     .toStdString(),
                 ""};
}

void DraftFiles::forget(const std::string& path) const { unlink(fileOf(path).c_str()); }
