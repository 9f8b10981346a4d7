#include "planes/scrolltabelle.h"

#include "toolkit/fehler.h"
#include "toolkit/wort.h"
#include "toolkit/zahlen.h"

#include <algorithm>
#include <array>
#include <cassert>

namespace velmaris {
namespace {

constexpr std::array<Scrollzeile, 46> zeilen{{
    {"l_sb", 20, 500, 10, 20, &Projekt::l, 10, 1, 1, "m"},
    {"b_sb", 20, 500, 10, 20, &Projekt::b, 10, 1, 1, "m"},
    {"h_sb", -500, -20, 2, -20, &Projekt::h, -10, 1, 1, "m"},
    {"hd_sb", -50, 0, 2, -10, &Projekt::hd, -10, 1, 1, "m"},
    {"ag_sb", -20, -1, 1, -2, &Projekt::ag, -1, 0, 1, ""},
    {"orient_sb", -45, 45, 5, 1, &Projekt::orient, -1, 0, 1, "°"},
    {"kwn_sb", 1, 150, 10, 20, &Projekt::kwn, 100, 2, 1, "W/(m² K)"},
    {"kws_sb", 1, 150, 10, 20, &Projekt::kws, 100, 2, 1, "W/(m² K)"},
    {"kwo_sb", 1, 150, 10, 20, &Projekt::kwo, 100, 2, 1, "W/(m² K)"},
    {"kww_sb", 1, 150, 10, 20, &Projekt::kww, 100, 2, 1, "W/(m² K)"},
    {"kd_sb", 0, 150, 10, 20, &Projekt::kd, 100, 2, 1, "W/(m² K)"},
    {"kk_sb", 0, 150, 10, 20, &Projekt::kk, 100, 2, 1, "W/(m² K)"},
    {"ft_sb", 0, 500, 10, 20, &Projekt::ft, 10, 1, 1, "m²"},
    {"kt_sb", 0, 200, 10, 15, &Projekt::kt, 10, 1, 1, "W/(m² K)"},
    {"absfaktor_sb", 0, 100, 10, 50, &Projekt::absfaktor, 100, 2, 1, ""},
    {"fn_sb", 0, 100, 5, 5, &Projekt::fn, 1, 0, 1, "%"},
    {"gfn_sb", 0, 100, 5, 20, &Projekt::gfn, 100, 2, 1, ""},
    {"kfgn_sb", 0, 600, 5, 20, &Projekt::kfgn, 100, 2, 1, "W/(m² K)"},
    {"kfrn_sb", 0, 600, 5, 20, &Projekt::kfrn, 100, 2, 1, "W/(m² K)"},
    {"ran_sb", 0, 100, 5, 20, &Projekt::ran, 100, 0, 100, "%"},
    {"verschn_sb", 0, 100, 5, 20, &Projekt::verschn, 100, 0, 100, "%"},
    {"fs_sb", 0, 100, 5, 5, &Projekt::fs, 1, 0, 1, "%"},
    {"gfs_sb", 0, 100, 5, 20, &Projekt::gfs, 100, 2, 1, ""},
    {"kfgs_sb", 0, 600, 5, 20, &Projekt::kfgs, 100, 2, 1, "W/(m² K)"},
    {"kfrs_sb", 0, 600, 5, 20, &Projekt::kfrs, 100, 2, 1, "W/(m² K)"},
    {"ras_sb", 0, 100, 5, 20, &Projekt::ras, 100, 0, 100, "%"},
    {"verschs_sb", 0, 100, 5, 20, &Projekt::verschs, 100, 0, 100, "%"},
    {"fo_sb", 0, 100, 5, 5, &Projekt::fo, 1, 0, 1, "%"},
    {"gfo_sb", 0, 100, 5, 20, &Projekt::gfo, 100, 2, 1, ""},
    {"kfgo_sb", 0, 600, 5, 20, &Projekt::kfgo, 100, 2, 1, "W/(m² K)"},
    {"kfro_sb", 0, 600, 5, 20, &Projekt::kfro, 100, 2, 1, "W/(m² K)"},
    {"rao_sb", 0, 100, 5, 20, &Projekt::rao, 100, 0, 100, "%"},
    {"verscho_sb", 0, 100, 5, 20, &Projekt::verscho, 100, 0, 100, "%"},
    {"fw_sb", 0, 100, 5, 5, &Projekt::fw, 1, 0, 1, "%"},
    {"gfw_sb", 0, 100, 5, 20, &Projekt::gfw, 100, 2, 1, ""},
    {"kfgw_sb", 0, 600, 5, 20, &Projekt::kfgw, 100, 2, 1, "W/(m² K)"},
    {"kfrw_sb", 0, 600, 5, 20, &Projekt::kfrw, 100, 2, 1, "W/(m² K)"},
    {"raw_sb", 0, 100, 5, 20, &Projekt::raw, 100, 0, 100, "%"},
    {"verschw_sb", 0, 100, 5, 20, &Projekt::verschw, 100, 0, 100, "%"},
    {"Troom_sb", -100, 400, 20, 200, &Projekt::Troom, 10, 1, 1, "°C"},
    {"Tueber_sb", 100, 400, 10, 100, &Projekt::Tueber, 10, 1, 1, "°C"},
    {"intg_sb", 0, 800, 10, 50, &Projekt::intg, 2, 1, 1, "kWh/(m² a)"},
    {"infiltration_sb", 0, 1000, 20, 60, &Projekt::infiltration, 100, 2, 1, "1/h"},
    {"lw_sb", 0, 1000, 20, 60, &Projekt::lw, 100, 2, 1, "1/h"},
    {"WRG_Sb", 0, 100, 5, 1, &Projekt::WRG, 100, 0, 100, "%"},
    {"Klimaeffizienz_sb", 5, 80, 10, 25, &Projekt::Klimaeffizienz, 10, 1, 1, "kWh/kWh"},
}};

const Scrollzeile& zeile_suchen(std::string_view name) {
    const Scrollzeile* const treffer = scrollzeile(name);
    assert(treffer != nullptr);
    return *treffer;
}

}  // namespace

double Scrollzeile::gezeigt(int position) const {
    return position / teiler * anzeigefaktor;
}

std::string Scrollzeile::zahl(int position) const {
    return muster(gezeigt(position), stellen);
}

std::string Scrollzeile::bereich(std::string_view sprache) const {
    const bool aufwaerts = teiler > 0;
    return zahl(aufwaerts ? minimum : maximum) + std::string(Wort{" bis ", " to "}.in(sprache)) +
           zahl(aufwaerts ? maximum : minimum);
}

std::string Scrollzeile::zahl_mit_einheit(int position) const {
    return mit_einheit(zahl(position), einheit);
}

std::string Scrollzeile::bereich_mit_einheit(std::string_view sprache) const {
    return mit_einheit(bereich(sprache), einheit);
}

std::span<const Scrollzeile> scrollzeilen() {
    return zeilen;
}

const Scrollzeile* scrollzeile(std::string_view name) {
    const auto* const treffer = std::find_if(zeilen.begin(), zeilen.end(),
                                             [name](const Scrollzeile& zeile) { return zeile.name == name; });
    return treffer == zeilen.end() ? nullptr : treffer;
}

Eingabefeld::Eingabefeld(std::string_view feldname)
    : Scrollfeld(std::string(feldname), zeile_suchen(feldname).minimum, zeile_suchen(feldname).maximum,
                 zeile_suchen(feldname).klein, zeile_suchen(feldname).gross),
      zeile_(zeile_suchen(feldname)) {}

double Eingabefeld::wert() const {
    // Adding zero turns the negative zero of a negative divisor into a plain one.
    return f32(position() / zeile_.teiler + 0.0);
}

void Eingabefeld::uebernehmen(Projekt& p) const {
    if (const auto* gleitzahl = std::get_if<float Projekt::*>(&zeile_.ziel)) {
        p.*(*gleitzahl) = f32(wert());
    } else if (const auto* ganzzahl = std::get_if<std::int16_t Projekt::*>(&zeile_.ziel)) {
        p.*(*ganzzahl) = i16(wert(), name);
    }
}

double Eingabefeld::gespeichert(const Projekt& p) const {
    if (const auto* gleitzahl = std::get_if<float Projekt::*>(&zeile_.ziel)) return p.*(*gleitzahl);
    if (const auto* ganzzahl = std::get_if<std::int16_t Projekt::*>(&zeile_.ziel)) return p.*(*ganzzahl);
    return 0;
}

int Eingabefeld::stellung(double wert) const {
    constexpr double schranke = 1e9;
    return static_cast<int>(std::clamp(runden(wert * zeile_.teiler), -schranke, schranke));
}

void Eingabefeld::stellen(const Projekt& p) {
    const int ziel = stellung(gespeichert(p));
    if (ziel < minimum() || ziel > maximum()) ausserhalb(gespeichert(p));
    setze(ziel);
}

void Eingabefeld::ausserhalb(double wert) const {
    const double anfang = minimum() / zeile_.teiler;
    const double ende = maximum() / zeile_.teiler;
    const std::string grenzen = muster(std::min(anfang, ende), zeile_.stellen) + " .. " +
                                muster(std::max(anfang, ende), zeile_.stellen);
    const std::string blank = wert < 0 ? " " : "";  // other numbers have their own
    const std::string zahlen = blank + zahltext(wert) + " (" + grenzen + ")";
    throw Laufzeitfehler({"Wert außerhalb des Bereichs:" + zahlen, "value out of range:" + zahlen},
                         name.substr(0, name.size() - 3));
}

std::string Eingabefeld::anzeigetext(const Projekt& p) const {
    return muster(gespeichert(p) * zeile_.anzeigefaktor, zeile_.stellen);
}

}  // namespace velmaris
