#include "StatisticsSentences.h"

#include "QtText.h"

#include <QCoreApplication>

namespace tunedex {
namespace {

class PastRuns {
    Q_DECLARE_TR_FUNCTIONS(tunedex::Statistics)

  public:
    explicit PastRuns(const Statistics& statistics) : statistics_(statistics) {}

    QString Started() const {
        return tr("Tunedex was first started on %1 and has been started %2 since.")
            .arg(ToQtDisplay(statistics_.FirstStarted), Times());
    }
    QString Created() const { return tr("It has created %1, and handled %2.").arg(Lists(), Files()); }

  private:
    // Required: zero is singular here, "0 time".
    QString Times() const {
        const int count = statistics_.TimesStarted;
        return (count < 2 ? tr("%1 time") : tr("%1 times", nullptr, count)).arg(count);
    }
    QString Lists() const {
        const int count = statistics_.ListsCreated;
        return (count == 1 ? tr("%1 list") : tr("%1 lists", nullptr, count)).arg(count);
    }
    QString Files() const {
        const int count = statistics_.FilesHandled;
        return (count == 1 ? tr("%1 MP3 file") : tr("%1 MP3 files", nullptr, count)).arg(count);
    }

    const Statistics& statistics_;
};

} // namespace

QString StatisticsSentences(const Statistics& statistics) {
    const PastRuns runs(statistics);
    const bool createdLists = statistics.ListsCreated >= 1 && statistics.FilesHandled > 0;
    return createdLists ? runs.Started() + u'\n' + runs.Created() : runs.Started();
}

} // namespace tunedex
