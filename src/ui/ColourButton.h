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

    // The colour that a text means, and on the right half the one that browsers show for it. No value: a
    // crossed-out field.
    void ShowColours(std::optional<QColor> colour, std::optional<QColor> inBrowsers);
    const std::optional<QColor>& Shown() const { return colour_; }
    const std::optional<QColor>& ShownByBrowsers() const { return inBrowsers_; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void PaintField(QPainter& painter, const QRect& field, const std::optional<QColor>& colour) const;

    std::optional<QColor> colour_;
    std::optional<QColor> inBrowsers_;
};

} // namespace tunedex
