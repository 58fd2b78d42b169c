// SPDX-License-Identifier: MIT
#pragma once

#include <QPlainTextDocumentLayout>
#include <map>

/// A document whose lines have room below them for what there is to say of them.
class ScriptLayout : public QPlainTextDocumentLayout {
    Q_OBJECT

  public:
    explicit ScriptLayout(QTextDocument* document) : QPlainTextDocumentLayout(document) {}

    struct Note {
        bool isError = true;
        QString text;

        friend bool operator==(const Note&, const Note&) = default;
    };
    /// By the numbers of blocks, from 0.
    void setNotes(std::map<int, Note> notes);
    const std::map<int, Note>& notes() const { return m_notes; }

    QRectF blockBoundingRect(const QTextBlock& block) const override;
    /// The room of a note.
    qreal noteHeight() const;

  private:
    std::map<int, Note> m_notes;
};
