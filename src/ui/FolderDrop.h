// Takes folders that are dropped onto a widget from a file manager.
#pragma once

#include <QObject>

#include <functional>
#include <string>
#include <vector>

class QMimeData;
class QWidget;

namespace tunedex {

// The existing folders among what is dragged, in its order; native paths. Names that are no UTF-8 are kept.
std::vector<std::string> FoldersIn(const QMimeData& data);

class FolderDrop final : public QObject {
    Q_OBJECT

  public:
    using Receiver = std::function<void(const std::vector<std::string>& folders)>;

    // Lives as long as the target; the receiver is called with at least one folder.
    FolderDrop(QWidget& target, Receiver receiver);

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    Receiver receiver_;
};

} // namespace tunedex
