// A button that displays a colour.
#pragma once

#include <QColor>
#include <QPushButton>

#include <optional>

namespace tunedex {

class ColourButton : public QPushButton {
    Q_OBJECT

  public:
    explicit ColourButton(QWidget* parent = nullptr);

    // No value: a crossed-out field.
    void ShowColour(std::optional<QColor> colour);
    const std::optional<QColor>& Shown() const { return colour_; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    std::optional<QColor> colour_;
};

} // namespace tunedex
