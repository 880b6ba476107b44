// Shows what a listing would look like now.
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
    // `settings` tells what the page is written with; it is asked each time the page is made.
    PreviewPane(const Application& application, std::function<Settings()> settings,
                QWidget* parent = nullptr);

    // The page is made anew as soon as no more changes come, and only while it can be seen.
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
