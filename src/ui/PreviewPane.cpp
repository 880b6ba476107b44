#include "PreviewPane.h"

#include "Controls.h"
#include "Path.h"
#include "QtText.h"
#include "RichTextPage.h"
#include "RunTimeError.h"
#include "SampleInBrowser.h"
#include "SamplePage.h"

#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBrowser>
#include <QVBoxLayout>

#include <chrono>
#include <sstream>

using namespace Qt::StringLiterals;

namespace tunedex {
namespace {

constexpr std::chrono::milliseconds kPauseBeforeUpdate{120};

QString NoPreviewText(const RunTimeError& error) {
    QString text =
        PreviewPane::tr("<p>There is no preview: a listing cannot be written with this layout (%1).</p>")
            .arg(QString::fromLatin1(error.Description()));
    if (error.Is(ErrorNumber::InvalidProcedureCall)) {
        text += PreviewPane::tr("<p>If Album is merged, it must not come before both Artist and Title.</p>");
    }
    return text;
}

QString CaptionOf(const RichTextPage& page, bool html5) {
    if (html5) {
        return PreviewPane::tr("Preview of colours, fonts and columns. Only a browser shows search, sorting, "
                               "album headings and the colours for the other (dark or light) setting.");
    }
    return page.styleSheetIgnored
               ? PreviewPane::tr(
                     "Preview: browsers ignore the style sheet of XHTML listings. Use FONT tags instead.")
               : PreviewPane::tr("Preview with sample tracks");
}

} // namespace

PreviewPane::PreviewPane(const Application& application, WindowInterface& ui,
                         std::function<Settings()> settings, QWidget* parent)
    : QWidget(parent), application_(application), ui_(ui), settings_(std::move(settings)),
      caption_(new QLabel), browser_(new QTextBrowser) {
    setObjectName(u"PreviewPane"_s);
    BuildControls();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(caption_);
    layout->addWidget(cmdOpenSample_, 0, Qt::AlignLeft);
    layout->addWidget(browser_);

    delay_.setSingleShot(true);
    connect(&delay_, &QTimer::timeout, this, &PreviewPane::ShowNow);
    try {
        std::ostringstream faults; // dropped; the run reports them
        entities_.Load(application_.programFolder + std::string(kEntityFileName), faults);
    } catch (const RunTimeError&) {
        entities_ = EntityTable();
    }
}

void PreviewPane::BuildControls() {
    caption_->setObjectName(u"lblPreview"_s);
    caption_->setWordWrap(true);
    // All letters of the caption are mnemonics of the editor's pages, so this button has another shortcut.
    cmdOpenSample_ = MakeButton(u"cmdOpenSample"_s, tr("Open sample in browser"),
                                tr("Open a sample listing with this layout in your browser (Ctrl+B)"));
    cmdOpenSample_->setShortcut(Qt::CTRL | Qt::Key_B);
    cmdOpenSample_->hide();
    connect(cmdOpenSample_, &QPushButton::clicked, this,
            [this] { OpenSampleInBrowser(settings_(), application_, entities_, ui_, *this); });
    NameControl(*browser_, u"txtPreview"_s, tr("Preview of the listing"),
                tr("Sample tracks, listed with the layout shown here"));
    // Without keyboard access to links, Tab skips them.
    browser_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    browser_->setTabChangesFocus(true);
    browser_->setOpenLinks(false);
    browser_->setToolTip({});
    browser_->setMinimumSize(180, 120);
    // As in browsers, a column is at least as wide as its longest word.
    browser_->setWordWrapMode(QTextOption::WordWrap);
}

void PreviewPane::ShowSoon() {
    if (isVisible()) {
        delay_.start(kPauseBeforeUpdate);
    }
}

void PreviewPane::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    ShowNow();
}

void PreviewPane::ShowNow() {
    delay_.stop();
    const Settings settings = settings_();
    const bool html5 = settings.DocumentType == "HTML5";
    try {
        if (!folder_.isValid()) {
            throw RunTimeError(ErrorNumber::PathFileAccess);
        }
        const std::string folder = FromQt(folder_.path()) + PathStyle::Native().separator;
        ShowPage(ToQtDisplay(WriteSamplePage(settings, application_, entities_, folder)), html5);
    } catch (const RunTimeError& error) {
        ShowPage(NoPreviewText(error), html5);
    }
}

void PreviewPane::ShowPage(const QString& page, bool html5) {
    const RichTextPage richText = PrepareRichText(page);
    caption_->setText(CaptionOf(richText, html5));
    cmdOpenSample_->setVisible(html5);
    QPalette colours;
    const auto set = [&](QPalette::ColorRole role, const std::optional<QColor>& colour) {
        if (colour) {
            colours.setColor(role, *colour);
        }
    };
    set(QPalette::Text, richText.text);
    set(QPalette::Base, richText.background);
    browser_->setPalette(colours);
    const int across = browser_->horizontalScrollBar()->value();
    const int down = browser_->verticalScrollBar()->value();
    // Qt's rich text ignores the link colour of the body tag.
    const QString links = richText.link ? u"a {color: %1;}"_s.arg(richText.link->name()) : QString();
    browser_->document()->setDefaultStyleSheet(richText.styleSheet + links);
    browser_->setHtml(richText.html);
    browser_->horizontalScrollBar()->setValue(across);
    browser_->verticalScrollBar()->setValue(down);
}

} // namespace tunedex
