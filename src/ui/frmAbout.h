// The about box: version, usage statistics, links.
#pragma once

#include "Application.h"
#include "WindowInterface.h"

#include <QDialog>

namespace tunedex {

class frmAbout final : public QDialog {
    Q_OBJECT

  public:
    frmAbout(const Application& application, WindowInterface& ui, QWidget* parent);
};

} // namespace tunedex
