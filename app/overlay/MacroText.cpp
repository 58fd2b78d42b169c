// SPDX-License-Identifier: MIT
#include "app/overlay/MacroText.h"

#include <QPainter>
#include <chrono>
#include <string_view>

#include "app/overlay/OverlayPanel.h"
#include "app/widgets/MacroSigns.h"

namespace {

constexpr std::chrono::milliseconds frame{16};
/// More bytes than fit into a line of any font that can be read.
constexpr std::size_t keptBytes = 1024;
/// The characters at the end that are laid out first, and doubled until they fill the line.
constexpr qsizetype firstTried = 32;

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

QString MacroText::visibleText() const {
    const QFontMetrics metrics = fontMetrics();
    qsizetype length = firstTried;
    while (length < m_text.size() && metrics.horizontalAdvance(m_text.right(length)) <= width()) length *= 2;
    QString tail = withSignsThatShow(m_text.right(length), metrics);
    // Half of a character says nothing.
    if (!tail.isEmpty() && tail.front().isLowSurrogate()) tail.remove(0, 1);
    return metrics.elidedText(tail, Qt::ElideLeft, width());
}

void MacroText::paintEvent(QPaintEvent* /*event*/) {
    const QString text = visibleText();
    if (text.isEmpty()) return;
    constexpr int flags = Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine;
    QPainter painter(this);
    painter.setLayoutDirection(layoutDirection());
    painter.fillRect(painter.boundingRect(rect(), flags, text), overlayGround);
    painter.setPen(Qt::white);
    painter.drawText(rect(), flags, text);
}
