#include "frmTip.h"

#include "Controls.h"
#include "ErrorMessage.h"
#include "FileSystem.h"
#include "Numbers.h"
#include "QtText.h"
#include "Text.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace tunedex {
namespace {

constexpr int kTipWidthInCharacters = 56;
constexpr int kTipHeightInLines = 7;

} // namespace

bool TipsOnStartup(const Registry& registry) {
    const std::string text = registry.Read(kTipsOnStartupValue);
    return LeadingNumber(text) != 0 || UpperCase(TrimBlanks(text)) == "TRUE"; // not written by this program
}

frmTip::frmTip(Application& application, WindowInterface& ui, QWidget* parent)
    : QDialog(parent), application_(application), ui_(ui), lblTipText_(new QLabel),
      chkLoadTipsAtStartup_(MakeCheckBox(u"chkLoadTipsAtStartup"_s, tr("&Show tips at start-up"),
                                         tr("Show a tip each time the program starts"))) {
    setObjectName(u"frmTip"_s);
    setWindowTitle(tr("Tip of the Day"));

    QPushButton* cmdNextTip =
        MakeButton(u"cmdNextTip"_s, tr("&Next Tip"), tr("Show the next tip"), tr("Next tip"));
    connect(cmdNextTip, &QPushButton::clicked, this, &frmTip::DoNextTip);
    QPushButton* cmdRandomTip =
        MakeButton(u"cmdRandomTip"_s, tr("&Random Tip"), tr("Show a random tip"), tr("Random tip"));
    connect(cmdRandomTip, &QPushButton::clicked, this, &frmTip::DoRandomTip);
    QPushButton* cmdOK = MakeButton(u"cmdOK"_s, tr("&OK"), tr("Save the choice and close the window"));
    cmdOK->setDefault(true);
    for (QPushButton* button : {cmdNextTip, cmdRandomTip, cmdOK}) {
        button->setAutoDefault(true); // Enter presses the focused button
    }
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdNextTip);
    buttons->addWidget(cmdRandomTip);
    buttons->addStretch();
    buttons->addWidget(cmdOK);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(MakeTipPanel(), 1);
    layout->addWidget(chkLoadTipsAtStartup_);
    layout->addLayout(buttons);
    SetTabOrders({chkLoadTipsAtStartup_, cmdNextTip, cmdRandomTip, cmdOK});
    cmdOK->setFocus();

    const bool atStartup = TipsOnStartup(application_.registry);
    chkLoadTipsAtStartup_->setChecked(atStartup);
    if (atStartup) {
        LoadTips();
        DoRandomTip();
    }
}

QWidget* frmTip::MakeTipPanel() {
    NameControl(*lblTipText_, u"lblTipText"_s, QString(), QString());
    lblTipText_->setWordWrap(true);
    lblTipText_->setTextFormat(Qt::PlainText);
    lblTipText_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    lblTipText_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    lblTipText_->setMargin(fontMetrics().height() / 2);
    lblTipText_->setBackgroundRole(QPalette::Base);
    lblTipText_->setForegroundRole(QPalette::Text);
    lblTipText_->setAutoFillBackground(true);

    auto* panel = new QScrollArea; // for long tips
    NameControl(*panel, u"TipPanel"_s, tr("Tip"), QString());
    panel->setWidgetResizable(true);
    panel->setWidget(lblTipText_);
    panel->setMinimumSize(fontMetrics().averageCharWidth() * kTipWidthInCharacters,
                          fontMetrics().lineSpacing() * kTipHeightInLines);
    return panel;
}

void frmTip::LoadTips() {
    RunOrShowError(ui_, *this, application_.errorTitle, [this] {
        tips_.Load(TipsPath(application_.registry, RunningProgramFolder(), application_.programFolder));
    });
}

void frmTip::DoNextTip() {
    tips_.Next();
    DisplayCurrentTip();
}

void frmTip::DoRandomTip() {
    tips_.PickRandom(std::uniform_real_distribution<double>(0, 1)(generator_));
    DisplayCurrentTip();
}

void frmTip::DisplayCurrentTip() {
    lblTipText_->setText(ToQtDisplay(tips_.Current()));
}

void frmTip::accept() {
    application_.registry.Write(kTipsOnStartupValue, chkLoadTipsAtStartup_->isChecked() ? "1" : "0");
    QDialog::accept();
}

} // namespace tunedex
