// The layout editor's page of the document type and the themes.
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
    // Owns the panel.
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
