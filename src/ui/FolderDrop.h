// Accepts folders dropped onto a widget from a file manager.
#pragma once

#include <QObject>

#include <functional>
#include <string>
#include <vector>

class QMimeData;
class QWidget;

namespace tunedex {

// The existing folders among the dragged URLs, in order, as native paths. Names that are not UTF-8 keep their
// bytes.
std::vector<std::string> FoldersIn(const QMimeData& data);

class FolderDrop final : public QObject {
    Q_OBJECT

  public:
    using Receiver = std::function<void(const std::vector<std::string>& folders)>;

    // Owned by `target`. `receiver` is called with at least one folder.
    FolderDrop(QWidget& target, Receiver receiver);

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    Receiver receiver_;
};

} // namespace tunedex
