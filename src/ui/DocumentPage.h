// The Document and themes page of the layout editor.
#pragma once

#include "Settings.h"

#include <QFrame>

#include <string>

class QComboBox;

namespace tunedex {

class ThemePanel;

class DocumentPage : public QFrame {
    Q_OBJECT

  public:
    // Takes ownership of `themes`.
    explicit DocumentPage(ThemePanel* themes, QWidget* parent = nullptr);

    void LoadControls(const Settings& settings);
    // "HTML" or "XHTML".
    std::string DocumentType() const;

  signals:
    void Edited();

  private:
    QComboBox* cmbDocumentType_;
};

} // namespace tunedex
