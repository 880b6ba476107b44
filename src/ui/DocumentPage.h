// The Document and themes page of the layout editor.
#pragma once

#include "Settings.h"

#include <QFrame>

#include <string>

class QCheckBox;
class QComboBox;

namespace tunedex {

class ThemePanel;

class DocumentPage : public QFrame {
    Q_OBJECT

  public:
    // Takes ownership of `themes`.
    explicit DocumentPage(ThemePanel* themes, QWidget* parent = nullptr);

    void LoadControls(const Settings& settings);
    // "HTML", "XHTML" or "HTML5".
    std::string DocumentType() const;
    // Kept while another document type disables the choice.
    bool GroupsByAlbum() const;

  signals:
    void Edited();

  private:
    void EnableGrouping();

    QComboBox* cmbDocumentType_;
    QCheckBox* chkGroupByAlbum_;
};

} // namespace tunedex
