// The Colours page of the layout editor.
#pragma once

#include "Choosers.h"
#include "Settings.h"

#include <QFrame>

#include <array>

class QCheckBox;
class QGridLayout;
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

  signals:
    void Edited();

  private:
    struct Field {
        QLineEdit* txtColour = nullptr;
        ColourButton* cmdColourSelector = nullptr;
    };

    void BuildField(std::size_t index);
    // Adds a grid row: label, colour `text` and, if `background`, the colour after it.
    void AddRow(QGridLayout& grid, int row, const QString& label, std::size_t text, bool background);
    void SelectColour(std::size_t index);

    const Choosers& choosers_;
    std::array<Field, kColourCount> fields_;
    QCheckBox* chkAlternateTDColours_;
    QCheckBox* chkColoursCSS_;
    QCheckBox* chkColoursFontTags_;
};

} // namespace tunedex
