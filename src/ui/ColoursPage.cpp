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

// By index of Settings::Colour.
ColourTexts TextsOf(std::size_t index) {
    const std::array<ColourTexts, kColourCount> texts = {{
        {ColoursPage::tr("Page text"), ColoursPage::tr("The colour of the page header/footers")},
        {ColoursPage::tr("Page background"), ColoursPage::tr("The background colour of the page")},
        {ColoursPage::tr("Table header text"), ColoursPage::tr("The colour of the table headers")},
        {ColoursPage::tr("Table header background"),
         ColoursPage::tr("The background colour of the table headers")},
        {ColoursPage::tr("Cell text"), ColoursPage::tr("The colour of the table cells")},
        {ColoursPage::tr("Cell background"), ColoursPage::tr("The background colour of the table cells")},
        {ColoursPage::tr("Alternate cell text"), ColoursPage::tr("The colour of the alternate table cells")},
        {ColoursPage::tr("Alternate cell background"),
         ColoursPage::tr("The background colour of the alternate cells")},
        {ColoursPage::tr("Links"), ColoursPage::tr("The colour of generated links")},
        // Required wording of the tooltip. Do not "fix".
        {ColoursPage::tr("Table border"), ColoursPage::tr("The colour the main table's border")},
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
          MakeCheckBox(u"chkAlternateTDColours"_s, tr("Table cells &use alternating text/background colours"),
                       tr("Alternate between the two colours below for table cells. Aids readability."))),
      chkColoursCSS_(MakeCheckBox(u"chkColoursCSS"_s, tr("Use CSS fo&r text colours."),
                                  tr("Write the colours into the page's style sheet"))),
      chkColoursFontTags_(
          MakeCheckBox(u"chkColoursFontTags"_s, tr("Use FONT ta&gs for text colours."),
                       tr("Write the colours into the markup, for browsers without style sheets"))) {
    auto* grid = new QGridLayout;
    grid->addWidget(new QLabel(tr("Text")), 0, 1);
    grid->addWidget(new QLabel(tr("Background")), 0, 4);
    AddRow(*grid, 1, tr("&Page:"), kPageText, true);
    AddRow(*grid, 2, tr("Table header&s:"), kHeaderText, true);
    AddRow(*grid, 3, tr("Table c&ells:"), kCellText, true);
    grid->addWidget(chkAlternateTDColours_, 4, 0, 1, 6);
    AddRow(*grid, 5, tr("&Alternate cells:"), kAlternateText, true);
    AddRow(*grid, 6, tr("L&inks:"), kLinkText, false);
    AddRow(*grid, 7, tr("Table &border:"), kTableBorder, false);
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
    const ColourTexts texts = TextsOf(index);
    field.txtColour = MakeTextField(ArrayName(u"txtColour"_s, number), texts.name, texts.toolTip);
    field.txtColour->setPlaceholderText(tr("RRGGBB"));
    field.txtColour->setMinimumWidth(field.txtColour->fontMetrics().horizontalAdvance(u"CCCCCCCC"_s) + 12);
    field.cmdColourSelector = new ColourButton;
    NameControl(*field.cmdColourSelector, ArrayName(u"cmdColourSelector"_s, number),
                tr("%1: select colour").arg(texts.name), tr("Select a colour from the palette"));

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
