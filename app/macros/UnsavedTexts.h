// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
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

    const std::map<std::string, Draft>& all() const { return m_texts; }
    bool contains(const std::string& path) const { return m_texts.contains(path); }
    /// Null if there is none.
    const Draft* find(const std::string& path) const;

    /// `saved` is what the file has; the first one counts until the text is taken.
    void set(const std::string& path, const std::string& text, std::string_view saved);
    /// As it was taken.
    void putBack(const std::string& path, Draft draft);
    /// Empty if there is none.
    std::optional<Draft> take(const std::string& path);
    /// All at the same time: each text belongs to another path, in place of what is not saved there.
    void rename(const std::vector<FolderChanges::Rename>& renamed);

  signals:
    void notKept(const Error& why);

  private:
    void note(const std::string& path);
    void keep();

    DraftFiles m_drafts;
    std::map<std::string, Draft> m_texts;
    /// The disk has an earlier state of these.
    std::set<std::string> m_noted;
    QTimer m_timer;
};
