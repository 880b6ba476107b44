#include "Html5ColumnRules.h"

#include "Html5Style.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>
#include <string_view>

namespace tunedex {

namespace {

constexpr std::string_view kTable = "#tracks"; // what follows it in a selector applies to the controls, too
constexpr double kDigitEm = 0.6;               // the width of a digit: 0.5 to 0.64 in common fonts
constexpr double kPixelsPerEm = 16;            // of a media query
constexpr double kMarginEm = 2;                // beside the table
constexpr int kCellSides = 2;                  // characters: beside the text of a printed cell
constexpr double kSidePixels = 8;              // of a cell, beside the padding of the settings

class ColumnRules {
  public:
    ColumnRules(const std::vector<Html5Column>& columns, const std::vector<bool>& shown,
                std::string_view table, const Settings& settings)
        : columns_(columns), shown_(shown), table_(table), settings_(settings) {}

    void Write(std::string& style) const {
        WriteWidths(style, shown_);
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            if (!shown_[i]) {
                style += CellsOf(i) + "{display:none}\n";
            }
            if (columns_[i].right) {
                style += CellsOf(i) + "{text-align:right}\n";
            }
        }
        WriteFolds(style);
        WritePrinted(style);
    }

  private:
    std::string CellsOf(std::size_t index) const {
        return std::string(table_) + " :is(td,thead th):nth-child(" + std::to_string(index + 1) + ")";
    }

    bool HasFlexible(const std::vector<bool>& unfolded) const {
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            if (unfolded[i] && columns_[i].flexible) {
                return true;
            }
        }
        return false;
    }

    static std::string CharactersAndPad(int characters) {
        return "calc(" + std::to_string(characters) + "ch + var(--pad))";
    }

    // A header is not broken, unless it is wider than its share of a small window.
    static std::string SharedWidth(const Html5Column& column, std::ptrdiff_t count) {
        return "minmax(min(" + CharactersAndPad(column.headerWidth) + "," + std::to_string(100 / count) +
               "%)," + std::to_string(column.width) + "fr)";
    }

    // The columns of the grid, and the width that the table should have at least.
    void WriteWidths(std::string& style, const std::vector<bool>& unfolded) const {
        // Without a flexible column, all of them share what is left.
        const bool flexible = HasFlexible(unfolded);
        const auto count = std::count(unfolded.begin(), unfolded.end(), true);
        int need = 0;
        style.append(table_) += "{--cols:";
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            if (unfolded[i]) {
                style += columns_[i].flexible || !flexible ? SharedWidth(columns_[i], count)
                                                           : CharactersAndPad(columns_[i].width);
                style += ' ';
                need += columns_[i].leastWidth;
            }
        }
        // Beside its padding, a cell has half an em, about a digit.
        const auto pixels = count * Html5CellPixels(settings_);
        style += ";min-width:min(100%," + std::to_string(need + count) + "ch + " + std::to_string(pixels) +
                 "px)}\n";
    }

    // The width of the window in which these columns have room.
    int NeededEm(const std::vector<bool>& unfolded) const {
        const double cellPixels = Html5CellPixels(settings_) + kSidePixels;
        const bool fonts = settings_.FontCSS || settings_.FontHTML;
        const double font = fonts ? Html5FontSize(settings_.Font[kCellFont].size) : 1;
        double em = kMarginEm;
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            em += unfolded[i] ? columns_[i].leastWidth * kDigitEm * font + cellPixels / kPixelsPerEm : 0;
        }
        return static_cast<int>(std::ceil(em));
    }

    std::size_t LeastImportant(const std::vector<bool>& unfolded) const {
        std::size_t least = columns_.size();
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            if (unfolded[i] &&
                (least == columns_.size() || columns_[i].importance < columns_[least].importance)) {
                least = i;
            }
        }
        return least;
    }

    void WriteFolds(std::string& style) const {
        std::vector<bool> unfolded = shown_;
        for (auto count = std::count(shown_.begin(), shown_.end(), true); count > 1; --count) {
            const std::size_t folded = LeastImportant(unfolded);
            style += "@media screen and (max-width:" + std::to_string(NeededEm(unfolded)) + "em){\n";
            unfolded[folded] = false;
            WriteWidths(style, unfolded);
            style +=
                CellsOf(folded) + "{grid-column:1/-1;order:1;display:var(--folded,block);text-align:left}\n";
            style.append(table_) += " td:nth-child(" + std::to_string(folded + 1) +
                                    ")::before{content:" + CssString(columns_[folded].header + ": ") + "}\n";
            style.append(".bar").append(table_.substr(kTable.size())) +=
                " button.folds{display:inline-block}\n}\n";
        }
    }

    // Tables on paper are drawn as such, so that their header is repeated.
    void WritePrinted(std::string& style) const {
        int total = 0;
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            total += shown_[i] ? columns_[i].width + kCellSides : 0;
        }
        style += "@media print{\n";
        for (std::size_t i = 0; i < columns_.size() && total > 0; ++i) {
            if (shown_[i]) {
                style.append(table_) +=
                    " thead th:nth-child(" + std::to_string(i + 1) +
                    "){width:" + std::to_string(100 * (columns_[i].width + kCellSides) / total) + "%}\n";
            }
        }
        style += "}\n";
    }

    const std::vector<Html5Column>& columns_;
    const std::vector<bool>& shown_;
    std::string_view table_;
    const Settings& settings_;
};

} // namespace

void WriteHtml5ColumnRules(std::string& style, const std::vector<Html5Column>& columns,
                           const std::vector<bool>& shown, std::string_view table, const Settings& settings) {
    ColumnRules(columns, shown, table, settings).Write(style);
}

} // namespace tunedex
