#include "PreviewPane.h"

#include "Controls.h"
#include "CoreText.h"
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
constexpr int kLeastWidth = 180;
constexpr int kThemeWidthInCharacters = 30; // of a theme; longer ones are elided

QString NoPreviewText(const RunTimeError& error) {
    QString text =
        PreviewPane::tr("<p>There is no preview: a listing cannot be written with this layout (%1).</p>")
            .arg(ShownText(error.Description()));
    if (error.Is(ErrorNumber::InvalidProcedureCall)) {
        text += PreviewPane::tr("<p>If Album is merged, it must not come before both Artist and Title.</p>");
    }
    return text;
}

} // namespace

PreviewPane::PreviewPane(const Application& application, WindowInterface& ui,
                         std::function<PreviewContent()> content, QWidget* parent)
    : QWidget(parent), application_(application), ui_(ui), content_(std::move(content)), caption_(new QLabel),
      browser_(new QTextBrowser) {
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
    caption_->setTextFormat(Qt::PlainText);
    caption_->setWordWrap(true);
    // All letters of the caption are mnemonics of the editor's pages, so this button has another shortcut.
    cmdOpenSample_ = MakeButton(u"cmdOpenSample"_s, tr("Open sample in browser"),
                                tr("Open a sample listing with this layout in your browser (Ctrl+B)"));
    cmdOpenSample_->setShortcut(Qt::CTRL | Qt::Key_B);
    cmdOpenSample_->hide();
    connect(cmdOpenSample_, &QPushButton::clicked, this,
            [this] { OpenSampleInBrowser(content_().settings, application_, entities_, ui_, *this); });
    NameControl(*browser_, u"txtPreview"_s, tr("Preview of the listing"),
                tr("Sample tracks, listed with the layout shown here"));
    // Without keyboard access to links, Tab skips them.
    browser_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    browser_->setTabChangesFocus(true);
    browser_->setOpenLinks(false);
    KeepLeftToRight(*browser_); // as the listing itself
    browser_->setToolTip({});
    browser_->setMinimumSize(kLeastWidth, 4 * fontMetrics().lineSpacing());
    // As in browsers, a column is at least as wide as its longest word.
    browser_->setWordWrapMode(QTextOption::WordWrap);
}

QSize PreviewPane::minimumSizeHint() const {
    const QSize usual = QWidget::minimumSizeHint();
    return {usual.width(), layout()->totalMinimumHeightForWidth(usual.width())};
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
    PreviewContent content = content_();
    content.theme = fontMetrics().elidedText(content.theme, Qt::ElideMiddle,
                                             fontMetrics().averageCharWidth() * kThemeWidthInCharacters);
    try {
        if (!folder_.isValid()) {
            throw RunTimeError(ErrorNumber::PathFileAccess);
        }
        const std::string folder = FromQt(folder_.path()) + PathStyle::Native().separator;
        ShowPage(ToQtDisplay(WriteSamplePage(content.settings, application_, entities_, folder)), content);
    } catch (const RunTimeError& error) {
        ShowPage(NoPreviewText(error), content);
    }
}

void PreviewPane::ShowPage(const QString& page, const PreviewContent& content) {
    const RichTextPage richText = PrepareRichText(page);
    caption_->setText(PreviewCaption(content, richText));
    cmdOpenSample_->setVisible(content.settings.DocumentType == "HTML5");
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
