// The Table page of the layout editor: width, border and padding.
#pragma once

#include "Settings.h"

#include <QFrame>
#include <QString>

#include <optional>

namespace tunedex {

class NumberBox;
class OptionGroup;
struct ThemeContent;

class TablePage : public QFrame {
    Q_OBJECT

  public:
    explicit TablePage(QWidget* parent = nullptr);

    void LoadControls(const Settings& settings);
    // Stores TableWidth and its unit, TablePadding and TableBorder. Leaves a setting unchanged if its box
    // does not hold a number in range.
    void StoreControls(Settings& settings) const;
    // Stores the same values as texts, unconverted, for a theme file.
    void StoreTexts(ThemeContent& content) const;

    struct Fault {
        NumberBox* box;
        QString message;
    };
    // The first box whose text is not numeric; if there is none, the first whose number is out of range.
    std::optional<Fault> FirstFault() const;

  signals:
    void Edited();

  private:
    NumberBox* txtTableWidth_;
    NumberBox* txtBorderSize_;
    NumberBox* txtCellPadding_;
    OptionGroup* widthUnit_;
};

} // namespace tunedex
