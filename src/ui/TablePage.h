// The layout editor's page of the table's measures.
#pragma once

#include "Settings.h"

#include <QFrame>

#include <optional>
#include <string_view>

namespace tunedex {

class NumberBox;
class OptionGroup;
struct ThemeContent;

class TablePage : public QFrame {
    Q_OBJECT

  public:
    explicit TablePage(QWidget* parent = nullptr);

    void LoadControls(const Settings& settings);
    // TableWidth and its unit, TablePadding and TableBorder. A box that FirstFault() complains of leaves its
    // setting as it is.
    void StoreControls(Settings& settings) const;
    // The same as the texts that a theme file holds.
    void StoreTexts(ThemeContent& content) const;

    struct Fault {
        NumberBox* box;
        std::string_view message;
    };
    // The first box whose text is not numeric; when all are, the first whose number does not fit its setting.
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
