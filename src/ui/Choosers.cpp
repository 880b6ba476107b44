#include "Choosers.h"

#include <QColorDialog>
#include <QFontDialog>
#include <QInputDialog>

namespace tunedex {

Choosers QtChoosers() {
    Choosers choosers;
    choosers.text = [](QWidget* parent, const QString& title,
                       const QString& prompt) -> std::optional<QString> {
        bool accepted = false;
        QString answer = QInputDialog::getText(parent, title, prompt, QLineEdit::Normal, {}, &accepted);
        return accepted ? std::optional(std::move(answer)) : std::nullopt;
    };
    choosers.colour = [](QWidget* parent, const QColor& initial) -> std::optional<QColor> {
        const QColor colour = QColorDialog::getColor(initial, parent);
        return colour.isValid() ? std::optional(colour) : std::nullopt;
    };
    choosers.font = [](QWidget* parent, const QFont& initial) -> std::optional<QFont> {
        bool accepted = false;
        const QFont font = QFontDialog::getFont(&accepted, initial, parent);
        return accepted ? std::optional(font) : std::nullopt;
    };
    return choosers;
}

} // namespace tunedex
