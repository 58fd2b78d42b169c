// SPDX-License-Identifier: MIT
#include "app/macros/MacroListModel.h"

#include <QFont>
#include <QGuiApplication>
#include <QPalette>

#include "app/widgets/MenuTitle.h"

namespace {

/// What is looked at in one turn of the loop: a few milliseconds.
constexpr std::size_t bytesAtOnce = std::size_t{4} << 20U;

}  // namespace

MacroListModel::MacroListModel(QObject* parent) : QAbstractListModel(parent) {
    m_searching.setInterval(0);
    connect(&m_searching, &QTimer::timeout, this, &MacroListModel::searchOn);
}

void MacroListModel::setItems(std::vector<MacroListItem> items) {
    m_items = std::move(items);
    m_search.setItems(m_items);
    makeRows();
    m_searching.start();
}

void MacroListModel::setContent(const std::string& path, const std::string& content) {
    m_search.setContent(path, content);
    if (!m_search.query().isEmpty()) m_searching.start();
}

void MacroListModel::setQuery(const QString& query) {
    m_search.setQuery(query);
    m_search.searchOn(bytesAtOnce);
    makeRows();
    m_searching.start();
}

void MacroListModel::searchOn() {
    if (m_search.searchOn(bytesAtOnce)) makeRows();
    if (m_search.isDone()) m_searching.stop();
}

void MacroListModel::makeRows() {
    beginResetModel();
    m_rows.clear();
    const QString* group = nullptr;
    for (std::size_t index = 0; index < m_items.size(); ++index) {
        if (!m_search.isFound(index)) continue;
        const QString& own = m_items[index].group;
        if (!own.isEmpty() && (group == nullptr || *group != own)) m_rows.push_back({index, true});
        group = &own;
        m_rows.push_back({index, false});
    }
    endResetModel();
}

void MacroListModel::setChanged(const std::string& path, bool isChanged) {
    const bool wasChanged = m_changed.contains(path);
    if (wasChanged == isChanged) return;
    if (isChanged) {
        m_changed.insert(path);
    } else {
        m_changed.erase(path);
    }
    const QModelIndex index = indexOf(path);
    if (index.isValid()) emit dataChanged(index, index);
}

const MacroListItem* MacroListModel::itemAt(const QModelIndex& index) const {
    const auto row = static_cast<std::size_t>(index.row());
    if (!index.isValid() || row >= m_rows.size() || m_rows[row].isGroup) return nullptr;
    return &m_items[m_rows[row].item];
}

QModelIndex MacroListModel::indexOf(const std::string& path) const {
    for (std::size_t row = 0; row < m_rows.size(); ++row) {
        if (!m_rows[row].isGroup && m_items[m_rows[row].item].path == path)
            return index(static_cast<int>(row));
    }
    return {};
}

QModelIndex MacroListModel::firstMacro() const { return nextMacro(0, 1); }

QModelIndex MacroListModel::neighbourOf(const QModelIndex& index) const {
    if (!index.isValid()) return {};
    const QModelIndex below = nextMacro(index.row() + 1, 1);
    return below.isValid() ? below : nextMacro(index.row() - 1, -1);
}

QModelIndex MacroListModel::nextMacro(int row, int step) const {
    for (; row >= 0 && row < rowCount(); row += step) {
        if (!m_rows[static_cast<std::size_t>(row)].isGroup) return index(row);
    }
    return {};
}

int MacroListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant MacroListModel::data(const QModelIndex& index, int role) const {
    const auto row = static_cast<std::size_t>(index.row());
    if (!index.isValid() || row >= m_rows.size()) return {};
    const MacroListItem& item = m_items[m_rows[row].item];
    if (m_rows[row].isGroup) {
        if (role == Qt::DisplayRole) return item.group;
        if (role == Qt::AccessibleTextRole) return tr("Group %1").arg(item.group);
        // It cannot be chosen, but is there to be read.
        if (role == Qt::ForegroundRole) return QGuiApplication::palette().text();
        if (role != Qt::FontRole) return {};
        QFont font;
        font.setBold(true);
        return font;
    }
    const bool isChanged = m_changed.contains(item.path);
    const auto withHotKey = [&item](const QString& name) {
        return item.hotKey.isEmpty()
                   ? name
                   : tr("%1 (%2)", "a macro and its hot key").arg(name, inItsDirection(item.hotKey));
    };
    switch (role) {
        case Qt::DisplayRole:
            return withHotKey(inItsDirection(item.name) + (isChanged ? QStringLiteral(" •") : QString()));
        case Qt::AccessibleTextRole:
            return isChanged ? tr("%1, not saved").arg(withHotKey(item.name)) : withHotKey(item.name);
        case Qt::EditRole:
            return item.name;
        case Qt::ToolTipRole:
            return QString::fromStdString(item.path);
        default:
            return {};
    }
}

Qt::ItemFlags MacroListModel::flags(const QModelIndex& index) const {
    if (itemAt(index) == nullptr) return Qt::NoItemFlags;
    return QAbstractListModel::flags(index) | Qt::ItemIsEditable | Qt::ItemNeverHasChildren;
}

bool MacroListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    const MacroListItem* const item = itemAt(index);
    if (role != Qt::EditRole || item == nullptr || value.toString() == item->name) return false;
    // The list may be another before this returns.
    const std::string path = item->path;
    emit renameWanted(path, value.toString());
    return true;
}
