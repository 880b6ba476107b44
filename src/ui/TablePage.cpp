#include "TablePage.h"

#include "Controls.h"
#include "NumberBox.h"
#include "OptionGroup.h"
#include "QtText.h"
#include "Themes.h"

#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

#include <array>

using namespace Qt::StringLiterals;

namespace tunedex {
namespace {

constexpr int kPixels = 0;
constexpr int kPercent = 1;

} // namespace

TablePage::TablePage(QWidget* parent)
    : QFrame(parent),
      txtTableWidth_(new NumberBox(u"txtTableWidth"_s, tr("Table width"), tr("Width of the table"))),
      txtBorderSize_(new NumberBox(u"txtBorderSize"_s, tr("Border size"),
                                   tr("Width of the lines between the cells, in pixels"))),
      txtCellPadding_(new NumberBox(u"txtCellPadding"_s, tr("Cell padding"),
                                    tr("Space between a cell's border and its text, in pixels"))),
      widthUnit_(new OptionGroup(this)) {
    QRadioButton* pixels = MakeOption(u"optWidthPixels"_s, tr("Pi&xels"), tr("Width in pixels"));
    QRadioButton* percent =
        MakeOption(u"optWidthPercent"_s, tr("Pe&r cent"), tr("Width as a percentage of the page's width"));
    widthUnit_->addButton(pixels, kPixels);
    widthUnit_->addButton(percent, kPercent);

    auto* grid = new QGridLayout;
    grid->addWidget(MakeLabelFor(*txtTableWidth_, tr("Table &width:")), 0, 0);
    grid->addWidget(txtTableWidth_, 0, 1);
    grid->addWidget(pixels, 0, 2);
    grid->addWidget(percent, 0, 3);
    grid->addWidget(MakeLabelFor(*txtBorderSize_, tr("&Border size:")), 1, 0);
    grid->addWidget(txtBorderSize_, 1, 1);
    grid->addWidget(new QLabel(tr("pixels")), 1, 2);
    grid->addWidget(MakeLabelFor(*txtCellPadding_, tr("Cell &padding:")), 2, 0);
    grid->addWidget(txtCellPadding_, 2, 1);
    grid->addWidget(new QLabel(tr("pixels")), 2, 2);
    grid->setColumnStretch(4, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addStretch();

    for (NumberBox* box : {txtTableWidth_, txtBorderSize_, txtCellPadding_}) {
        box->setFixedWidth(box->fontMetrics().horizontalAdvance(u'0') * 8 + 16);
        connect(box, &QLineEdit::textChanged, this, &TablePage::Edited);
    }
    connect(widthUnit_, &QButtonGroup::idToggled, this, &TablePage::Edited);
    SetTabOrders({txtTableWidth_, pixels, percent, txtBorderSize_, txtCellPadding_});
}

void TablePage::LoadControls(const Settings& settings) {
    txtTableWidth_->SetNumber(settings.TableWidth);
    widthUnit_->Select(settings.TableWidthUnit);
    txtBorderSize_->SetNumber(settings.TableBorder);
    txtCellPadding_->SetNumber(settings.TablePadding);
}

void TablePage::StoreControls(Settings& settings) const {
    const auto store = [](const NumberBox& box, std::int16_t& setting) {
        if (box.HoldsSetting()) {
            setting = box.Number();
        }
    };
    store(*txtTableWidth_, settings.TableWidth);
    widthUnit_->Store(settings.TableWidthUnit);
    store(*txtCellPadding_, settings.TablePadding);
    store(*txtBorderSize_, settings.TableBorder);
}

void TablePage::StoreTexts(ThemeContent& content) const {
    content.widthUnit = widthUnit_->checkedId() == kPercent ? kPercent : kPixels;
    content.tableWidth = FromQt(txtTableWidth_->text());
    content.tablePadding = FromQt(txtCellPadding_->text());
    content.tableBorder = FromQt(txtBorderSize_->text());
}

std::optional<TablePage::Fault> TablePage::FirstFault() const {
    struct Check {
        NumberBox* box;
        QString notNumeric;
        QString outOfRange;
    };
    const std::array checks = {
        Check{txtTableWidth_, tr("The table width must be a numeric value."),
              tr("The table width must be between -32768 and 32767.")},
        Check{txtBorderSize_, tr("The table border size must be a numeric value."),
              tr("The table border size must be between -32768 and 32767.")},
        Check{txtCellPadding_, tr("The table cell padding must be a numeric value."),
              tr("The table cell padding must be between -32768 and 32767.")},
    };
    for (const Check& check : checks) {
        if (!check.box->IsNumeric()) {
            return Fault{check.box, check.notNumeric};
        }
    }
    for (const Check& check : checks) {
        if (!check.box->HoldsSetting()) {
            return Fault{check.box, check.outOfRange};
        }
    }
    return std::nullopt;
}

} // namespace tunedex
