// The layout editor: everything about the look of HTML listings, with a preview.
#pragma once

#include "Application.h"
#include "Choosers.h"
#include "WindowInterface.h"

#include <QDialog>

#include <functional>

class QBoxLayout;
class QCheckBox;
class QPushButton;
class QSplitter;
class QTabWidget;

namespace tunedex {

class ColoursPage;
class ColumnsPage;
class DocumentPage;
class FontsPage;
class PreviewPane;
class TablePage;
class ThemePanel;
struct ThemeContent;

class frmEditLayout : public QDialog {
    Q_OBJECT

  public:
    // The controls show the settings as they are now.
    frmEditLayout(Application& application, WindowInterface& ui, QWidget* parent = nullptr);

    // Sets every control from the settings.
    void LoadControls();

    // What a run takes from the open editor: MoveTheArtists and DocumentType.
    void StoreRunControls(Settings& settings) const;
    // Everything that the editor edits. A number box whose text is no number for a setting leaves its setting
    // as it is.
    void StoreControls(Settings& settings) const;

    // The settings that the preview starts from, before the editor's controls are stored into them; without
    // it those of the application.
    void SetPreviewBase(std::function<Settings()> base) { previewBase_ = std::move(base); }
    // In place of Qt's own dialogs.
    void SetChoosers(Choosers choosers) { choosers_ = std::move(choosers); }

  protected:
    void closeEvent(QCloseEvent* event) override;
    void done(int result) override;

  private:
    void AddPage(QWidget* page, const QString& title);
    QBoxLayout* BuildButtons();
    void ConnectPages();
    void FollowTheme();
    ThemeContent CurrentTheme() const;
    void UseLayout();

    Application& application_;
    WindowInterface& ui_;
    Choosers choosers_ = QtChoosers();
    std::function<Settings()> previewBase_;

    QTabWidget* tabStrip_;
    ColumnsPage* columns_;
    FontsPage* fonts_;
    ColoursPage* colours_;
    TablePage* table_;
    ThemePanel* themes_;
    DocumentPage* document_;
    PreviewPane* preview_;
    QPushButton* cmdOK_ = nullptr;
    QPushButton* cmdCancel_ = nullptr;
    QPushButton* cmdHelp_ = nullptr;
    QCheckBox* chkPreview_ = nullptr;
};

} // namespace tunedex
