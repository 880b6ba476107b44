#include "ColoursPage.h"

#include "ColourButton.h"
#include "Controls.h"
#include "HexColour.h"
#include "QtText.h"

#include <QAction>
#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>

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

// A colour as other programs write it: "#FF8000", with blanks around it.
QString WithoutDecoration(const QString& text) {
    QString digits = text.trimmed();
    while (digits.startsWith(u'#')) {
        digits = digits.mid(1).trimmed();
    }
    return digits;
}

// Only for typed and pasted text: a colour loaded from the settings is stored again as it was.
void TidyTyping(QLineEdit& box) {
    const QString typed = box.text();
    const QString text = WithoutDecoration(typed);
    const QString tidy = ColourFromText(text) ? text.toUpper() : text;
    if (tidy != typed) {
        const qsizetype fromEnd = typed.size() - box.cursorPosition();
        box.setText(tidy);
        box.setCursorPosition(static_cast<int>(std::max<qsizetype>(tidy.size() - fromEnd, 0)));
    }
}

// Empty for six hexadecimal digits.
QString HintFor(const QString& text, const std::optional<QColor>& shown) {
    if (IsSixDigitColour(text)) {
        return {};
    }
    return shown ? ColoursPage::tr("This is not a colour of six hexadecimal digits. Browsers show %1 for it.")
                       .arg(TextOfColour(*shown))
                 : ColoursPage::tr("This is not a colour of six hexadecimal digits. Browsers ignore it.");
}

bool IsCellText(std::size_t index) {
    return index == kHeaderText || index == kCellText || index == kAlternateText;
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
                       tr("Write the colours into the markup, for browsers without style sheets"))),
      lblColourHint_(new QLabel(tr("A marked colour is not six hexadecimal digits. The right half of the "
                                   "button beside it shows what browsers show for it."))) {
    lblColourHint_->setObjectName(u"lblColourHint"_s);
    lblColourHint_->setWordWrap(true);
    QSizePolicy keepsItsRoom = lblColourHint_->sizePolicy();
    keepsItsRoom.setRetainSizeWhenHidden(true);
    lblColourHint_->setSizePolicy(keepsItsRoom);
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
    layout->addWidget(lblColourHint_);
    layout->addWidget(chkColoursCSS_);
    layout->addWidget(chkColoursFontTags_);
    layout->addStretch();
    for (QCheckBox* box : {chkAlternateTDColours_, chkColoursCSS_, chkColoursFontTags_}) {
        connect(box, &QCheckBox::toggled, this, &ColoursPage::Edited);
        connect(box, &QCheckBox::toggled, this, &ColoursPage::ShowColours);
    }
    ShowColours();
}

void ColoursPage::BuildField(std::size_t index) {
    const int number = static_cast<int>(index);
    Field& field = fields_.at(index);
    const ColourTexts texts = TextsOf(index);
    field.txtColour = MakeTextField(ArrayName(u"txtColour"_s, number), texts.name, texts.toolTip);
    KeepLeftToRight(*field.txtColour);
    field.txtColour->setPlaceholderText(tr("RRGGBB"));
    field.txtColour->setMinimumWidth(field.txtColour->fontMetrics().horizontalAdvance(u"CCCCCCCC"_s) + 12);
    field.cmdColourSelector = new ColourButton;
    NameControl(*field.cmdColourSelector, ArrayName(u"cmdColourSelector"_s, number),
                tr("%1: select colour").arg(texts.name), tr("Select a colour from the palette"));
    field.mark = field.txtColour->addAction(style()->standardIcon(QStyle::SP_MessageBoxWarning),
                                            QLineEdit::TrailingPosition);
    field.mark->setObjectName(ArrayName(u"imgColourMark"_s, number));

    connect(field.txtColour, &QLineEdit::textEdited, this,
            [this, index] { TidyTyping(*fields_.at(index).txtColour); });
    connect(field.txtColour, &QLineEdit::textChanged, this, [this] {
        ShowColours();
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

// Attributes carry all colours but the text of cells and headers, which needs FONT tags; these are in the
// cell, so they override its rule. The border has no rule.
ColourUse ColoursPage::UseOf(std::size_t index) const {
    if (html5_) {
        return ColourUse::Html5;
    }
    if (IsCellText(index)) {
        return chkColoursFontTags_->isChecked() ? ColourUse::Attribute : ColourUse::StyleSheet;
    }
    const bool rule = chkColoursCSS_->isChecked() && styleSheetRead_ && index != kTableBorder;
    return rule ? ColourUse::Both : ColourUse::Attribute;
}

void ColoursPage::ShowColour(std::size_t index) {
    const Field& field = fields_.at(index);
    const QString text = field.txtColour->text();
    const std::optional<QColor> number = ColourFromText(text);
    const std::optional<QColor> inBrowsers =
        IsSixDigitColour(text) ? number : BrowserColour(text, UseOf(index));
    field.cmdColourSelector->ShowColours(number ? number : inBrowsers, inBrowsers);
    MarkField(index, HintFor(text, inBrowsers));
}

void ColoursPage::MarkField(std::size_t index, const QString& hint) {
    const Field& field = fields_.at(index);
    const QString description = TextsOf(index).toolTip;
    field.mark->setVisible(!hint.isEmpty());
    field.mark->setToolTip(hint);
    field.txtColour->setAccessibleDescription(hint.isEmpty() ? description
                                                             : tr("%1. %2").arg(description, hint));
}

void ColoursPage::ShowColours() {
    bool marked = false;
    for (std::size_t index = 0; index < kColourCount; ++index) {
        ShowColour(index);
        marked = marked || !IsSixDigitColour(fields_.at(index).txtColour->text());
    }
    lblColourHint_->setVisible(marked);
}

void ColoursPage::FollowDocument(const std::string& documentType, bool modern) {
    html5_ = documentType == "HTML5";
    styleSheetRead_ = documentType != "XHTML" || modern;
    ShowColours();
}

void ColoursPage::SelectColour(std::size_t index) {
    const Field& field = fields_.at(index);
    const QColor shown = field.cmdColourSelector->Shown().value_or(Qt::black);
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
