#include "ColoursPage.h"

#include "ColourButton.h"
#include "Controls.h"
#include "HexColour.h"
#include "QtText.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace tunedex {
namespace {

struct ColourTexts {
    QString name;
    QString toolTip;
};

const ColourTexts& TextsOf(std::size_t index) {
    static const std::array<ColourTexts, kColourCount> texts = {{
        {u"Page text"_s, u"The colour of the page header/footers"_s},
        {u"Page background"_s, u"The background colour of the page"_s},
        {u"Table header text"_s, u"The colour of the table headers"_s},
        {u"Table header background"_s, u"The background colour of the table headers"_s},
        {u"Cell text"_s, u"The colour of the table cells"_s},
        {u"Cell background"_s, u"The background colour of the table cells"_s},
        {u"Alternate cell text"_s, u"The colour of the alternate table cells"_s},
        {u"Alternate cell background"_s, u"The background colour of the alternate cells"_s},
        {u"Links"_s, u"The colour of generated links"_s},
        {u"Table border"_s, u"The colour the main table's border"_s}, // Required wording. Do not "fix".
    }};
    return texts.at(index);
}

// Only for typed text: a lower-case colour loaded from the settings is stored again as it was.
void UpperCaseTyping(QLineEdit& box) {
    const QString text = box.text();
    if (ColourFromText(text) && text != text.toUpper()) {
        const int cursor = box.cursorPosition();
        box.setText(text.toUpper());
        box.setCursorPosition(cursor);
    }
}

} // namespace

ColoursPage::ColoursPage(const Choosers& choosers, QWidget* parent)
    : QFrame(parent), choosers_(choosers),
      chkAlternateTDColours_(
          MakeCheckBox(u"chkAlternateTDColours"_s, u"Table cells &use alternating text/background colours"_s,
                       u"Alternate between the two colours below for table cells. Aids readability."_s)),
      chkColoursCSS_(MakeCheckBox(u"chkColoursCSS"_s, u"Use CSS fo&r text colours."_s,
                                  u"Write the colours into the page's style sheet"_s)),
      chkColoursFontTags_(
          MakeCheckBox(u"chkColoursFontTags"_s, u"Use FONT ta&gs for text colours."_s,
                       u"Write the colours into the markup, for browsers without style sheets"_s)) {
    auto* grid = new QGridLayout;
    grid->addWidget(new QLabel(u"Text"_s), 0, 1);
    grid->addWidget(new QLabel(u"Background"_s), 0, 4);
    AddRow(*grid, 1, u"&Page:"_s, kPageText, true);
    AddRow(*grid, 2, u"Table header&s:"_s, kHeaderText, true);
    AddRow(*grid, 3, u"Table c&ells:"_s, kCellText, true);
    grid->addWidget(chkAlternateTDColours_, 4, 0, 1, 6);
    AddRow(*grid, 5, u"&Alternate cells:"_s, kAlternateText, true);
    AddRow(*grid, 6, u"L&inks:"_s, kLinkText, false);
    AddRow(*grid, 7, u"Table &border:"_s, kTableBorder, false);
    grid->setColumnStretch(1, 1);
    grid->setColumnMinimumWidth(3, 12);
    grid->setColumnStretch(4, 1);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addSpacing(12);
    layout->addWidget(chkColoursCSS_);
    layout->addWidget(chkColoursFontTags_);
    layout->addStretch();
    for (QCheckBox* box : {chkAlternateTDColours_, chkColoursCSS_, chkColoursFontTags_}) {
        connect(box, &QCheckBox::toggled, this, &ColoursPage::Edited);
    }
}

void ColoursPage::BuildField(std::size_t index) {
    const int number = static_cast<int>(index);
    Field& field = fields_.at(index);
    field.txtColour =
        MakeTextField(ArrayName(u"txtColour"_s, number), TextsOf(index).name, TextsOf(index).toolTip);
    field.txtColour->setPlaceholderText(u"RRGGBB"_s);
    field.txtColour->setMinimumWidth(field.txtColour->fontMetrics().horizontalAdvance(u"CCCCCCCC"_s) + 12);
    field.cmdColourSelector = new ColourButton;
    NameControl(*field.cmdColourSelector, ArrayName(u"cmdColourSelector"_s, number),
                TextsOf(index).name + u": select colour"_s, u"Select a colour from the palette"_s);

    connect(field.txtColour, &QLineEdit::textEdited, this,
            [this, index] { UpperCaseTyping(*fields_.at(index).txtColour); });
    connect(field.txtColour, &QLineEdit::textChanged, this, [this, index](const QString& text) {
        fields_.at(index).cmdColourSelector->ShowColour(ColourFromText(text));
        emit Edited();
    });
    connect(field.cmdColourSelector, &QPushButton::clicked, this, [this, index] { SelectColour(index); });
}

void ColoursPage::AddRow(QGridLayout& grid, int row, const QString& label, std::size_t text,
                         bool background) {
    BuildField(text);
    grid.addWidget(MakeLabelFor(*fields_.at(text).txtColour, label), row, 0);
    grid.addWidget(fields_.at(text).txtColour, row, 1);
    grid.addWidget(fields_.at(text).cmdColourSelector, row, 2);
    if (background) {
        BuildField(text + 1);
        grid.addWidget(fields_.at(text + 1).txtColour, row, 4);
        grid.addWidget(fields_.at(text + 1).cmdColourSelector, row, 5);
    }
}

void ColoursPage::SelectColour(std::size_t index) {
    const Field& field = fields_.at(index);
    const QColor shown = ColourFromText(field.txtColour->text()).value_or(Qt::black);
    if (const std::optional<QColor> chosen = choosers_.colour(window(), shown)) {
        field.txtColour->setText(TextOfColour(*chosen));
    }
}

void ColoursPage::LoadControls(const Settings& settings) {
    for (std::size_t index = 0; index < kColourCount; ++index) {
        fields_.at(index).txtColour->setText(ToQt(settings.Colour.at(index)));
    }
    chkAlternateTDColours_->setChecked(settings.AltRows);
    chkColoursCSS_->setChecked(settings.ColourCSS);
    chkColoursFontTags_->setChecked(settings.ColourHTML);
}

void ColoursPage::StoreControls(Settings& settings) const {
    for (std::size_t index = 0; index < kColourCount; ++index) {
        settings.Colour.at(index) = FromQt(fields_.at(index).txtColour->text());
    }
    settings.AltRows = chkAlternateTDColours_->isChecked();
    settings.ColourCSS = chkColoursCSS_->isChecked();
    settings.ColourHTML = chkColoursFontTags_->isChecked();
}

} // namespace tunedex
