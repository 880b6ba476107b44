// The light and dark palettes for tests and screenshots.
#pragma once

#include <QColor>
#include <QPalette>

namespace tunedex::test {

inline QPalette LightPalette() {
    QPalette palette(QColor(239, 239, 239), QColor(239, 239, 239));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(246, 246, 246));
    palette.setColor(QPalette::Highlight, QColor(48, 112, 202));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::PlaceholderText, QColor(0, 0, 0, 128));
    return palette;
}

inline QPalette DarkPalette() {
    const QColor window(45, 45, 48);
    const QColor text(235, 235, 235);
    QPalette palette(window, window);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, QColor(130, 130, 130));
    }
    palette.setColor(QPalette::Base, QColor(30, 30, 32));
    palette.setColor(QPalette::AlternateBase, QColor(38, 38, 41));
    palette.setColor(QPalette::ToolTipBase, window);
    palette.setColor(QPalette::Highlight, QColor(60, 120, 210));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(120, 170, 255));
    palette.setColor(QPalette::PlaceholderText, QColor(235, 235, 235, 128));
    return palette;
}

} // namespace tunedex::test
