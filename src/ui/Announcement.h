// Texts that a screen reader speaks when they appear, although the focus is elsewhere.
#pragma once

class QString;
class QWidget;

namespace tunedex {

// Has `text` spoken as a notification of the window of `widget`, if it is visible. Nothing is drawn.
void Announce(const QWidget& widget, const QString& text);

} // namespace tunedex
