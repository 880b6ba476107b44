#include "RecentButton.h"

#include "Controls.h"
#include "QtText.h"
#include "TerminalText.h"

#include <QLineEdit>
#include <QMenu>
#include <QShortcut>

using namespace Qt::StringLiterals;

namespace tunedex {
namespace {

constexpr int kWidthInCharacters = 60; // of a path in the menu

} // namespace

RecentButton::RecentButton(const QString& objectName, const QString& accessibleName, QLineEdit& field,
                           RecentPaths paths)
    : field_(field), paths_(paths), menu_(new QMenu(this)) {
    NameControl(*this, objectName, accessibleName, tr("%1 (Alt+Down in the field)").arg(accessibleName));
    KeepLeftToRight(*menu_);
    setMenu(menu_);
    setPopupMode(QToolButton::InstantPopup);
    setArrowType(Qt::DownArrow);
    setStyleSheet(u"QToolButton::menu-indicator { image: none }"_s); // one arrow is enough
    setFocusPolicy(Qt::StrongFocus);
    connect(menu_, &QMenu::aboutToShow, this, &RecentButton::FillMenu);
    auto* open = new QShortcut(QKeySequence(Qt::ALT | Qt::Key_Down), &field);
    open->setContext(Qt::WidgetShortcut);
    connect(open, &QShortcut::activated, this, &QToolButton::showMenu);
    ShowState();
}

void RecentButton::Add(const std::string& path) {
    paths_.Add(path);
    ShowState();
}

void RecentButton::Offer(bool offered) {
    offered_ = offered;
    ShowState();
}

void RecentButton::FillMenu() {
    menu_->clear();
    for (const std::string& path : paths_.Paths()) {
        const QString shown = ToQtDisplay(TerminalText(path));
        QAction* item = menu_->addAction(
            fontMetrics()
                .elidedText(shown, Qt::ElideMiddle, fontMetrics().averageCharWidth() * kWidthInCharacters)
                .replace(u'&', u"&&"_s));
        item->setToolTip(shown);
        connect(item, &QAction::triggered, &field_, [this, path] {
            field_.setText(ToQt(path));
            field_.setFocus();
        });
    }
    menu_->addSeparator();
    connect(menu_->addAction(tr("&Clear this list")), &QAction::triggered, this, [this] {
        paths_.Clear();
        ShowState();
    });
}

void RecentButton::ShowState() {
    EnableOrPassFocus(*this, offered_ && !paths_.Paths().empty(), field_);
}

} // namespace tunedex
