// SPDX-License-Identifier: MIT
#include "app/macros/FolderShelf.h"

#include <QDateTime>
#include <QDirIterator>
#include <algorithm>
#include <chrono>
#include <tuple>
#include <utility>

namespace {

/// Editors write a file in several steps.
constexpr std::chrono::milliseconds burst{50};

bool isBefore(const MacroListItem& one, const MacroListItem& other) {
    const int groups = QString::compare(one.group, other.group, Qt::CaseInsensitive);
    const int names = QString::compare(one.name, other.name, Qt::CaseInsensitive);
    return std::tie(groups, names, one.path) < std::make_tuple(0, 0, other.path);
}

}  // namespace

FolderShelf::FolderShelf(std::function<std::string()> folder) : m_folder(std::move(folder)) {
    m_reading.setSingleShot(true);
    m_reading.setInterval(burst);
    connect(&m_reading, &QTimer::timeout, this, &FolderShelf::read);
    const auto wait = [this] {
        if (!m_reading.isActive()) m_reading.start();
    };
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, wait);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, wait);
}

void FolderShelf::open() {
    m_root = m_folder();
    read();
}

void FolderShelf::read() {
    const QDir root(QFile::decodeName(QByteArray::fromStdString(m_root)));
    QStringList folders = {root.path()};
    std::vector<MacroListItem> items;
    std::map<std::string, Stamp> stamps;
    QDirIterator entries(root.path(), QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        entries.next();
        const QFileInfo file = entries.fileInfo();
        if (file.isDir()) {
            folders.append(file.filePath());
        } else if (file.suffix().compare(QLatin1String("keyrill"), Qt::CaseInsensitive) == 0) {
            const QString path = root.relativeFilePath(file.filePath());
            const QString group = root.relativeFilePath(file.path());
            items.push_back({QFile::encodeName(path).toStdString(), file.completeBaseName(),
                             group == QLatin1String(".") ? QString() : group});
            stamps[items.back().path] = {file.lastModified().toMSecsSinceEpoch(), file.size()};
        }
    }
    if (!m_watcher.directories().isEmpty()) m_watcher.removePaths(m_watcher.directories());
    m_watcher.addPaths(folders);
    std::sort(items.begin(), items.end(), isBefore);
    const bool isOther = items != m_items;
    m_items = std::move(items);
    const std::map<std::string, Stamp> before = std::exchange(m_stamps, std::move(stamps));
    if (isOther) emit changed();
    for (const auto& [path, stamp] : m_stamps) {
        const auto known = before.find(path);
        if (known != before.end() && known->second != stamp) emit contentChanged(path);
    }
}
