// SPDX-License-Identifier: MIT
#pragma once

#include <QLayout>
#include <QRect>
#include <memory>
#include <vector>

/// Groups of controls beside each other, as far as they fit; the others stand in lines below. Those of a line
/// are spread over its width. A group is a widget or a layout, and never wraps itself.
class WrappingRow final : public QLayout {
  public:
    /// Becomes a layout of none; addItem(), addWidget() or addLayout() add groups.
    WrappingRow() = default;
    ~WrappingRow() override;
    WrappingRow(const WrappingRow&) = delete;
    WrappingRow& operator=(const WrappingRow&) = delete;

    void addLayout(QLayout* group);

    void addItem(QLayoutItem* item) override { m_items.emplace_back(item); }
    int count() const override { return static_cast<int>(m_items.size()); }
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    /// All in one line.
    QSize sizeHint() const override;
    /// As wide as the widest group.
    QSize minimumSize() const override;
    void setGeometry(const QRect& area) override;

  private:
    /// From which group on, how many, and how high.
    struct Line {
        std::size_t first = 0;
        std::size_t count = 0;
        int width = 0;
        int height = 0;
    };
    std::vector<Line> linesFor(int width) const;
    void place(const Line& line, const QRect& area, int top) const;

    std::vector<std::unique_ptr<QLayoutItem>> m_items;
};
