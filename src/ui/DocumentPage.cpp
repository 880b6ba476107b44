#include "DocumentPage.h"

#include "Controls.h"
#include "ThemePanel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace tunedex {
namespace {

// The values of the setting, in the order of the list.
constexpr std::array<const char*, 3> kDocumentTypes = {"HTML", "XHTML", "HTML5"};
constexpr int kHtml = 0;
constexpr int kHtml5 = 2;

} // namespace

DocumentPage::DocumentPage(ThemePanel* themes, QWidget* parent)
    : QFrame(parent), cmbDocumentType_(new QComboBox),
      chkGroupByAlbum_(MakeCheckBox(u"chkGroupByAlbum"_s, tr("&Group by album"),
                                    tr("Show a heading for each album (HTML5 only)"))) {
    NameControl(*cmbDocumentType_, u"cmbDocumentType"_s, tr("Document type"),
                tr("The document type of HTML listings"));
    cmbDocumentType_->addItems({tr("HTML 4.01"), tr("XHTML 1.0"), tr("HTML5")});
    connect(cmbDocumentType_, &QComboBox::currentIndexChanged, this, &DocumentPage::EnableGrouping);
    connect(cmbDocumentType_, &QComboBox::currentIndexChanged, this, &DocumentPage::Edited);
    connect(chkGroupByAlbum_, &QCheckBox::toggled, this, &DocumentPage::Edited);
    EnableGrouping();

    auto* type = new QHBoxLayout;
    type->addWidget(MakeLabelFor(*cmbDocumentType_, tr("Doc&ument type:")));
    type->addWidget(cmbDocumentType_);
    type->addSpacing(16);
    type->addWidget(chkGroupByAlbum_);
    type->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(type);
    layout->addWidget(themes, 1);
}

void DocumentPage::LoadControls(const Settings& settings) {
    const auto* const type = std::find(kDocumentTypes.begin(), kDocumentTypes.end(), settings.DocumentType);
    cmbDocumentType_->setCurrentIndex(
        type == kDocumentTypes.end() ? kHtml : static_cast<int>(type - kDocumentTypes.begin()));
    chkGroupByAlbum_->setChecked(settings.GroupByAlbum);
}

std::string DocumentPage::DocumentType() const {
    return kDocumentTypes.at(static_cast<std::size_t>(cmbDocumentType_->currentIndex()));
}

bool DocumentPage::GroupsByAlbum() const {
    return chkGroupByAlbum_->isChecked();
}

void DocumentPage::EnableGrouping() {
    chkGroupByAlbum_->setEnabled(cmbDocumentType_->currentIndex() == kHtml5);
}

} // namespace tunedex
