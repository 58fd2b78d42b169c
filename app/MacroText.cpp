// SPDX-License-Identifier: MIT
#include "app/MacroText.h"

#include <QPainter>
#include <chrono>
#include <string_view>

namespace {

constexpr std::chrono::milliseconds frame{16};
/// More bytes than fit into a line of any font that can be read.
constexpr std::size_t keptBytes = 1024;

std::string_view endOf(std::string_view text) {
    if (text.size() <= keptBytes) return text;
    std::size_t start = text.size() - keptBytes;
    const auto isContinuation = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; };
    while (start < text.size() && isContinuation(text[start])) ++start;
    return text.substr(start);
}

}  // namespace

MacroText::MacroText(QWidget* parent) : QWidget(parent) {
    m_frame.setSingleShot(true);
    m_frame.setInterval(frame);
    connect(&m_frame, &QTimer::timeout, this, &MacroText::frameEnds);
}

void MacroText::setText(const std::string& text) {
    const std::string_view end = endOf(text);
    m_text = QString::fromUtf8(end.data(), static_cast<qsizetype>(end.size()));
    if (m_frame.isActive()) {
        m_waiting = true;
    } else {
        refresh();
    }
}

void MacroText::refresh() {
    m_waiting = false;
    m_frame.start();
    update();
    emit refreshed();
}

void MacroText::frameEnds() {
    if (m_waiting) refresh();
}

void MacroText::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setPen(Qt::white);
    painter.setLayoutDirection(layoutDirection());
    const QString visible = fontMetrics().elidedText(m_text, Qt::ElideLeft, width());
    painter.drawText(rect(), Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, visible);
}
