#include "frmEditLayout.h"

#include "ColoursPage.h"
#include "ColumnsPage.h"
#include "Controls.h"
#include "DocumentPage.h"
#include "FittingArea.h"
#include "FontsPage.h"
#include "NumberBox.h"
#include "OpenHelp.h"
#include "PreviewPane.h"
#include "Startup.h"
#include "TablePage.h"
#include "ThemePanel.h"
#include "WindowGeometry.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QTabWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace tunedex {
namespace {

// First size of the window; less where the screen is smaller.
constexpr int kEditorWidthInCharacters = 170;
constexpr int kEditorHeightInLines = 42;
constexpr double kMostOfScreen = 0.94; // the rest is for the frame of the window
const QList<int> kUsualShares{490, 530};

QSize FirstSize(const QWidget& window) {
    const QFontMetrics metrics = window.fontMetrics();
    const QSize usual(metrics.averageCharWidth() * kEditorWidthInCharacters,
                      metrics.lineSpacing() * kEditorHeightInLines);
    return usual.boundedTo(window.screen()->availableSize() * kMostOfScreen);
}

} // namespace

frmEditLayout::frmEditLayout(Application& application, WindowInterface& ui, QWidget* parent)
    : QDialog(parent), application_(application), ui_(ui), tabStrip_(new QTabWidget),
      columns_(new ColumnsPage), fonts_(new FontsPage(choosers_)), colours_(new ColoursPage(choosers_)),
      table_(new TablePage),
      themes_(new ThemePanel(application, ui, choosers_, [this] { return CurrentTheme(); })),
      document_(new DocumentPage(themes_)),
      preview_(new PreviewPane(application, ui, [this] { return ContentToPreview(); })) {
    setObjectName(u"frmEditLayout"_s);
    setWindowTitle(tr("Edit Layout"));
    setSizeGripEnabled(true);
    NameControl(*tabStrip_, u"TabStrip"_s, tr("Pages of the layout editor"), {});
    tabStrip_->setUsesScrollButtons(false); // keeps all tab titles visible
    AddPage(columns_, tr("&Columns"));
    AddPage(fonts_, tr("&Fonts"));
    AddPage(colours_, tr("Co&lours"));
    AddPage(table_, tr("&Table"));
    AddPage(document_, tr("&Document and themes"));

    auto* splitter = new QSplitter;
    splitter->addWidget(tabStrip_);
    splitter->addWidget(preview_);
    splitter->setCollapsible(0, false);
    splitter->setStretchFactor(0, 0);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes(kUsualShares);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(splitter, 1);
    layout->addLayout(BuildButtons());

    ConnectPages();
    LoadControls();
    themes_->ListThemes();
    resize(FirstSize(*this));
    RestoreWindowGeometry(*this);
}

void frmEditLayout::AddPage(QWidget* page, const QString& title) {
    page->setObjectName(ArrayName(u"Frames"_s, tabStrip_->count()));
    tabStrip_->addTab(new FittingArea(page), title);
}

void frmEditLayout::ShowPage(const QWidget& page) {
    for (int index = 0; index < tabStrip_->count(); ++index) {
        if (tabStrip_->widget(index)->isAncestorOf(&page)) {
            tabStrip_->setCurrentIndex(index);
        }
    }
}

QBoxLayout* frmEditLayout::BuildButtons() {
    cmdHelp_ = MakeButton(u"cmdHelp"_s, tr("&Help"), tr("Open the help file"));
    chkPreview_ =
        MakeCheckBox(u"chkPreview"_s, tr("Show pre&view"), tr("Show a sample listing with this layout"));
    cmdOK_ = MakeButton(u"cmdOK"_s, tr("&OK"), tr("Use this layout"));
    cmdCancel_ = MakeButton(u"cmdCancel"_s, tr("Ca&ncel"), tr("Discard all changes except a loaded theme"));
    PressOnHelpKey(*this, *cmdHelp_);
    chkPreview_->setChecked(true);
    cmdOK_->setDefault(true);
    connect(cmdHelp_, &QPushButton::clicked, this, [this] { OpenHelp(application_, ui_, *this); });
    connect(chkPreview_, &QCheckBox::toggled, preview_, &QWidget::setVisible);
    connect(cmdOK_, &QPushButton::clicked, this, &frmEditLayout::UseLayout);
    connect(cmdCancel_, &QPushButton::clicked, this, &QDialog::reject);

    auto* layout = new QHBoxLayout;
    layout->addWidget(cmdHelp_);
    layout->addWidget(chkPreview_);
    layout->addStretch();
    layout->addWidget(cmdOK_);
    layout->addWidget(cmdCancel_);
    return layout;
}

