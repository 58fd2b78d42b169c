// SPDX-License-Identifier: MIT
#include "app/macros/ScriptHighlighter.h"

#include <QPalette>
#include <array>

#include "app/macros/ScriptColours.h"

namespace {

/// For each ScriptPart, each with a contrast of 4.5 or more to its ground.
struct PartColours {
    QRgb onLight;
    QRgb onDark;
    bool isBold;
};

constexpr std::array<PartColours, 6> colours = {{
    {0xff7a1fa2, 0xffce93d8, true},   // keyword
    {0xff1a5fb4, 0xff78aeed, false},  // command
    {0xffa04000, 0xffffb86c, false},  // number
    {0xff1b6e2c, 0xff8fd694, false},  // text
    {0xff5e5c64, 0xffa8a6ad, false},  // comment
    {0xffc01c28, 0xffff8a80, false},  // fault
}};

bool isDark(const QPalette& palette) { return palette.color(QPalette::Base).lightness() < 128; }

}  // namespace

ScriptHighlighter::ScriptHighlighter(QTextDocument* document, const QPalette& palette)
    : QSyntaxHighlighter(document), m_isDark(isDark(palette)) {}

void ScriptHighlighter::setPalette(const QPalette& palette) {
    m_isDark = isDark(palette);
    rehighlight();
}

void ScriptHighlighter::highlightBlock(const QString& text) {
    const ScriptLine line = readScriptLine(text, std::max(previousBlockState(), 0));
    for (const ScriptSpan& span : line.spans) {
        const PartColours& part = colours.at(static_cast<std::size_t>(span.part));
        QTextCharFormat format;
        format.setForeground(QColor::fromRgb(m_isDark ? part.onDark : part.onLight));
        if (part.isBold) format.setFontWeight(QFont::Bold);
        setFormat(span.begin, span.length, format);
    }
    setCurrentBlockState(line.end);
}
