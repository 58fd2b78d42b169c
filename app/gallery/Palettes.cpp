// SPDX-License-Identifier: MIT
#include "app/gallery/Palettes.h"

QPalette darkPalette() {
    const QColor window(0x2a, 0x2e, 0x32);
    const QColor base(0x1b, 0x1e, 0x20);
    const QColor text(0xfc, 0xfc, 0xfc);
    const QColor faint(0xa1, 0xa9, 0xb1);
    QPalette palette(window);
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        palette.setColor(role, text);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::AlternateBase, window);
    palette.setColor(QPalette::ToolTipBase, window);
    palette.setColor(QPalette::PlaceholderText, faint);
    palette.setColor(QPalette::Highlight, QColor(0x3d, 0xae, 0xe9));
    palette.setColor(QPalette::HighlightedText, base);
    palette.setColor(QPalette::Link, QColor(0x1d, 0x99, 0xf3));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(0x6e, 0x71, 0x75));
    return palette;
}
