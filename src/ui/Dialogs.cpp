#include "Dialogs.h"

#include "Controls.h"
#include "FileFilters.h"
#include "FolderPortal.h"
#include "QtText.h"
#include "UserInterface.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QClipboard>
#include <QDialog>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLabel>
#include <QMessageBox>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace tunedex {
namespace {

constexpr qsizetype kLongWord = 60;
constexpr QChar kZeroWidthSpace(u'\u200B');

struct BoxParts {
    QMessageBox::Icon icon;
    QMessageBox::StandardButtons buttons;
};

BoxParts PartsFor(int buttons) {
    switch (buttons) {
    case kOkCancelQuestion:
        return {QMessageBox::Question, QMessageBox::Ok | QMessageBox::Cancel};
    case kYesNoQuestion:
        return {QMessageBox::Question, QMessageBox::Yes | QMessageBox::No};
    case kYesNoExclamation:
        return {QMessageBox::Warning, QMessageBox::Yes | QMessageBox::No};
    case kOkInformation:
        return {QMessageBox::Information, QMessageBox::Ok};
    default:
        return {QMessageBox::Warning, QMessageBox::Ok};
    }
}

int AnswerFor(int button) {
    switch (button) {
    case QMessageBox::Yes:
        return kAnswerYes;
    case QMessageBox::No:
        return kAnswerNo;
    case QMessageBox::Cancel:
        return kAnswerCancel;
    default:
        return kAnswerOk;
    }
}

QString ExistingStart(const std::string& start) {
    const QString path = ToQt(start);
    return !path.isEmpty() && QFileInfo(path).isDir() ? path : QDir::homePath();
}

void OfferFilters(QFileDialog& dialog, const QList<FileFilter>& filters, const QString& startName) {
    QStringList names;
    qsizetype chosen = 0;
    for (qsizetype i = 0; i < filters.size(); ++i) {
        names.append(QtNameFilter(filters[i]));
        const QString ending = u'.' + ExtensionOf(filters[i]);
        if (ending.size() > 1 && startName.endsWith(ending, Qt::CaseInsensitive)) {
            chosen = i;
        }
    }
    if (names.isEmpty()) {
        return;
    }
    dialog.setNameFilters(names);
    dialog.selectNameFilter(names[chosen]);
    dialog.setDefaultSuffix(ExtensionOf(filters[chosen]));
}

// Changes the file name's extension when the user selects another filter.
void FollowFilter(QFileDialog& dialog, const QList<FileFilter>& filters) {
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&dialog, filters](const QString& name) {
        // Qt's dialog emits the description only, a native dialog the whole filter.
        const auto index = std::distance(
            filters.begin(), std::find_if(filters.begin(), filters.end(), [&](const FileFilter& filter) {
                return name == filter.description || name == QtNameFilter(filter);
            }));
        if (index == filters.size()) {
            return;
        }
        dialog.setDefaultSuffix(ExtensionOf(filters[index]));
        const QStringList files = dialog.selectedFiles();
        const QString file = files.isEmpty() ? QString() : QFileInfo(files.first()).fileName();
        const QString renamed = NameForFilter(file, filters[index], filters);
        if (renamed != file) {
            dialog.selectFile(renamed);
        }
    });
}

void FillBox(QMessageBox& box, const QString& text, int buttons, const QString& title) {
    const BoxParts parts = PartsFor(buttons);
    box.setObjectName(u"MessageBox"_s);
    box.setWindowTitle(title);
    box.setIcon(parts.icon);
    box.setStandardButtons(parts.buttons);
    box.setTextFormat(Qt::PlainText);
    box.setText(WithBreaksInLongWords(text));
    box.setAccessibleName(title);
    box.setAccessibleDescription(text);
}

// Removes the breaks of WithBreaksInLongWords() from what the user copies while the box is open.
void CopyWithoutBreaks(QMessageBox& box) {
    QClipboard* const clipboard = QGuiApplication::clipboard();
    QObject::connect(clipboard, &QClipboard::changed, &box, [clipboard](QClipboard::Mode mode) {
        const QString text = clipboard->text(mode);
        if (text.contains(kZeroWidthSpace)) {
            clipboard->setText(QString(text).remove(kZeroWidthSpace), mode);
        }
    });
}

std::string NativePath(const QString& path) {
    return FromQt(QDir::toNativeSeparators(path));
}

