// The folder-list dialog: several folders that are searched together, in the order of the rows.
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
    // Shows the folders of the settings' multi-folder value.
    frmDirSelection(Application& application, WindowInterface& ui, Dialogs& dialogs, QWidget* parent);

    // Stores the rows as the settings' folder value; without rows that stays as it is.
    void OKPressed_MakeDirs();

    // Appends a folder unless it is missing or listed already in any case of its letters.
    void AddFolder(const std::string& folder);

    void done(int result) override;

  private:
    QPushButton* MakeButton(const char* name, const QString& caption, const QString& description,
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
    int SelectedRow() const; // -1 where there is none
    void SelectRow(int row);
    void ExchangeTexts(int row, int otherRow);
    void FitColumn();
    void UpdateState();

    Application& application_;
    WindowInterface& ui_;
    Dialogs& dialogs_;
    std::string lastFolder_; // where the next browsing begins

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
