// The Colours page of the layout editor. A text that is not six hexadecimal digits is marked; the button
// beside it shows what browsers show for it.
#pragma once

#include "BrowserColour.h"
#include "Choosers.h"
#include "Settings.h"

#include <QFrame>

#include <array>
#include <string>

class QAction;
class QCheckBox;
class QGridLayout;
class QLabel;
class QLineEdit;

namespace tunedex {

class ColourButton;

class ColoursPage : public QFrame {
    Q_OBJECT

  public:
    // `choosers` must outlive the page.
    explicit ColoursPage(const Choosers& choosers, QWidget* parent = nullptr);

    void LoadControls(const Settings& settings);
    // Stores Colour, AltRows, ColourCSS and ColourHTML.
    void StoreControls(Settings& settings) const;
    // Which pages the colours are for: Settings::DocumentType and Settings::Modern.
    void FollowDocument(const std::string& documentType, bool modern);

  signals:
    void Edited();

  private:
    struct Field {
        QLineEdit* txtColour = nullptr;
        ColourButton* cmdColourSelector = nullptr;
        QAction* mark = nullptr;
    };

    void BuildField(std::size_t index);
    // Adds a grid row: label, colour `text` and, if `background`, the colour after it.
    void AddRow(QGridLayout& grid, int row, const QString& label, std::size_t text, bool background);
    void SelectColour(std::size_t index);
    ColourUse UseOf(std::size_t index) const;
    void ShowColour(std::size_t index);
    void ShowColours();
    void MarkField(std::size_t index, const QString& hint);

    const Choosers& choosers_;
    std::array<Field, kColourCount> fields_;
    QCheckBox* chkAlternateTDColours_;
    QCheckBox* chkColoursCSS_;
    QCheckBox* chkColoursFontTags_;
    QLabel* lblColourHint_;
    bool html5_ = false;
    bool styleSheetRead_ = true; // browsers read the style sheet
};

} // namespace tunedex
