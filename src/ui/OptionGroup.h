// A set of option buttons of which at most one is selected; a setting holds its number.
#pragma once

#include <QButtonGroup>

#include <cstdint>

namespace tunedex {

class OptionGroup : public QButtonGroup {
    Q_OBJECT

  public:
    explicit OptionGroup(QObject* parent);

    // Selects the button of that number, or none when there is no such button.
    void Select(std::int16_t number);
    // Stores the selected button's number. Without a selected button the setting stays as it is.
    void Store(std::int16_t& setting) const;

  private:
    void LetTabStopAt(const QAbstractButton* stop);
};

} // namespace tunedex
