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

void ColourButton::ShowColour(std::optional<QColor> colour) {
    colour_ = colour;
    update();
}

void ColourButton::paintEvent(QPaintEvent* event) {
    QPushButton::paintEvent(event);
    QPainter painter(this);
    const QRect field = rect().adjusted(kInset, kInset, -kInset, -kInset);
    const QPen frame(palette().color(QPalette::ButtonText));
    painter.setPen(frame);
    painter.setBrush(palette().color(QPalette::Base)); // below a colour that is not opaque
    painter.drawRect(field);
    if (colour_) {
        painter.setBrush(*colour_);
        painter.drawRect(field);
    }
    if (!colour_) {
        painter.drawLine(field.topLeft(), field.bottomRight());
        painter.drawLine(field.bottomLeft(), field.topRight());
    }
}

} // namespace tunedex
