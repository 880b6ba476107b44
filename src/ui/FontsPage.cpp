#include "FontsPage.h"

#include "Controls.h"
#include "FontChoice.h"
#include "QtText.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace tunedex {
namespace {

constexpr int kSizes = 7;

// By index of Settings::Font. Translated where they are used.
constexpr std::array<const char*, kFontCount> kFontTitles = {
    QT_TRANSLATE_NOOP("tunedex::FontsPage", "Page heading and text"),
    QT_TRANSLATE_NOOP("tunedex::FontsPage", "Table headers"),
    QT_TRANSLATE_NOOP("tunedex::FontsPage", "Table cells"),
};

// A settings file may hold a size other than 1 to 7; it is added to the list while it is in use, so that it
// is stored unchanged.
void ShowSize(QComboBox& sizes, const QString& size) {
    while (sizes.count() > kSizes) {
        sizes.removeItem(kSizes);
    }
    if (sizes.findText(size) < 0) {
        sizes.addItem(size);
    }
    sizes.setCurrentIndex(sizes.findText(size));
}

} // namespace

FontsPage::FontsPage(const Choosers& choosers, QWidget* parent)
    : QFrame(parent), choosers_(choosers),
      chkFontsCSS_(MakeCheckBox(u"chkFontsCSS"_s, tr("&Use CSS for fonts."),
                                tr("Write the fonts into the page's style sheet"))),
      chkFontsFontTags_(
          MakeCheckBox(u"chkFontsFontTags"_s, tr("Use FONT ta&gs for fonts."),
                       tr("Write the fonts into the markup, for browsers without style sheets"))) {
    auto* layout = new QVBoxLayout(this);
    for (std::size_t index = 0; index < kFontCount; ++index) {
        layout->addWidget(BuildRow(index));
    }
    for (QCheckBox* box : {chkFontsCSS_, chkFontsFontTags_}) {
        connect(box, &QCheckBox::toggled, this, &FontsPage::Edited);
        layout->addWidget(box);
    }
    layout->addStretch();
}

QGroupBox* FontsPage::BuildRow(std::size_t index) {
    const int number = static_cast<int>(index);
    const QString title = tr(kFontTitles.at(index));
    Row& row = rows_.at(index);
    row.txtFontList = MakeTextField(ArrayName(u"txtFontList"_s, number), tr("%1: typefaces").arg(title),
                                    tr("Typefaces in order of preference, separated by commas"));
    KeepLeftToRight(*row.txtFontList);
    row.cmbFontSize = new QComboBox;
    NameControl(*row.cmbFontSize, ArrayName(u"cmbFontSize"_s, number), tr("%1: size").arg(title),
                tr("1 (smallest) to 7 (largest). 3 is the size of normal text."));
    for (int size = 1; size <= kSizes; ++size) {
        row.cmbFontSize->addItem(QString::number(size));
    }
    row.chkBold =
        MakeCheckBox(ArrayName(u"chkBold"_s, number), tr("&Bold"), tr("%1 in bold type").arg(title));
    row.chkBold->setAccessibleName(tr("%1: bold").arg(title));
    row.chkItalic =
        MakeCheckBox(ArrayName(u"chkItalic"_s, number), tr("&Italic"), tr("%1 in italic type").arg(title));
    row.chkItalic->setAccessibleName(tr("%1: italic").arg(title));
    row.cmdSelectFont = MakeButton(ArrayName(u"cmdSelectFont"_s, number), tr("&Select..."),
                                   tr("Select a font installed on this computer"));
    row.cmdSelectFont->setAccessibleName(tr("%1: select font").arg(title));

    connect(row.txtFontList, &QLineEdit::textChanged, this, &FontsPage::Edited);
    connect(row.cmbFontSize, &QComboBox::currentIndexChanged, this, &FontsPage::Edited);
    connect(row.chkBold, &QCheckBox::toggled, this, &FontsPage::Edited);
    connect(row.chkItalic, &QCheckBox::toggled, this, &FontsPage::Edited);
    connect(row.cmdSelectFont, &QPushButton::clicked, this, [this, index] { SelectFont(index); });

    auto* group = new QGroupBox(title);
    auto* grid = new QGridLayout(group);
    grid->addWidget(MakeLabelFor(*row.txtFontList, tr("T&ypefaces:")), 0, 0);
    grid->addWidget(row.txtFontList, 0, 1, 1, 4);
    grid->addWidget(MakeLabelFor(*row.cmbFontSize, tr("Si&ze:")), 1, 0);
    grid->addWidget(row.cmbFontSize, 1, 1);
    grid->addWidget(row.chkBold, 1, 2);
    grid->addWidget(row.chkItalic, 1, 3);
    grid->addWidget(row.cmdSelectFont, 1, 4, Qt::AlignRight);
    grid->setColumnStretch(4, 1);
    return group;
}

void FontsPage::SelectFont(std::size_t index) {
    const Row& row = rows_.at(index);
    const ListingFont font{row.txtFontList->text(), row.cmbFontSize->currentText(), row.chkBold->isChecked(),
                           row.chkItalic->isChecked()};
    const std::optional<QFont> chosen = choosers_.font(window(), FontOf(font));
    if (!chosen) {
        return;
    }
    const ListingFont result = WithChosenFont(font, *chosen);
    row.txtFontList->setText(result.faces);
    ShowSize(*row.cmbFontSize, result.size);
    row.chkBold->setChecked(result.bold);
    row.chkItalic->setChecked(result.italic);
}

void FontsPage::LoadControls(const Settings& settings) {
    for (std::size_t index = 0; index < kFontCount; ++index) {
        const Row& row = rows_.at(index);
        const FontSetting& font = settings.Font.at(index);
        row.txtFontList->setText(ToQt(font.face));
        ShowSize(*row.cmbFontSize, ToQt(font.size));
        row.chkBold->setChecked(font.bold);
        row.chkItalic->setChecked(font.italic);
    }
    chkFontsCSS_->setChecked(settings.FontCSS);
    chkFontsFontTags_->setChecked(settings.FontHTML);
}

void FontsPage::StoreControls(Settings& settings) const {
    for (std::size_t index = 0; index < kFontCount; ++index) {
        const Row& row = rows_.at(index);
        settings.Font.at(index) = {FromQt(row.txtFontList->text()), FromQt(row.cmbFontSize->currentText()),
                                   row.chkBold->isChecked(), row.chkItalic->isChecked()};
    }
    settings.FontCSS = chkFontsCSS_->isChecked();
    settings.FontHTML = chkFontsFontTags_->isChecked();
}

} // namespace tunedex
