#include "ColourButton.h"

#include <QPainter>

namespace tunedex {
namespace {

constexpr int kWidth = 52;
constexpr int kInset = 6;

} // namespace

ColourButton::ColourButton(QWidget* parent) : QPushButton(parent) {
    setAutoDefault(false);
    setFixedWidth(kWidth);
}

void ColourButton::ShowColours(std::optional<QColor> colour, std::optional<QColor> inBrowsers) {
    colour_ = colour;
    inBrowsers_ = inBrowsers;
    update();
}

void ColourButton::PaintField(QPainter& painter, const QRect& field,
                              const std::optional<QColor>& colour) const {
    painter.setBrush(palette().color(QPalette::Base)); // below a colour that is not opaque
    painter.drawRect(field);
    if (colour) {
        painter.setBrush(*colour);
        painter.drawRect(field);
    } else {
        painter.drawLine(field.topLeft(), field.bottomRight());
        painter.drawLine(field.bottomLeft(), field.topRight());
    }
}

void ColourButton::paintEvent(QPaintEvent* event) {
    QPushButton::paintEvent(event);
    QPainter painter(this);
    painter.setPen(QPen(palette().color(QPalette::ButtonText)));
    const QRect field = rect().adjusted(kInset, kInset, -kInset, -kInset);
    PaintField(painter, field, colour_);
    if (colour_ != inBrowsers_) {
        PaintField(painter, field.adjusted(field.width() / 2, 0, 0, 0), inBrowsers_);
    }
}

} // namespace tunedex
