// The folder-list dialog: edits the folders of one run, in search order.
#pragma once

#include "Application.h"
#include "Dialogs.h"
#include "WindowInterface.h"

#include <QDialog>

#include <string>
#include <vector>

class QGridLayout;
class QLabel;
class QPushButton;
class QTreeWidget;

namespace tunedex {

class frmDirSelection final : public QDialog {
    Q_OBJECT

  public:
    // Lists the folders of Settings::Directory if that is a multi-folder value.
    frmDirSelection(Application& application, WindowInterface& ui, Dialogs& dialogs, QWidget* parent);

    // Stores the rows in Settings::Directory. Leaves it unchanged if there are no rows.
    void OKPressed_MakeDirs();

    // Appends a folder unless it does not exist or is listed already, ignoring case.
    void AddFolder(const std::string& folder);

    void done(int result) override;

  private:
    QPushButton* MakeCommand(const QString& objectName, const QString& caption, const QString& description,
                             void (frmDirSelection::*command)());
    void BuildList();
    QWidget* BuildButtons();
    QWidget* BuildBottomRow();

    void Add();
    void Remove();
    void Clear();
    void MoveTop();
    void MoveUp();
    void MoveDown();
    void MoveBottom();
    void Help();
    void Use();

    std::vector<std::string> Rows() const;
    int SelectedRow() const; // -1 if none
    void SelectRow(int row);
    void ExchangeTexts(int row, int otherRow);
    void FitColumn();
    void ShowCount(const QString& text);
    void UpdateState();

    Application& application_;
    WindowInterface& ui_;
    Dialogs& dialogs_;
    std::string lastFolder_; // initial folder of the folder chooser

    QTreeWidget* lvwDirs_;
    QLabel* lblNumOfDirs_;
    QPushButton* cmdAdd_ = nullptr;
    QPushButton* cmdRemove_ = nullptr;
    QPushButton* cmdClear_ = nullptr;
    QPushButton* cmdTop_ = nullptr;
    QPushButton* cmdUp_ = nullptr;
    QPushButton* cmdDown_ = nullptr;
    QPushButton* cmdBottom_ = nullptr;
};

} // namespace tunedex
