#include "planes/fensterseite.h"

#include <array>

namespace velmaris {
namespace {

constexpr std::array<Fenstertyp, 7> typen{{
    {{"Einfachverglasung", "single glazing"}, 5.8, 0.92, 3.5},
    {{"Doppelverglasung", "double glazing"}, 3.0, 0.80, 2.8},
    {{"Wärmeschutz-Doppelverglasung (U = 1,9 W/(m² K))", "heat protection double glazing (U = 1.9 W/(m² K))"},
     1.9,
     0.70,
     2.0},
    {{"Wärmeschutz-Doppelverglasung (U = 1,4 W/(m² K))", "heat protection double glazing (U = 1.4 W/(m² K))"},
     1.4,
     0.58,
     1.5},
    {{"Wärmeschutz-Doppelverglasung (U = 1,0 W/(m² K))", "heat protection double glazing (U = 1.0 W/(m² K))"},
     1.0,
     0.52,
     1.5},
    {{"Wärmeschutz-Dreifachverglasung (U = 0,7 W/(m² K))",
      "heat protection triple glazing (U = 0.7 W/(m² K))"},
     0.7,
     0.51,
     0.7},
    {{"Wärmeschutz-Dreifachverglasung (U = 0,5 W/(m² K))",
      "heat protection triple glazing (U = 0.5 W/(m² K))"},
     0.5,
     0.51,
     0.7},
}};

/// What differs between the facades beside the letter.
struct Seitenzeile {
    std::string_view rahmen;
    std::int16_t Projekt::*typ;
    float Projekt::*gf;
    float Projekt::*kfg;
    float Projekt::*kfr;
    float Projekt::*kf;
    float Projekt::*ra;
};

constexpr JeWandseite<Seitenzeile> seitenzeilen{{{
    {"Frame_Nord", &Projekt::fenstern_typ, &Projekt::gfn, &Projekt::kfgn, &Projekt::kfrn, &Projekt::kfn,
     &Projekt::ran},
    {"Frame_Sued", &Projekt::fensters_typ, &Projekt::gfs, &Projekt::kfgs, &Projekt::kfrs, &Projekt::kfs,
     &Projekt::ras},
    {"Frame_Ost", &Projekt::fenstero_typ, &Projekt::gfo, &Projekt::kfgo, &Projekt::kfro, &Projekt::kfo,
     &Projekt::rao},
    {"Frame_West", &Projekt::fensterw_typ, &Projekt::gfw, &Projekt::kfgw, &Projekt::kfrw, &Projekt::kfw,
     &Projekt::raw},
}}};

const Seitenzeile& zeile(Wandseite fassade) {
    return seitenzeilen[fassade];
}

std::string name(std::string_view vorn, Wandseite fassade, std::string_view hinten) {
    return std::string(vorn) + buchstabe(fassade) + std::string(hinten);
}

}  // namespace

std::span<const Fenstertyp> fenstertypen() {
    return typen;
}

Fensterseite::Fensterseite(Wandseite seite)
    : fassade(seite),
      f("f", seite),
      gf("gf", seite),
      kfg("kfg", seite),
      kfr("kfr", seite),
      ra("ra", seite),
      versch("versch", seite),
      typ(name("fenster", seite, "_typ")),
      flaeche_anz(name("f_", seite, "f_anz")),
      rahmen(std::string(zeile(seite).rahmen)),
      typ_feld(zeile(seite).typ),
      gf_feld(zeile(seite).gf),
      kfg_feld(zeile(seite).kfg),
      kfr_feld(zeile(seite).kfr),
      kf_feld(zeile(seite).kf),
      ra_feld(zeile(seite).ra) {}

}  // namespace velmaris
