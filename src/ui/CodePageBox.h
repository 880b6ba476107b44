// A choice of the code page of old tags.
#pragma once

#include <QComboBox>

#include <string>

namespace tunedex {

class CodePageBox : public QComboBox {
    Q_OBJECT

  public:
    explicit CodePageBox(QWidget* parent = nullptr);

    // Selects the code page with that iconv name; empty: the default one. A name that the box does not offer
    // gets a row of its own.
    void Select(const std::string& name);

    // The iconv name of the selected code page, spelt as in the last Select(); empty for the default one
    // unless that named it.
    std::string Name() const;
};

} // namespace tunedex
