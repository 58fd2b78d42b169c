// SPDX-License-Identifier: MIT
#pragma once

#include <QFileSystemWatcher>
#include <QTimer>
#include <functional>
#include <map>

#include "app/macros/MacroShelf.h"

/// The macro files of a folder and of the folders in it, which are groups. What others do there is followed;
/// what comes in a burst is read once.
class FolderShelf : public MacroShelf {
    Q_OBJECT

  public:
    /// `folder` makes the folder if need be and gives its path; asked when the shelf is opened.
    explicit FolderShelf(std::function<std::string()> folder);

    void open() override;
    std::vector<MacroListItem> items() const override { return m_items; }
    std::string fileOf(const std::string& path) const override { return m_root + "/" + path; }
    std::string pathOf(const std::string& file) const override { return file.substr(m_root.size() + 1); }

  private:
    /// What tells one content of a file from another.
    struct Stamp {
        qint64 time = 0;
        qint64 size = 0;

        friend bool operator==(const Stamp&, const Stamp&) = default;
    };

    void read();

    std::function<std::string()> m_folder;
    std::string m_root;
    std::vector<MacroListItem> m_items;
    std::map<std::string, Stamp> m_stamps;
    QFileSystemWatcher m_watcher;
    QTimer m_reading;
};
