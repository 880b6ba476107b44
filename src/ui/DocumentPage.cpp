#include "DocumentPage.h"

#include "Controls.h"
#include "ThemePanel.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace tunedex {
namespace {

constexpr int kHtml = 0;
constexpr int kXhtml = 1;

} // namespace

DocumentPage::DocumentPage(ThemePanel* themes, QWidget* parent)
    : QFrame(parent), cmbDocumentType_(new QComboBox) {
    NameControl(*cmbDocumentType_, u"cmbDocumentType"_s, tr("Document type"),
                tr("The document type of HTML listings"));
    cmbDocumentType_->addItems({tr("HTML 4.01"), tr("XHTML 1.0")});
    connect(cmbDocumentType_, &QComboBox::currentIndexChanged, this, &DocumentPage::Edited);

    auto* type = new QHBoxLayout;
    type->addWidget(MakeLabelFor(*cmbDocumentType_, tr("Doc&ument type:")));
    type->addWidget(cmbDocumentType_);
    type->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(type);
    layout->addWidget(themes, 1);
}

void DocumentPage::LoadControls(const Settings& settings) {
    cmbDocumentType_->setCurrentIndex(settings.DocumentType == "XHTML" ? kXhtml : kHtml);
}

std::string DocumentPage::DocumentType() const {
    return cmbDocumentType_->currentIndex() == kXhtml ? "XHTML" : "HTML";
}

} // namespace tunedex
