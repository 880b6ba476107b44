#include "frmAbout.h"

#include "Controls.h"
#include "OpenHelp.h"
#include "Product.h"
#include "QtText.h"
#include "StatisticsSentences.h"
#include "Version.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace tunedex {
namespace {

constexpr int kIconSize = 64;
constexpr int kTextWidthInCharacters = 48;

} // namespace

frmAbout::frmAbout(const Application& application, WindowInterface& ui, QWidget* parent) : QDialog(parent) {
    setObjectName(u"frmAbout"_s);
    setWindowTitle(tr("About %1").arg(ToQt(kProductTitle)));

    auto* icon = new QLabel;
    icon->setPixmap(windowIcon().pixmap(kIconSize, kIconSize));
    auto* title = new QLabel(ToQt(kProductTitle));
    QFont large = title->font();
    large.setPointSizeF(large.pointSizeF() * 1.6);
    large.setBold(true);
    title->setFont(large);
    auto* lblVersion = new QLabel(
        tr("Version %1.%2 - Build %3").arg(ToQt(kMajorVersion), ToQt(kMinorVersion), ToQt(kBuildNumber)));
    NameControl(*lblVersion, u"lblVersion"_s, QString(), QString());
    auto* lblStats = new QLabel(StatisticsSentences(application.statistics));
    NameControl(*lblStats, u"lblStats"_s, QString(), QString());
    lblStats->setWordWrap(true);
    lblStats->setMinimumWidth(fontMetrics().averageCharWidth() * kTextWidthInCharacters);

    QPushButton* cmdHomePage =
        MakeButton(u"cmdHomePage"_s, tr("&Home page"), ToQt(kHomePage), tr("Home page"));
    connect(cmdHomePage, &QPushButton::clicked, this,
            [this, &application, &ui] { OpenAddress(ToQt(kHomePage), application, ui, *this); });
    QPushButton* cmdEmail =
        MakeButton(u"cmdEmail"_s, tr("&E-mail the author"), ToQt(kEmail), tr("E-mail the author"));
    connect(cmdEmail, &QPushButton::clicked, this,
            [this, &application, &ui] { OpenAddress(u"mailto:"_s + ToQt(kEmail), application, ui, *this); });
    QPushButton* cmdOK = MakeButton(u"cmdOK"_s, tr("&OK"), tr("Close the window"));
    cmdOK->setDefault(true);
    for (QPushButton* button : {cmdHomePage, cmdEmail, cmdOK}) {
        button->setAutoDefault(true); // Enter presses the focused button
    }
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);

    auto* texts = new QVBoxLayout;
    texts->addWidget(title);
    texts->addWidget(lblVersion);
    texts->addSpacing(fontMetrics().height() / 2);
    texts->addWidget(lblStats);
    texts->addStretch();
    auto* top = new QHBoxLayout;
    top->addWidget(icon, 0, Qt::AlignTop);
    top->addSpacing(fontMetrics().height() / 2);
    top->addLayout(texts, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdHomePage);
    buttons->addWidget(cmdEmail);
    buttons->addStretch();
    buttons->addWidget(cmdOK);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addSpacing(fontMetrics().height() / 2);
    layout->addLayout(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize); // gives the wrapped text its full height

    SetTabOrders({cmdHomePage, cmdEmail, cmdOK});
    cmdOK->setFocus();
}

} // namespace tunedex
