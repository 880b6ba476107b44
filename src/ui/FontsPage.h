// The Fonts page of the layout editor: fonts of the page, the table headers and the table cells.
#pragma once

#include "Choosers.h"
#include "Settings.h"

#include <QFrame>

#include <array>

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLineEdit;
class QPushButton;

namespace tunedex {

class FontsPage : public QFrame {
    Q_OBJECT

  public:
    // `choosers` must outlive the page.
    explicit FontsPage(const Choosers& choosers, QWidget* parent = nullptr);

    void LoadControls(const Settings& settings);
    // Stores Font, FontCSS and FontHTML.
    void StoreControls(Settings& settings) const;

  signals:
    void Edited();

  private:
    struct Row {
        QLineEdit* txtFontList = nullptr;
        QComboBox* cmbFontSize = nullptr;
        QCheckBox* chkBold = nullptr;
        QCheckBox* chkItalic = nullptr;
        QPushButton* cmdSelectFont = nullptr;
    };

    QGroupBox* BuildRow(std::size_t index);
    void SelectFont(std::size_t index);

    const Choosers& choosers_;
    std::array<Row, kFontCount> rows_;
    QCheckBox* chkFontsCSS_;
    QCheckBox* chkFontsFontTags_;
};

} // namespace tunedex