// Asks with Qt's dialog.
QStringList AskWithQt(QWidget* owner, const QString& title, const QString& prompt, const std::string& start,
                      QAbstractItemView::SelectionMode mode) {
    QDialog window(owner);
    window.setWindowTitle(title);
    auto* label = new QLabel(prompt);
    label->setWordWrap(true);

    // Not the native dialog: only a widget can be laid out below the prompt.
    auto* chooser = new QFileDialog(&window);
    chooser->setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::ShowDirsOnly);
    chooser->setFileMode(QFileDialog::Directory);
    chooser->setDirectory(ExistingStart(start));
    chooser->setLabelText(QFileDialog::Accept, Dialogs::tr("&OK"));
    chooser->setWindowFlags(Qt::Widget);
    chooser->setSizeGripEnabled(false);
    chooser->layout()->setContentsMargins(0, 0, 0, 0);
    for (auto* view : chooser->findChildren<QAbstractItemView*>()) {
        if (view->objectName() == u"listView"_s || view->objectName() == u"treeView"_s) {
            view->setSelectionMode(mode);
        }
    }
    QObject::connect(chooser, &QDialog::accepted, &window, &QDialog::accept);
    QObject::connect(chooser, &QDialog::rejected, &window, &QDialog::reject);

    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(label);
    layout->addWidget(chooser);
    return window.exec() == QDialog::Accepted ? chooser->selectedFiles() : QStringList();
}

std::vector<std::string> AskForFolders(QWidget* owner, const QString& title, const QString& prompt,
                                       const std::string& start, bool several) {
    if (IsPortalLikely()) {
        // A portal has no place for a prompt.
        const PortalQuestion question{Dialogs::tr("%1: %2").arg(title, prompt), start, several,
                                      PortalParent(owner)};
        if (auto folders = AskPortalForFolders(QDBusConnection::sessionBus(), question)) {
            return std::move(*folders);
        }
    }
    std::vector<std::string> folders;
    const auto mode = several ? QAbstractItemView::ExtendedSelection : QAbstractItemView::SingleSelection;
    for (const QString& folder : AskWithQt(owner, title, prompt, start, mode)) {
        folders.push_back(NativePath(folder));
    }
    return folders;
}

} // namespace

QString WithBreaksInLongWords(const QString& text) {
    QString result;
    qsizetype wordLength = 0;
    for (const QChar character : text) {
        wordLength = character.isSpace() ? 0 : wordLength + 1;
        if (wordLength > kLongWord && !character.isLowSurrogate()) {
            result.append(kZeroWidthSpace);
        }
        result.append(character);
    }
    return result;
}

int Dialogs::ShowMessage(QWidget* owner, const QString& text, int buttons, const QString& title) {
    QMessageBox box(owner);
    FillBox(box, text, buttons, title);
    return AnswerFor(box.exec());
}

bool Dialogs::ShowReport(QWidget* owner, const QString& text, const QString& title) {
    QMessageBox box(owner);
    FillBox(box, text, kOkExclamation, title);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    QCheckBox* const noMore = MakeCheckBox(u"chkNoMoreMessages"_s, tr("&No more messages in this run"),
                                           tr("Errors still go to the log, if the options ask for one"));
    box.setCheckBox(noMore);
    CopyWithoutBreaks(box);
    box.exec();
    return !noMore->isChecked();
}

std::optional<std::string> Dialogs::ChooseFolder(QWidget* owner, const QString& title, const QString& prompt,
                                                 const std::string& start) {
    const std::vector<std::string> folders = AskForFolders(owner, title, prompt, start, false);
    return folders.empty() ? std::nullopt : std::optional(folders.front());
}

std::vector<std::string> Dialogs::ChooseFolders(QWidget* owner, const QString& title, const QString& prompt,
                                                const std::string& start) {
    return AskForFolders(owner, title, prompt, start, true);
}

std::optional<std::string> Dialogs::ChooseFile(QWidget* owner, const FileQuestion& question) {
    QFileDialog dialog(owner, question.title);
    const QFileInfo start(ToQt(question.start));
    const QList<FileFilter> filters = ParseFilterList(question.filters);

    dialog.setAcceptMode(question.forSaving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(question.forSaving ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog.setOption(QFileDialog::HideNameFilterDetails); // the descriptions contain the patterns
    OfferFilters(dialog, filters, start.fileName());
    const bool startIsFolder = question.start.empty() || start.isDir();
    dialog.setDirectory(ExistingStart(startIsFolder ? question.start : FromQt(start.path())));
    if (!startIsFolder && (question.forSaving || start.exists())) {
        dialog.selectFile(start.fileName());
    }
    if (question.forSaving) {
        FollowFilter(dialog, filters);
    }
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return std::nullopt;
    }
    return NativePath(dialog.selectedFiles().first());
}

} // namespace tunedex
