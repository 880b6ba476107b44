// The layout editor's preview: a sample listing written with the current settings.
#pragma once

#include "Application.h"
#include "EntityTable.h"

#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>

#include <functional>

class QLabel;
class QTextBrowser;

namespace tunedex {

class PreviewPane : public QWidget {
    Q_OBJECT

  public:
    // Calls `settings` for every update of the page.
    PreviewPane(const Application& application, std::function<Settings()> settings,
                QWidget* parent = nullptr);

    // Updates the page 120 ms after the last call. Does nothing while the pane is hidden.
    void ShowSoon();
    void ShowNow();

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void ShowPage(const QString& page);

    const Application& application_;
    std::function<Settings()> settings_;
    EntityTable entities_;
    QTemporaryDir folder_;
    QTimer delay_;
    QLabel* caption_;
    QTextBrowser* browser_;
};

} // namespace tunedex