void frmEditLayout::ConnectPages() {
    connect(columns_, &ColumnsPage::Edited, this, &frmEditLayout::FollowEdit);
    connect(fonts_, &FontsPage::Edited, this, &frmEditLayout::FollowEdit);
    connect(colours_, &ColoursPage::Edited, this, &frmEditLayout::FollowEdit);
    connect(table_, &TablePage::Edited, this, &frmEditLayout::FollowEdit);
    connect(document_, &DocumentPage::Edited, this, &frmEditLayout::FollowEdit);
    connect(tabStrip_, &QTabWidget::currentChanged, themes_, &ThemePanel::Leave);
    connect(themes_, &ThemePanel::PreviewChanged, preview_, &PreviewPane::ShowSoon);
    // Saving the settings in the main window stores the options.
    connect(themes_, &ThemePanel::PreviewChanged, this, &frmEditLayout::ShowLoss);
    connect(tabStrip_, &QTabWidget::currentChanged, this, &frmEditLayout::ShowLoss);
    connect(themes_, &ThemePanel::ThemeLoaded, this, &frmEditLayout::FollowTheme);
}

void frmEditLayout::LoadControls() {
    const Settings& settings = application_.settings;
    columns_->LoadControls(settings);
    fonts_->LoadControls(settings);
    colours_->LoadControls(settings);
    table_->LoadControls(settings);
    document_->LoadControls(settings);
    colours_->FollowDocument(document_->DocumentType(), settings.Modern);
    loaded_ = CurrentContent();
    ShowLoss();
}

void frmEditLayout::OfferModernColumns(bool offer) {
    const bool edited = CurrentContent() != loaded_;
    columns_->OfferModernColumns(offer);
    if (!edited) {
        loaded_ = CurrentContent(); // the offer is no edit
    }
    ShowLoss();
}

void frmEditLayout::SetPreviewBase(std::function<Settings()> base) {
    previewBase_ = std::move(base);
    ShowLoss();
}

void frmEditLayout::FollowEdit() {
    const bool modern = previewBase_ ? previewBase_().Modern : application_.settings.Modern;
    colours_->FollowDocument(document_->DocumentType(), modern);
    themes_->Leave();
    ShowLoss();
    preview_->ShowSoon();
}

frmEditLayout::Content frmEditLayout::CurrentContent() const {
    Content content;
    StoreControls(content.settings);
    ThemeContent table;
    table_->StoreTexts(table);
    content.table = {table.tableWidth, table.tablePadding, table.tableBorder};
    return content;
}

PreviewContent frmEditLayout::ContentToPreview() const {
    if (const std::optional<ThemePreview> theme = themes_->Preview()) {
        return {theme->settings, theme->name};
    }
    PreviewContent content{previewBase_ ? previewBase_() : application_.settings, {}};
    StoreControls(content.settings);
    return content;
}

// A theme replaces all settings that are not stored yet, those of the options, too.
void frmEditLayout::ShowLoss() {
    const bool here = CurrentContent() != loaded_;
    const bool inOptions = previewBase_ && previewBase_() != application_.settings;
    if (here && inOptions) {
        themes_->ShowLoss(tr("Loading a theme discards your changes here and in the options."));
    } else if (here) {
        themes_->ShowLoss(tr("Loading a theme discards your changes to the layout."));
    } else {
        themes_->ShowLoss(inOptions ? tr("Loading a theme discards your changes in the options.")
                                    : QString());
    }
}

// A theme file may set any setting, so all windows are reloaded.
void frmEditLayout::FollowTheme() {
    LoadControls();
    ui_.FillFields(FieldsFor(application_.settings));
}

void frmEditLayout::StoreRunControls(Settings& settings) const {
    settings.MoveTheArtists = columns_->MovesTheArtists();
    settings.DocumentType = document_->DocumentType();
}

void frmEditLayout::StoreControls(Settings& settings) const {
    settings.DocumentType = document_->DocumentType();
    settings.GroupByAlbum = document_->GroupsByAlbum();
    columns_->StoreControls(settings);
    fonts_->StoreControls(settings);
    colours_->StoreControls(settings);
    table_->StoreControls(settings);
}

ThemeContent frmEditLayout::CurrentTheme() const {
    Settings edited = application_.settings;
    StoreControls(edited);
    ThemeContent content;
    content.fonts = edited.Font;
    content.colours = edited.Colour;
    // Required: the settings' AltRows, not the editor's check box. Do not "fix".
    content.alternateRows = application_.settings.AltRows;
    table_->StoreTexts(content);
    return content;
}

void frmEditLayout::UseLayout() {
    // Required: stored even if a check below fails. Do not "fix".
    application_.settings.DocumentType = document_->DocumentType();
    if (const auto fault = table_->FirstFault()) {
        ui_.ShowMessage(*this, fault->message, kOkExclamation, tr("Error"));
        ShowPage(*table_);
        FocusAndSelectAll(*fault->box);
        return;
    }
    StoreControls(application_.settings);
    accept();
}

void frmEditLayout::closeEvent(QCloseEvent* event) {
    if (isEnabled()) {
        QDialog::closeEvent(event);
    } else {
        event->ignore(); // a run is active
    }
}

void frmEditLayout::done(int result) {
    SaveWindowGeometry(*this);
    QDialog::done(result);
}

} // namespace tunedex
