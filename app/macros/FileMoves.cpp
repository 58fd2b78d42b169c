// SPDX-License-Identifier: MIT
#include "app/macros/FileMoves.h"

#include <fcntl.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>

#include "platform/Descriptor.h"

namespace {

namespace fs = std::filesystem;

constexpr std::size_t longestName = 255;

QString shown(const std::string& path) {
    return QFile::decodeName(QByteArray::fromStdString(fs::path(path).stem().string()));
}

QString causeOf(int number) { return QString::fromLocal8Bit(std::strerror(number)); }

Error errorOf(const QString& message) { return {message.toStdString(), ""}; }

/// 0, or the number of the error. Where the file system cannot keep others from being overwritten, what is
/// there is looked for.
int moveToFreeName(const std::string& from, const std::string& to) {
    if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return 0;
    if (errno != EINVAL && errno != ENOSYS) return errno;
    if (FileMoves::isThere(to)) return EEXIST;
    return std::rename(from.c_str(), to.c_str()) == 0 ? 0 : errno;
}

}  // namespace

bool FileMoves::isThere(const std::string& path) {
    std::error_code error;
    return fs::exists(fs::symlink_status(path, error));
}

Result<std::string> FileMoves::named(const std::string& path, const QString& name) {
    const fs::path file(path);
    const std::string extension = file.extension().string();
    const QString ending = QString::fromStdString(extension);
    QString wanted = name.trimmed();
    // Who writes the ending means the same name.
    if (!ending.isEmpty() && wanted.endsWith(ending)) wanted = wanted.chopped(ending.size()).trimmed();
    if (wanted.isEmpty()) return errorOf(tr("A macro needs a name."));
    if (wanted.contains(u'/') || wanted.contains(QChar::Null))
        return errorOf(tr("A name cannot have a slash (/) in it."));
    if (wanted.startsWith(u'.'))
        return errorOf(tr("A name cannot begin with a point: the file would be hidden."));
    const std::string whole = QFile::encodeName(wanted).toStdString() + extension;
    if (whole.size() > longestName) return errorOf(tr("The name is too long for a file."));
    return (file.parent_path() / whole).string();
}

std::string FileMoves::freeName(const std::string& path) {
    const fs::path file(path);
    const std::string stem = file.stem().string();
    for (int number = 2;; ++number) {
        const fs::path other =
            file.parent_path() / (stem + " " + std::to_string(number) + file.extension().string());
        if (!isThere(other.string())) return other.string();
    }
}

Result<> FileMoves::rename(const std::string& from, const std::string& to) {
    if (from == to) return {};
    const int error = moveToFreeName(from, to);
    if (error == EEXIST) return errorOf(tr("There is already a macro called \"%1\".").arg(shown(to)));
    if (error != 0) return errorOf(tr("\"%1\" cannot be renamed: %2.").arg(shown(from), causeOf(error)));
    return {};
}

Result<> FileMoves::copy(const std::string& from, const std::string& to) {
    QFile source(QFile::decodeName(QByteArray::fromStdString(from)));
    const auto fails = [&](const QString& cause) {
        return errorOf(tr("\"%1\" cannot be copied: %2.").arg(shown(from), cause));
    };
    if (!source.open(QIODevice::ReadOnly)) return fails(source.errorString());
    const QByteArray content = source.readAll();
    constexpr mode_t forTheUser = 0600;
    const Descriptor target(::open(to.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, forTheUser));
    if (!target) return fails(causeOf(errno));
    const int error = writeAll(target.number(), {content.data(), static_cast<std::size_t>(content.size())});
    if (error == 0) return {};
    unlink(to.c_str());
    return fails(causeOf(error));
}

Result<TrashedFile> FileMoves::trash(const std::string& path) {
    QString in;
    if (QFile::moveToTrash(QFile::decodeName(QByteArray::fromStdString(path)), &in))
        return TrashedFile{path, QFile::encodeName(in).toStdString()};
    return errorOf(tr("\"%1\" cannot be put into the trash.").arg(shown(path)));
}

Result<> FileMoves::restore(const TrashedFile& file) {
    const int error = moveToFreeName(file.in, file.from);
    if (error == EEXIST) return errorOf(tr("There is already a macro called \"%1\".").arg(shown(file.from)));
    if (error != 0)
        return errorOf(tr("\"%1\" cannot be brought back: %2.").arg(shown(file.from), causeOf(error)));
    // What the trash knows of it (Trash standard 1.0 of freedesktop.org).
    const fs::path in(file.in);
    std::error_code ignored;
    fs::remove(in.parent_path().parent_path() / "info" / (in.filename().string() + ".trashinfo"), ignored);
    return {};
}
