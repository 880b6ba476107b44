// The layout editor's preview: a sample listing written with the current settings.
#pragma once

#include "Application.h"
#include "EntityTable.h"
#include "PreviewCaption.h"
#include "WindowInterface.h"

#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>

#include <functional>

class QLabel;
class QPushButton;
class QTextBrowser;

namespace tunedex {

class PreviewPane : public QWidget {
    Q_OBJECT

  public:
    // Calls `content` for every update of the page.
    PreviewPane(const Application& application, WindowInterface& ui, std::function<PreviewContent()> content,
                QWidget* parent = nullptr);

    // Updates the page 120 ms after the last call. Does nothing while the pane is hidden.
    void ShowSoon();
    void ShowNow();

    // High enough for the wrapped caption. A layout by itself leaves no room for its wrapping.
    QSize minimumSizeHint() const override;

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void BuildControls();
    void ShowPage(const QString& page, const PreviewContent& content);

    const Application& application_;
    WindowInterface& ui_;
    std::function<PreviewContent()> content_;
    EntityTable entities_;
    QTemporaryDir folder_;
    QTimer delay_;
    QLabel* caption_;
    QPushButton* cmdOpenSample_ = nullptr;
    QTextBrowser* browser_;
};

} // namespace tunedex
