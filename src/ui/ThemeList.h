// The list of themes, made for browsing: arrow keys and the wheel select, Enter and a double click load.
#pragma once

#include <QListWidget>

namespace tunedex {

class ThemeList final : public QListWidget {
    Q_OBJECT

  public:
    explicit ThemeList(QWidget* parent = nullptr);

    // Replaces the names. Selects the first if there is one. Emits no signal.
    void SetNames(const QStringList& names);
    // Selects a name of the list; does nothing for another name. Emits no signal.
    void SelectName(const QString& name);
    // The selected name; empty if there is none.
    QString SelectedName() const;

    // As low as it may be: a scroll area gives it more where there is room.
    QSize sizeHint() const override { return {QListWidget::sizeHint().width(), minimumHeight()}; }

  signals:
    // The user has selected a theme or moved to the list in which one is selected.
    void Browsed();
    // Enter or a double click on a theme.
    void LoadRequested();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

  private:
    int wheelAngle_ = 0; // eighths of a degree that have not moved the selection yet
};

} // namespace tunedex
