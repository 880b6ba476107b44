// The platform's dialogs in which the layout editor's user chooses something; tests answer in their place.
#pragma once

#include <QColor>
#include <QFont>
#include <QString>

#include <functional>
#include <optional>

class QWidget;

namespace tunedex {

// Each returns nothing when the user cancels. The first argument is the window that asks.
struct Choosers {
    std::function<std::optional<QString>(QWidget*, const QString& title, const QString& prompt)> text;
    std::function<std::optional<QColor>(QWidget*, const QColor& initial)> colour;
    std::function<std::optional<QFont>(QWidget*, const QFont& initial)> font;
};

// Qt's own dialogs.
Choosers QtChoosers();

} // namespace tunedex
