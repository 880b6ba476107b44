// A group of option buttons for a setting that holds the number of the selected one.
#pragma once

#include <QButtonGroup>

#include <cstdint>

namespace tunedex {

class OptionGroup : public QButtonGroup {
    Q_OBJECT

  public:
    explicit OptionGroup(QObject* parent);

    // Selects the button with that number; no button if there is none.
    void Select(std::int16_t number);
    // Stores the selected button's number. Leaves the setting unchanged if no button is selected.
    void Store(std::int16_t& setting) const;

  private:
    void LetTabStopAt(const QAbstractButton* stop);
};

} // namespace tunedex
