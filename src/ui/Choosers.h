// The text, colour and font dialogs of the layout editor, replaceable in tests.
#pragma once

#include <QColor>
#include <QFont>
#include <QString>

#include <functional>
#include <optional>

class QWidget;

namespace tunedex {

// Each returns no value when the user cancels. The first argument is the parent window.
struct Choosers {
    std::function<std::optional<QString>(QWidget*, const QString& title, const QString& prompt)> text;
    std::function<std::optional<QColor>(QWidget*, const QColor& initial)> colour;
    std::function<std::optional<QFont>(QWidget*, const QFont& initial)> font;
};

// The dialogs of Qt.
Choosers QtChoosers();

} // namespace tunedex
