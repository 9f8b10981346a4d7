#pragma once

#include "planes/scrolltabelle.h"
#include "project/wandseite.h"
#include "toolkit/felder.h"
#include "toolkit/wort.h"

#include <span>
#include <string>
#include <string_view>

namespace velmaris {

/// A row of the window type table.
struct Fenstertyp {
    Wort name;
    double kfg;  ///< U value of the glazing, W/(m2 K)
    double gf;   ///< g value
    double kfr;  ///< U value of the frame, W/(m2 K)
};

/// The window types that set values, rows 0 to 6.
[[nodiscard]] std::span<const Fenstertyp> fenstertypen();

/// Row 7 of the type lists: the values were moved by hand.
inline constexpr int typ_sonstiges = 7;

/// A scroll field with its display.
struct Fensterschieber {
    Fensterschieber(std::string_view groesse, Wandseite fassade)
        : sb(std::string(groesse) + buchstabe(fassade) + "_sb"),
          anz(std::string(groesse) + buchstabe(fassade) + "_anz") {}

    Eingabefeld sb;
    Anzeige anz;
};

/// The controls of one facade. Their names carry the facade's letter: `fn_sb`, `fn_anz`, `fenstern_typ` ...
struct Fensterseite {
    explicit Fensterseite(Wandseite seite);

    Wandseite fassade;
    Fensterschieber f;       ///< window share
    Fensterschieber gf;      ///< g value
    Fensterschieber kfg;     ///< U value of the glazing
    Fensterschieber kfr;     ///< U value of the frame
    Fensterschieber ra;      ///< frame share
    Fensterschieber versch;  ///< shading
    Auswahlliste typ;        ///< `fenstern_typ` ...
    Anzeige flaeche_anz;     ///< `f_nf_anz` ...: window area
    Feld rahmen;             ///< the panel `Frame_Nord` ...

    std::int16_t Projekt::*typ_feld;  ///< `fenstern_typ` ... of the record
    float Projekt::*gf_feld;          ///< `gfn` ...
    float Projekt::*kfg_feld;
    float Projekt::*kfr_feld;
    float Projekt::*kf_feld;  ///< `kfn` ...: U value of the whole window
    float Projekt::*ra_feld;
};

}  // namespace velmaris
