#include "frmProgress.h"

#include "Controls.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace tunedex {

frmProgress::frmProgress(QWidget& mainWindow)
    : QDialog(&mainWindow), mainWindow_(mainWindow), focusBefore_(mainWindow.focusWidget()),
      lblStatus_(new QLabel), progressBar_(new QProgressBar),
      cmdAbort_(MakeButton(u"cmdAbort"_s, tr("&Abort"),
                           tr("Stop the run. Tracks already written stay in the list."))) {
    setObjectName(u"frmProgress"_s);
    setWindowTitle(tr("Creating List"));
    NameControl(*lblStatus_, u"lblStatus"_s, QString(), QString());
    NameControl(*progressBar_, u"ProgressBar"_s, tr("Progress"), tr("Progress of the run"));
    connect(cmdAbort_, &QPushButton::clicked, this, &frmProgress::AbortPressed);

    // Fits the longest status text, so the window keeps its size as the numbers grow.
    lblStatus_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    lblStatus_->setMinimumWidth(
        fontMetrics().horizontalAdvance(u"Retrieving MPEG/ID3 information (8888888/8888888)..."_s));
    progressBar_->setMaximum(1);
    progressBar_->setTextVisible(false);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdAbort_);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lblStatus_);
    layout->addWidget(progressBar_);
    layout->addLayout(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    mainWindow_.setEnabled(false);
    setEnabled(true); // disabling the parent window disabled this one
}

frmProgress::~frmProgress() {
    mainWindow_.setEnabled(true);
    if (focusBefore_ != nullptr) {
        focusBefore_->setFocus(Qt::OtherFocusReason);
    }
}

void frmProgress::Display(const QString& status, int maximum, int position) {
    lblStatus_->setText(status);
    if (maximum > 0) {
        progressBar_->setTextVisible(true);
        progressBar_->setMaximum(maximum);
    }
    progressBar_->setValue(position);
    repaint();
}

void frmProgress::reject() {
    close();
}

void frmProgress::closeEvent(QCloseEvent* event) {
    if (running_) {
        event->ignore();
        emit AbortPressed();
        return;
    }
    event->accept();
    emit Closed();
}

} // namespace tunedex
