#include "ResultPanel.h"

#include "Announcement.h"
#include "Controls.h"
#include "QtText.h"
#include "ResultText.h"
#include "TerminalText.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

namespace tunedex {
namespace {

constexpr int kNameWidthInCharacters = 40; // of the file name; longer ones are elided

// A label of which the keyboard focus can be seen.
class FocusLabel final : public QLabel {
  protected:
    void paintEvent(QPaintEvent* event) override {
        QLabel::paintEvent(event);
        if (hasFocus()) {
            QStyleOptionFocusRect option;
            option.initFrom(this);
            option.backgroundColor = palette().color(backgroundRole());
            QPainter painter(this);
            style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
        }
    }
};

// All letters of the captions are mnemonics of the main window, so these buttons have other shortcuts.
QPushButton* MakeResultButton(const QString& objectName, const QString& text, const QString& description,
                              const QKeySequence& shortcut, const QString& accessibleName = {}) {
    QPushButton* button = MakeButton(objectName, text, description, accessibleName);
    button->setShortcut(shortcut);
    return button;
}

} // namespace

ResultPanel::ResultPanel(Locale locale, QWidget* parent)
    : QGroupBox(tr("Result"), parent), locale_(std::move(locale)), lblResult_(new FocusLabel) {
    setObjectName(u"fraResult"_s);
    BuildControls();
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdOpenResult_);
    buttons->addWidget(cmdShowFolder_);
    buttons->addStretch();
    buttons->addWidget(cmdSwitchModern_);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lblResult_);
    layout->addLayout(buttons);
    hide();
}

void ResultPanel::BuildControls() {
    NameControl(*lblResult_, u"lblResult"_s, {}, {});
    lblResult_->setTextFormat(Qt::PlainText);
    lblResult_->setMargin(3); // room for the focus frame
    lblResult_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    lblResult_->setFocusPolicy(Qt::StrongFocus);
    cmdOpenResult_ =
        MakeResultButton(u"cmdOpenResult"_s, tr("Open"), tr("Open the list (Ctrl+L)"), Qt::CTRL | Qt::Key_L);
    cmdShowFolder_ =
        MakeResultButton(u"cmdShowFolder"_s, tr("Show folder"), tr("Open the list's folder (Ctrl+Shift+L)"),
                         Qt::CTRL | Qt::SHIFT | Qt::Key_L);
    cmdSwitchModern_ = MakeResultButton(u"cmdSwitchModern"_s, tr("Switch on"),
                                        tr("Switch on \u201CModern tags and lists\u201D (Ctrl+M)"),
                                        Qt::CTRL | Qt::Key_M, tr("Switch on Modern tags and lists"));
    connect(cmdOpenResult_, &QPushButton::clicked, this, &ResultPanel::OpenRequested);
    connect(cmdShowFolder_, &QPushButton::clicked, this, &ResultPanel::FolderRequested);
    connect(cmdSwitchModern_, &QPushButton::clicked, this, &ResultPanel::SwitchModernRequested);
}

QList<QWidget*> ResultPanel::Controls() const {
    return {lblResult_, cmdOpenResult_, cmdShowFolder_, cmdSwitchModern_};
}

void ResultPanel::ShowOutcome(const RunOutcome& outcome, bool modern) {
    outcome_ = outcome;
    modern_ = modern;
    notice_.clear();
    ShowText();
}

void ResultPanel::ShowNotice(const QString& notice) {
    notice_ = notice;
    ShowText();
}

void ResultPanel::FollowModern(bool modern) {
    modern_ = modern;
    ShowText();
}

QString ResultPanel::Text() const {
    const int width = fontMetrics().averageCharWidth() * kNameWidthInCharacters;
    const QString name = fontMetrics().elidedText(ListName(outcome_), Qt::ElideMiddle, width);
    QStringList lines{ResultText(outcome_, name, modern_, locale_), notice_};
    lines.removeAll(QString());
    return lines.join(u'\n');
}

void ResultPanel::ShowText() {
    const QString text = Text();
    const bool changed = text != lblResult_->text();
    const QString path = Isolated(ToQtDisplay(TerminalText(outcome_.file)));
    lblResult_->setText(text);
    lblResult_->setAccessibleName(QString(text).replace(u'\n', u' '));
    lblResult_->setAccessibleDescription(path);
    lblResult_->setToolTip(path.isEmpty() ? path : Qt::convertFromPlainText(path)); // it can look like markup
    ShowControl(*cmdOpenResult_, !outcome_.file.empty());
    ShowControl(*cmdShowFolder_, !outcome_.file.empty());
    ShowControl(*cmdSwitchModern_, OffersModern(outcome_, modern_));
    setVisible(!text.isEmpty());
    if (changed) {
        Announce(*this, lblResult_->accessibleName());
    }
}

void ResultPanel::ShowControl(QWidget& control, bool shown) {
    if (!shown && control.hasFocus()) {
        focusNextChild(); // hiding it leaves the focus where it is
    }
    control.setVisible(shown);
}

} // namespace tunedex
