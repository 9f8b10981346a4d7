#pragma once

#include "documents/umbruch.h"
#include "project/c_glob.h"
#include "toolkit/wort.h"

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace velmaris {

/// Tab settings of the blocks of rows.
namespace tabstopps {
inline constexpr std::string_view werte = R"(\pard\tx4300 )";  ///< labels with their values
inline constexpr std::string_view zwei = R"(\pard\tx1800\tx5100)";
inline constexpr std::string_view drei = R"(\pard\tx1800\tx4000\tx6200)";
inline constexpr std::string_view vier = R"(\pard\tx1800\tx3450\tx5100\tx6750)";
inline constexpr std::string_view sechs = R"(\pard\tx1800\tx2900\tx4000\tx5100\tx6200\tx7300)";
}  // namespace tabstopps

/// A text as Rich Text shows it literally.
[[nodiscard]] std::string rtf_maskieren(std::string_view text);

/// Width of a text in the report's font, in pixels of 96 to the inch.
[[nodiscard]] double reportbreite(std::string_view text);

/// The Rich Text source of a report under construction, with the frame, rows and tables that all its pages
/// share. Text in UTF-8.
class Reporttext {
  public:
    using Zellen = std::vector<std::string>;

    /// `sprache` picks the language of all words given: English for "e", else German.
    explicit Reporttext(std::string_view sprache);

    [[nodiscard]] std::string_view sprache() const { return sprache_; }

    /// The finished document.
    [[nodiscard]] std::string abschliessen();

    /// One row; the tab settings of a block that has just begun go in front of its first row.
    void zeile_anhaengen(std::string_view zeile);

    void seitenumbruch();
    void seitenkopf(const Wort& titel);

    /// Head of a section; all but the first of a page stand off by an empty row.
    void abschnitt(const Wort& name);

    /// Begins a block of rows with these tab settings.
    void block(std::string_view tabstopps);

    /// A label with its value and unit, and one that is indented.
    void reihe(const Wort& name, std::string_view wert, std::string_view einheit = {});
    void unterreihe(const Wort& name, std::string_view wert, std::string_view einheit = {});

    /// A label with a text that is broken into the column of the values.
    void textreihe(const Wort& name, std::string_view wert);
    void textunterreihe(const Wort& name, std::string_view wert);

    /// A label alone, over indented ones.
    void gruppe(const Wort& name);

    /// A block of two to six columns: heads and a row for each month. The rows of the year follow.
    void monatstabelle(const Projekt& p, std::string_view tabstopps, std::span<const Wort> kopf,
                       const std::function<Zellen(int)>& monat);

    /// The rule that some tables have between the months and the year.
    void tabellenlinie();

    /// A row under the months; the first tab belongs to the name.
    void jahreszeile(const Wort& name, const Zellen& zellen);

  private:
    void wertreihe(std::string_view abstand, const Wort& name, std::string_view wert);
    void textreihe(std::string_view abstand, const Wort& name, std::string_view wert);

    std::string_view sprache_;
    std::string report_text_;
    std::string_view blockanfang_;
    bool erster_abschnitt_ = true;
};

}  // namespace velmaris
