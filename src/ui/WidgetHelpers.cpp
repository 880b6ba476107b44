#include "WidgetHelpers.h"

#include "Product.h"
#include "Text.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDesktopServices>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QSettings>
#include <QShortcut>
#include <QStringDecoder>
#include <QUrl>

#include <filesystem>
#include <limits>

using namespace Qt::StringLiterals;

// Q_INIT_RESOURCE declares a function in the enclosing namespace, which must be the global one.
static void InitResources() {
    Q_INIT_RESOURCE(icons);
}

namespace tunedex {
namespace {

constexpr char16_t kStrayByteBase = 0xDC00;

bool IsStrayByte(QChar character) {
    return character.unicode() >= kStrayByteBase + 0x80 && character.unicode() <= kStrayByteBase + 0xFF;
}

// The registry's store; the windows have a group of their own in it.
QSettings WindowStore() {
    return QSettings(ToQt(kCompanyName), ToQt(kProductTitle));
}

QString GeometryKey(const QWidget& window) {
    return u"Windows/"_s + window.objectName();
}

void OpenUrl(const QUrl& url, const Application& application, WindowInterface& ui, QWidget& owner) {
    if (!QDesktopServices::openUrl(url)) {
        const std::string shown = FromQt(url.toDisplayString());
        ui.ShowMessage(owner, "No program could be found to open\r\n" + shown, kOkExclamation,
                       application.errorTitle);
    }
}

} // namespace

QString ToQt(std::string_view text) {
    QString result;
    result.reserve(static_cast<qsizetype>(text.size()));
    for (std::size_t position = 0; position < text.size();) {
        const TextStep step = StepAt(text, position);
        if (step.stray) {
            const auto byte = static_cast<unsigned char>(text[position]);
            result.append(QChar(static_cast<char16_t>(kStrayByteBase + byte)));
        } else {
            // Not QString::fromUtf8(), which drops a leading U+FEFF as a byte-order mark.
            result.append(QChar::fromUcs4(step.character));
        }
        position += step.length;
    }
    return result;
}

std::string FromQt(const QString& text) {
    std::string result;
    result.reserve(static_cast<std::size_t>(text.size()));
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar character = text[i];
        if (character.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            AppendUtf8(result, QChar::surrogateToUcs4(character, text[i + 1]));
            ++i;
        } else if (IsStrayByte(character)) {
            result.push_back(static_cast<char>(character.unicode() - kStrayByteBase));
        } else if (character.isSurrogate()) {
            AppendUtf8(result, QChar::ReplacementCharacter);
        } else {
            AppendUtf8(result, character.unicode());
        }
    }
    return result;
}

QString ToQtDisplay(std::string_view text) {
    QStringDecoder decoder(QStringDecoder::Utf8,
                           QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    const QString result = decoder(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
    return QString(result).replace(u"\r\n"_s, u"\n"_s);
}

void NameControl(QWidget& control, const QString& objectName, const QString& accessibleName,
                 const QString& description) {
    control.setObjectName(objectName);
    control.setAccessibleName(accessibleName);
    control.setAccessibleDescription(description);
    control.setToolTip(description);
}

QLabel* MakeLabelFor(QWidget& control, const QString& textWithMnemonic) {
    auto* label = new QLabel(textWithMnemonic);
    label->setBuddy(&control);
    return label;
}

QLineEdit* MakeTextField(const QString& objectName, const QString& accessibleName,
                         const QString& description) {
    auto* field = new QLineEdit;
    field->setMaxLength(std::numeric_limits<int>::max());
    NameControl(*field, objectName, accessibleName, description);
    return field;
}

void PressOnHelpKey(QWidget& window, QAbstractButton& button) {
    auto* key = new QShortcut(QKeySequence::HelpContents, &window);
    QObject::connect(key, &QShortcut::activated, &button, &QAbstractButton::click);
}

void SetTabOrders(const QList<QWidget*>& controls) {
    for (qsizetype i = 0; i + 1 < controls.size(); ++i) {
        QWidget::setTabOrder(controls[i], controls[i + 1]);
    }
}

void FocusAndSelectAll(QLineEdit& field) {
    field.window()->activateWindow(); // after a message box the window manager may activate another one
    field.setFocus(Qt::OtherFocusReason);
    field.selectAll();
}

void EnableOrPassFocus(QWidget& control, bool enabled, QWidget& heir) {
    if (!enabled && control.hasFocus()) {
        heir.setFocus();
    }
    control.setEnabled(enabled);
}

void RestoreWindowGeometry(QWidget& window) {
    const QByteArray geometry = WindowStore().value(GeometryKey(window)).toByteArray();
    if (!geometry.isEmpty()) {
        window.restoreGeometry(geometry);
    }
}

void SaveWindowGeometry(const QWidget& window) {
    WindowStore().setValue(GeometryKey(window), window.saveGeometry());
}

void InstallProgramIcon() {
    InitResources();
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
        icon.addFile(u":/icons/tunedex-%1.png"_s.arg(size), QSize(size, size));
    }
    QApplication::setWindowIcon(icon);
}

void OpenHelp(const Application& application, WindowInterface& ui, QWidget& owner) {
    if (application.helpFile.empty()) {
        ui.ShowMessage(owner, "The help file could not be found!", kOkExclamation, application.errorTitle);
        return;
    }
    // Percent-encodes the bytes: QUrl::fromLocalFile() loses bytes that are not UTF-8.
    const std::string absolute = std::filesystem::absolute(application.helpFile).string();
    const QByteArray path = QByteArray::fromStdString(absolute).toPercentEncoding("/");
    OpenUrl(QUrl::fromEncoded("file://" + path), application, ui, owner);
}

void OpenAddress(const QString& address, const Application& application, WindowInterface& ui,
                 QWidget& owner) {
    OpenUrl(QUrl(address), application, ui, owner);
}

} // namespace tunedex
