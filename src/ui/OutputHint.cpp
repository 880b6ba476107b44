#include "OutputHint.h"

#include "OutputForecast.h"
#include "Path.h"
#include "QtText.h"
#include "ResultText.h"
#include "TerminalText.h"

#include <QCoreApplication>
#include <QStringList>

namespace tunedex {
namespace {

// In characters.
constexpr int kNameWidth = 36;
constexpr int kExtensionWidth = 10;

class HintSentences {
    Q_DECLARE_TR_FUNCTIONS(tunedex::OutputHint)

  public:
    explicit HintSentences(const QFontMetrics& metrics) : metrics_(metrics) {}

    static QString OfExtensions(bool modern) {
        return modern ? tr("The extension sets the format: .htm web page, .txt or .csv table, .m3u playlist.")
                      : tr("The extension sets the format: .htm web page, .txt plain text, .m3u playlist.");
    }
    QString Of(const OutputForecast& forecast, const std::string& given) const {
        QStringList notes;
        const QString extension = Elided(ExtensionOf(given), kExtensionWidth);
        if (forecast.modernExtension) {
            notes << tr("Only modern tags and lists know %1.").arg(extension);
        } else if (forecast.appendsExtension && !extension.isEmpty()) {
            notes << tr("%1 is not the extension of a format.").arg(extension);
        }
        if (forecast.replaces) {
            notes << tr("The existing list will be replaced.");
        }
        return Files(forecast) + u'\n' + notes.join(u' ');
    }

  private:
    QString Files(const OutputForecast& forecast) const {
        return forecast.firstPage.empty()
                   ? tr("Writes %1.").arg(Name(forecast.file))
                   : tr("Writes %1 \u2026 (%2 files a page).", nullptr, forecast.perPage)
                         .arg(Name(forecast.firstPage), QString::number(forecast.perPage));
    }
    QString Name(const std::string& path) const {
        return Isolated(Elided(ToQtDisplay(TerminalText(FileNameOf(path, PathStyle::Native()))), kNameWidth));
    }
    QString Elided(const QString& text, int characters) const {
        return metrics_.elidedText(text, Qt::ElideMiddle, metrics_.averageCharWidth() * characters);
    }
    // ".m3u8"; empty for a name without a full stop.
    static QString ExtensionOf(const std::string& path) {
        const std::string_view name = FileNameOf(path, PathStyle::Native());
        const std::size_t stop = name.rfind('.');
        return stop == std::string_view::npos ? QString() : ToQtDisplay(TerminalText(name.substr(stop)));
    }

    const QFontMetrics& metrics_;
};

} // namespace

QString OutputHint(const Settings& settings, const QFontMetrics& metrics) {
    const OutputForecast forecast = ForecastOutput(settings);
    return forecast.file.empty() ? HintSentences::OfExtensions(settings.Modern)
                                 : HintSentences(metrics).Of(forecast, settings.OutputFile);
}

QString LongestOutputHint() {
    return HintSentences::OfExtensions(true);
}

} // namespace tunedex
