// A scroll area that asks for the size of its content, and scrolls it vertically only where the screen is
// too small.
#pragma once

#include <QScrollArea>

namespace tunedex {

class FittingArea final : public QScrollArea {
  public:
    // Takes ownership of `content`.
    explicit FittingArea(QWidget* content);
    ~FittingArea() override;

    // The content's own; the height at most what the screen leaves for a window.
    QSize sizeHint() const override;
    // The content's own if that is less than half of the screen's height, else a few lines of it.
    QSize minimumSizeHint() const override;

  protected:
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    void ScrollToFocus(const QWidget* before, QWidget* now);
    int OfScreen(double share) const;
};

} // namespace tunedex
