// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractListModel>
#include <QTimer>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "app/macros/MacroListItem.h"
#include "app/macros/MacroSearch.h"

/// The macros as the lines of a list, those of a group below its name, and of them those that are looked for.
class MacroListModel : public QAbstractListModel {
    Q_OBJECT

  public:
    explicit MacroListModel(QObject* parent = nullptr);

    /// In the order of their groups and names.
    void setItems(std::vector<MacroListItem> items);
    /// What is found in a macro, when it has been read.
    void setContent(const std::string& path, const std::string& content);
    void forgetContent(const std::string& path) { m_search.forgetContent(path); }
    bool hasContent(const std::string& path) const { return m_search.hasContent(path); }
    void setQuery(const QString& query);
    /// Whether some of its text is not saved.
    void setChanged(const std::string& path, bool isChanged);

    const std::vector<MacroListItem>& items() const { return m_items; }
    /// Null for the name of a group.
    const MacroListItem* itemAt(const QModelIndex& index) const;
    /// Invalid for one that is not shown.
    QModelIndex indexOf(const std::string& path) const;
    QModelIndex firstMacro() const;
    /// The macro below, else the one above; invalid if there is no other.
    QModelIndex neighbourOf(const QModelIndex& index) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// A new name, as the user has typed it.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

  signals:
    void renameWanted(const std::string& path, const QString& name);

  private:
    struct Row {
        /// Into m_items; of a group's name the first of its macros.
        std::size_t item = 0;
        bool isGroup = false;
    };

    void searchOn();
    void makeRows();
    /// The first that is none of a group's name, from that row on; invalid if there is none.
    QModelIndex nextMacro(int row, int step) const;

    std::vector<MacroListItem> m_items;
    std::vector<Row> m_rows;
    std::set<std::string> m_changed;
    MacroSearch m_search;
    QTimer m_searching;
};
