#pragma once

#include "climate/import/importkopf.h"
#include "climate/import/importquelle.h"
#include "climate/import/importspalten.h"
#include "toolkit/felder.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace velmaris {

/// The preview grid of the import: six rows and six columns of a source as its columns are told apart, over
/// each column the list that tells its quantity. The scroll fields tell where it begins; who moves them fills
/// it anew.
struct Importvorschau {
    Importvorschau();
    Importvorschau(const Importvorschau&) = delete;
    Importvorschau& operator=(const Importvorschau&) = delete;

    static constexpr std::size_t reihen = 6;  ///< rows and columns

    std::array<Anzeige, reihen> Spalte = reihe<Anzeige>("Spalte");                    ///< column numbers
    std::array<Auswahlliste, reihen> Datenreihe = reihe<Auswahlliste>("Datenreihe");  ///< their quantities
    std::array<Anzeige, reihen> Zeilenzaehler = reihe<Anzeige>("Zeilenzaehler");      ///< line numbers
    std::array<std::array<Anzeige, reihen>, reihen> Zelle = zellen();                 ///< by row and column
    Scrollfeld HScroll1{"HScroll1", 1, 1, 1, reihen};                                 ///< first column shown
    Scrollfeld VScroll1{"VScroll1", 1, 1, 1, reihen};  ///< first row shown, from 1 behind the head lines

    Spaltenbelegungen Spaltenbelegung;  ///< quantities of the source's columns
    std::int16_t Spaltenzahl = 0;       ///< columns of the first data line

    /// Fills the lists with the quantities.
    void beschriften(const std::string& sprache);

    /// Shows a source from the positions of the scroll fields on, and fits their ranges to it. Lines beyond
    /// its end are shown as "xxxxxxxxxx".
    void fuellen(const Importquelle& quelle, Trennung trennung, int kopfzeilen);

    /// The grid without a source and quantities, at its beginning.
    void leeren();

    /// Lets the grid begin at the first column that has a quantity, if one has.
    void bis_zur_ersten_benutzten_rollen();

  private:
    template <class Feldart, std::size_t... i>
    static std::array<Feldart, reihen> reihe(const std::string& name, std::index_sequence<i...>) {
        return {{Feldart(name + std::to_string(i + 1))...}};
    }
    template <class Feldart>
    static std::array<Feldart, reihen> reihe(const std::string& name) {
        return reihe<Feldart>(name, std::make_index_sequence<reihen>());
    }
    static std::array<std::array<Anzeige, reihen>, reihen> zellen();

    void Datenreihe_Click(std::size_t j);
    void spalten_zeigen(int erste);
    void zeile_zeigen(std::size_t i, std::string_view zeile, const Spaltenteiler& teiler);

    bool Vorschau_aktiv_ = false;
};

}  // namespace velmaris
