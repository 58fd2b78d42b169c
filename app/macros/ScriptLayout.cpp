// SPDX-License-Identifier: MIT
#include "app/macros/ScriptLayout.h"

#include <QFontMetricsF>
#include <QTextBlock>
#include <QTextDocument>

void ScriptLayout::setNotes(std::map<int, Note> notes) {
    if (notes == m_notes) return;
    std::map<int, Note> before = std::exchange(m_notes, std::move(notes));
    before.insert(m_notes.begin(), m_notes.end());
    for (const auto& [number, note] : before) {
        const QTextBlock block = document()->findBlockByNumber(number);
        if (block.isValid()) document()->markContentsDirty(block.position(), block.length());
    }
    emit documentSizeChanged(documentSize());
    emit update();
}

QRectF ScriptLayout::blockBoundingRect(const QTextBlock& block) const {
    QRectF rectangle = QPlainTextDocumentLayout::blockBoundingRect(block);
    if (m_notes.contains(block.blockNumber())) rectangle.adjust(0, 0, 0, noteHeight());
    return rectangle;
}

qreal ScriptLayout::noteHeight() const {
    constexpr qreal gap = 2;
    return QFontMetricsF(document()->defaultFont()).lineSpacing() + gap;
}
