// SPDX-License-Identifier: MIT
#include "app/widgets/WrappingRow.h"

#include <QStyle>
#include <QWidget>
#include <algorithm>

WrappingRow::~WrappingRow() {
    // A group that goes asks its row to let go of it.
    while (!m_items.empty()) delete takeAt(0);
}

void WrappingRow::addLayout(QLayout* group) {
    addChildLayout(group);
    addItem(group);
}

QLayoutItem* WrappingRow::itemAt(int index) const {
    return index >= 0 && index < count() ? m_items[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* WrappingRow::takeAt(int index) {
    if (itemAt(index) == nullptr) return nullptr;
    QLayoutItem* const item = m_items[static_cast<std::size_t>(index)].release();
    m_items.erase(m_items.begin() + index);
    return item;
}

std::vector<WrappingRow::Line> WrappingRow::linesFor(int width) const {
    std::vector<Line> lines;
    for (std::size_t i = 0; i < m_items.size(); ++i) {
        const QSize size = m_items[i]->sizeHint();
        if (lines.empty() || lines.back().width + spacing() + size.width() > width) {
            lines.push_back({.first = i, .count = 1, .width = size.width(), .height = size.height()});
        } else {
            Line& line = lines.back();
            ++line.count;
            line.width += spacing() + size.width();
            line.height = std::max(line.height, size.height());
        }
    }
    return lines;
}

int WrappingRow::heightForWidth(int width) const {
    const QMargins margins = contentsMargins();
    int height = margins.top() + margins.bottom() - spacing();
    for (const Line& line : linesFor(width - margins.left() - margins.right()))
        height += line.height + spacing();
    return height;
}

QSize WrappingRow::sizeHint() const {
    const std::vector<Line> lines = linesFor(QWIDGETSIZE_MAX);
    const QSize size = lines.empty() ? QSize(0, 0) : QSize(lines.front().width, lines.front().height);
    return size.grownBy(contentsMargins());
}

QSize WrappingRow::minimumSize() const {
    QSize size;
    for (const auto& item : m_items) size = size.expandedTo(item->minimumSize());
    return size.grownBy(contentsMargins());
}

void WrappingRow::setGeometry(const QRect& area) {
    QLayout::setGeometry(area);
    const QRect inner = area.marginsRemoved(contentsMargins());
    int top = inner.top();
    for (const Line& line : linesFor(inner.width())) {
        place(line, inner, top);
        top += line.height + spacing();
    }
}

void WrappingRow::place(const Line& line, const QRect& area, int top) const {
    const int gaps = static_cast<int>(line.count) - 1;
    const int spare = std::max(area.width() - line.width, 0);
    const int gap = spacing() + (gaps == 0 ? 0 : spare / gaps);
    const Qt::LayoutDirection direction =
        parentWidget() == nullptr ? Qt::LeftToRight : parentWidget()->layoutDirection();
    int left = area.left();
    for (std::size_t i = line.first; i < line.first + line.count; ++i) {
        const int width = std::min(m_items[i]->sizeHint().width(), area.width());
        m_items[i]->setGeometry(QStyle::visualRect(direction, area, {left, top, width, line.height}));
        left += width + gap;
    }
}
