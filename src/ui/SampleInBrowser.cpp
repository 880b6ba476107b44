#include "SampleInBrowser.h"

#include "ErrorMessage.h"
#include "OpenHelp.h"
#include "QtText.h"
#include "RunTimeError.h"
#include "SamplePage.h"

#include <QCoreApplication>
#include <QTemporaryDir>

namespace tunedex {
namespace {

// A child of the application object, so that the folder is removed when the program ends.
class SampleFolder final : public QObject {
  public:
    static SampleFolder& OfProgram() {
        static const auto kName = QStringLiteral("SampleFolder");
        auto* folder = QCoreApplication::instance()->findChild<QObject*>(kName, Qt::FindDirectChildrenOnly);
        if (folder == nullptr) {
            folder = new SampleFolder(QCoreApplication::instance());
            folder->setObjectName(kName);
        }
        return static_cast<SampleFolder&>(*folder);
    }

    // Raises error 75 if there is no folder to write to.
    std::string PathOf(const QString& name) const {
        if (!folder_.isValid()) {
            throw RunTimeError(ErrorNumber::PathFileAccess);
        }
        return FromQt(folder_.filePath(name));
    }

  private:
    using QObject::QObject;

    QTemporaryDir folder_;
};

} // namespace

void OpenSampleInBrowser(const Settings& settings, const Application& application,
                         const EntityTable& entities, WindowInterface& ui, QWidget& owner) {
    RunOrShowError(ui, owner, application.errorTitle, [&] {
        const std::string path = SampleFolder::OfProgram().PathOf(QStringLiteral("sample.htm"));
        WriteSampleFile(settings, application, entities, path);
        OpenPath(path, application, ui, owner);
    });
}

} // namespace tunedex
