// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "app/macros/DraftFiles.h"
#include "platform/FolderListing.h"

/// What of macros is not saved, by their paths: in memory, and a moment later on the disk, where it outlives
/// the program. UTF-8.
class UnsavedTexts : public QObject {
    Q_OBJECT

  public:
    explicit UnsavedTexts(DraftFiles drafts);
    /// What has changed is on the disk then.
    ~UnsavedTexts() override;

    /// Takes over what an earlier run has left.
    void load();

    const std::map<std::string, std::string>& all() const { return m_texts; }
    bool contains(const std::string& path) const { return m_texts.contains(path); }
    /// Null if there is none.
    const std::string* find(const std::string& path) const;

    void set(const std::string& path, const std::string& text);
    /// Empty if there is none.
    std::optional<std::string> take(const std::string& path);
    /// All at the same time: each text belongs to another path, in place of what is not saved there.
    void rename(const std::vector<FolderChanges::Rename>& renamed);

  signals:
    void notKept(const Error& why);

  private:
    void note(const std::string& path);
    void keep();

    DraftFiles m_drafts;
    std::map<std::string, std::string> m_texts;
    /// The disk has an earlier state of these.
    std::set<std::string> m_noted;
    QTimer m_timer;
};
