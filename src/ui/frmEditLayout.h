// The layout editor: columns, fonts, colours, table and themes of HTML listings, with a preview.
#pragma once

#include "Application.h"
#include "Choosers.h"
#include "WindowInterface.h"

#include <QDialog>

#include <array>
#include <functional>
#include <string>

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
struct PreviewContent;
struct ThemeContent;

class frmEditLayout : public QDialog {
    Q_OBJECT

  public:
    // Loads the controls from the settings.
    frmEditLayout(Application& application, WindowInterface& ui, QWidget* parent = nullptr);

    // Sets every control from the settings.
    void LoadControls();

    // Whether the columns of modern listings are on offer; LoadControls() takes it from the settings.
    void OfferModernColumns(bool offer);

    // Stores what a run takes from an open editor: MoveTheArtists and DocumentType.
    void StoreRunControls(Settings& settings) const;
    // Stores all controls. Leaves a number setting unchanged if its box does not hold a number in range.
    void StoreControls(Settings& settings) const;

    // Sets the source of the preview's settings, which the editor's controls then override. By default the
    // application's settings.
    void SetPreviewBase(std::function<Settings()> base);
    // Replaces Qt's dialogs, for tests.
    void SetChoosers(Choosers choosers) { choosers_ = std::move(choosers); }

  protected:
    void closeEvent(QCloseEvent* event) override;
    void done(int result) override;

  private:
    // What the controls hold.
    struct Content {
        Settings settings;
        std::array<std::string, 3> table; // as typed

        bool operator==(const Content&) const = default;
    };

    void AddPage(QWidget* page, const QString& title);
    void ShowPage(const QWidget& page);
    QBoxLayout* BuildButtons();
    void ConnectPages();
    void FollowEdit();
    void FollowTheme();
    Content CurrentContent() const;
    PreviewContent ContentToPreview() const;
    void ShowLoss();
    ThemeContent CurrentTheme() const;
    void UseLayout();

    Application& application_;
    WindowInterface& ui_;
    Choosers choosers_ = QtChoosers();
    std::function<Settings()> previewBase_;
    Content loaded_; // what the controls held before they were edited

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
