// The options dialog: searching, file sizes, sorting, errors and links. Opens the layout editor.
#pragma once

#include "Application.h"
#include "WindowInterface.h"

#include <QDialog>
#include <QPointer>

class QCheckBox;
class QGroupBox;
class QLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace tunedex {

class CodePageBox;
class NumberBox;
class OptionGroup;
class frmEditLayout;

class frmOptions : public QDialog {
    Q_OBJECT

  public:
    // Loads the controls from the settings.
    frmOptions(Application& application, WindowInterface& ui, QWidget* parent = nullptr);

    // Sets every control from the settings, also in an open layout editor.
    void LoadControls();

    // Stores the controls, and MoveTheArtists and DocumentType of the layout editor. If page splitting is on
    // and files per page is not numeric (out of range), raises error 13 (6) and stores nothing.
    void StoreControls(Settings& settings) const;

    // Ticks "Modern tags and lists"; the other controls keep what the user has set.
    void SwitchModernOn();

    // Null while the layout editor is closed.
    frmEditLayout* Editor() const;

    // Enables or disables this dialog and its layout editor. While the editor is open the dialog stays
    // disabled. A disabled dialog ignores close events; reject() closes both.
    void SetUsable(bool usable);

  signals:
    // Save has written the default settings file.
    void DefaultsSaved();

  protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void done(int result) override;

  private:
    QGroupBox* BuildListGroup();
    QGroupBox* BuildSizeGroup();
    QGroupBox* BuildSortGroup();
    QGroupBox* BuildErrorGroup();
    QGroupBox* BuildLinkGroup();
    QGroupBox* BuildModernGroup();
    QLayout* BuildButtons();
    static QLabel* BuildButtonHint();
    void BuildMenu();
    void SetTabOrder();

    void EnableSpanning();
    void EnableLinks();
    void FollowModern();
    void GreyDisabledFields();

    // Shows a message if files per page is not a number in range. Returns whether it is.
    bool Validate();
    void StoreOwnControls(Settings& settings) const;
    void StoreModern(Settings& settings) const;
    void DiscardModernColumns();
    void Use();
    void Save();
    void EditLayout();
    void ReleaseEditor();
    void UpdateEnabled();

    Application& application_;
    WindowInterface& ui_;
    QPointer<frmEditLayout> editor_;
    bool usable_ = true;

    QCheckBox* chkRecursive_ = nullptr;
    QCheckBox* chkSpan_ = nullptr;
    NumberBox* txtFilesPerPage_ = nullptr;
    OptionGroup* sizeType_ = nullptr;
    OptionGroup* sortOrder_ = nullptr;
    QCheckBox* chkErrorBoxes_ = nullptr;
    QCheckBox* chkErrorLog_ = nullptr;
    QCheckBox* chkConfirmQuit_ = nullptr;
    QCheckBox* chkLinks_ = nullptr;
    OptionGroup* linkType_ = nullptr;
    QLineEdit* txtLinkPrefix_ = nullptr;
    QGroupBox* fraSortOrder_ = nullptr;
    QCheckBox* chkModern_ = nullptr;
    CodePageBox* cmbTagCodePage_ = nullptr;
    // Whether the editor has stored columns while the box was ticked, so that the settings can name modern
    // columns before they are modern.
    bool modernColumnsStored_ = false;
    QPushButton* cmdEditLayout_ = nullptr;
    QPushButton* cmdUse_ = nullptr;
    QPushButton* cmdSave_ = nullptr;
    QPushButton* cmdCancel_ = nullptr;
};

} // namespace tunedex
