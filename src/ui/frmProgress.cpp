#include "frmProgress.h"

#include "Announcement.h"
#include "Controls.h"
#include "CoreText.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace tunedex {

frmProgress::frmProgress(QWidget& mainWindow)
    : QDialog(&mainWindow), mainWindow_(mainWindow), focusBefore_(mainWindow.focusWidget()),
      lblStatus_(new QLabel), lblDetails_(new QLabel), lblOver_(new QLabel(tr("The run is over."))),
      progressBar_(new QProgressBar),
      cmdAbort_(MakeButton(u"cmdAbort"_s, tr("&Abort"),
                           tr("Stop the run. Tracks already written stay in the list."))),
      cmdClose_(MakeButton(u"cmdClose"_s, tr("&Close"), tr("Return to the main window"))) {
    setObjectName(u"frmProgress"_s);
    setWindowTitle(tr("Creating List"));
    NameControl(*lblStatus_, u"lblStatus"_s, QString(), QString());
    NameControl(*lblDetails_, u"lblDetails"_s, QString(), QString());
    NameControl(*lblOver_, u"lblOver"_s, lblOver_->text(), QString());
    NameControl(*progressBar_, u"ProgressBar"_s, tr("Progress"), tr("Progress of the run"));
    connect(cmdAbort_, &QPushButton::clicked, this, &frmProgress::AbortPressed);
    connect(cmdClose_, &QPushButton::clicked, this, &frmProgress::close);
    Build();

    mainWindow_.setEnabled(false);
    setEnabled(true); // disabling the parent window disabled this one
}

// So that the window keeps its size as the numbers grow.
int frmProgress::WidestStatus() const {
    int width = 0;
    for (const QString& text : StatusTexts()) {
        width = std::max(width, fontMetrics().horizontalAdvance(text));
    }
    return width;
}

void frmProgress::Build() {
    const int width = WidestStatus();
    for (QLabel* label : {lblStatus_, lblDetails_}) {
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        label->setMinimumSize(width, fontMetrics().height());
    }
    progressBar_->setMaximum(1);
    progressBar_->setTextVisible(false);
    lblOver_->hide();
    cmdClose_->hide();

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(lblOver_);
    buttons->addStretch();
    buttons->addWidget(cmdAbort_);
    buttons->addWidget(cmdClose_);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lblStatus_);
    layout->addWidget(progressBar_);
    layout->addWidget(lblDetails_);
    layout->addLayout(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

frmProgress::~frmProgress() {
    mainWindow_.setEnabled(true);
    if (focusBefore_ != nullptr) {
        focusBefore_->setFocus(Qt::OtherFocusReason);
    }
}

void frmProgress::Display(const ProgressState& state) {
    lblStatus_->setText(state.status);
    lblDetails_->setText(state.details);
    if (state.busy) {
        progressBar_->setRange(0, 0);
    } else if (state.maximum > 0) {
        progressBar_->setTextVisible(true);
        progressBar_->setRange(0, state.maximum);
    }
    progressBar_->setValue(state.position);
    repaint();
}

void frmProgress::ShowOver() {
    running_ = false;
    lblDetails_->clear();
    lblOver_->show();
    progressBar_->setMaximum(std::max(progressBar_->maximum(), 1)); // no longer busy
    cmdAbort_->hide();
    cmdClose_->show();
    cmdClose_->setDefault(true);
    cmdClose_->setFocus(Qt::OtherFocusReason);
    raise();
    activateWindow();
    Announce(*this, lblOver_->text());
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
