#include "FittingArea.h"

#include <QApplication>
#include <QEvent>
#include <QScreen>
#include <QScrollBar>

#include <algorithm>

namespace tunedex {
namespace {

constexpr int kFewestLines = 8;
// Shares of the screen's height. The rest is for panels, the frame of the window, and what is below the area.
constexpr double kMost = 0.75;
constexpr double kAlwaysWhole = 0.45; // content of at most this height is never scrolled

} // namespace

FittingArea::FittingArea(QWidget* content) {
    setWidget(content);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus); // what has the focus in it is scrolled to
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    content->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
    // QScrollArea scrolls to the focus only where it comes from within.
    connect(qApp, &QApplication::focusChanged, this, &FittingArea::ScrollToFocus);
}

// The focus moves while the children are destroyed.
FittingArea::~FittingArea() {
    disconnect(qApp, nullptr, this, nullptr);
}

void FittingArea::ScrollToFocus(const QWidget* /*before*/, QWidget* now) {
    const bool clicked =
        QGuiApplication::mouseButtons() != Qt::NoButton; // it must not move below the pointer
    if (now != nullptr && !clicked && widget()->isAncestorOf(now)) {
        ensureWidgetVisible(now);
    }
}

int FittingArea::OfScreen(double share) const {
    return static_cast<int>(screen()->availableSize().height() * share);
}

QSize FittingArea::sizeHint() const {
    const QSize wanted = widget()->sizeHint();
    if (wanted.height() <= OfScreen(kMost)) {
        return wanted;
    }
    return {wanted.width() + verticalScrollBar()->sizeHint().width(), OfScreen(kMost)};
}

QSize FittingArea::minimumSizeHint() const {
    const QSize needed = widget()->minimumSizeHint();
    if (needed.height() <= OfScreen(kAlwaysWhole)) {
        return needed;
    }
    return {needed.width() + verticalScrollBar()->sizeHint().width(),
            std::min(needed.height(), kFewestLines * fontMetrics().lineSpacing())};
}

bool FittingArea::eventFilter(QObject* object, QEvent* event) {
    if (object == widget() && event->type() == QEvent::LayoutRequest) {
        updateGeometry(); // the content needs another size now
    }
    return QScrollArea::eventFilter(object, event);
}

} // namespace tunedex
