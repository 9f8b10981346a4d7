#include "climate/planes/importvorschau.h"

#include <algorithm>
#include <initializer_list>
#include <vector>

namespace velmaris {
namespace {

constexpr std::size_t zeichen_der_zelle = 40;
constexpr std::string_view hinter_dem_ende = "xxxxxxxxxx";

}  // namespace

Importvorschau::Importvorschau() {
    for (std::size_t j = 0; j < reihen; ++j)
        Datenreihe.at(j).gewaehlt = [this, j] { Datenreihe_Click(j); };
}

std::array<std::array<Anzeige, Importvorschau::reihen>, Importvorschau::reihen> Importvorschau::zellen() {
    return {{reihe<Anzeige>("Zelle1_"), reihe<Anzeige>("Zelle2_"), reihe<Anzeige>("Zelle3_"),
             reihe<Anzeige>("Zelle4_"), reihe<Anzeige>("Zelle5_"), reihe<Anzeige>("Zelle6_")}};
}

void Importvorschau::beschriften(const std::string& sprache) {
    std::vector<std::string> groessen;
    for (const Zweisprachig& groesse :
         std::initializer_list<Zweisprachig>{{"- unbenutzt -", "- not used -"},
                                             {"Außenlufttemperatur", "Outdoor air temperature"},
                                             {"Gesamtstrahlung", "Total radiation"},
                                             {"Direktstrahlung", "Direct radiation"},
                                             {"Diffusstrahlung", "Diffuse radiation"}})
        groessen.push_back(groesse.in(sprache));
    for (Auswahlliste& liste : Datenreihe)
        liste.fuelle(groessen);
}

void Importvorschau::fuellen(const Importquelle& quelle, Trennung trennung, int kopfzeilen) {
    if (Vorschau_aktiv_) return;
    Vorschau_aktiv_ = true;
    const Spaltenteiler teiler(trennung, quelle.zeile(kopfzeilen + 1));
    Spaltenzahl = teiler.spaltenzahl();
    const int sichtbar = static_cast<int>(reihen);
    HScroll1.bereich(1, std::max(1, Spaltenzahl - sichtbar + 1));
    HScroll1.aktiviere(Spaltenzahl > sichtbar);
    VScroll1.bereich(1, std::max(1, quelle.zeilenzahl() - kopfzeilen - sichtbar + 1));
    spalten_zeigen(HScroll1.position());
    for (std::size_t i = 0; i < reihen; ++i) {
        const int zeile = kopfzeilen + VScroll1.position() + static_cast<int>(i);
        Zeilenzaehler.at(i).schreibe(std::to_string(zeile));
        zeile_zeigen(i, zeile <= quelle.zeilenzahl() ? quelle.zeile(zeile) : hinter_dem_ende, teiler);
    }
    Vorschau_aktiv_ = false;
}

void Importvorschau::leeren() {
    Vorschau_aktiv_ = true;
    Spaltenbelegung = {};
    Spaltenzahl = 0;
    for (Scrollfeld* feld : {&HScroll1, &VScroll1})
        feld->bereich(1, 1);
    HScroll1.aktiviere(false);
    spalten_zeigen(1);
    for (std::size_t i = 0; i < reihen; ++i) {
        Zeilenzaehler.at(i).schreibe({});
        for (Anzeige& zelle : Zelle.at(i))
            zelle.schreibe({});
    }
    Vorschau_aktiv_ = false;
}

void Importvorschau::bis_zur_ersten_benutzten_rollen() {
    int spalte = 1;
    while (spalte < importspalten && Spaltenbelegung(spalte) == belegung::unbenutzt)
        ++spalte;
    if (Spaltenbelegung(spalte) != belegung::unbenutzt) HScroll1.bewege(spalte);
}

void Importvorschau::Datenreihe_Click(std::size_t j) {
    if (Vorschau_aktiv_) return;
    const int spalte = HScroll1.position() + static_cast<int>(j);
    Spaltenbelegung(spalte) = static_cast<std::int16_t>(Datenreihe.at(j).index());
}

void Importvorschau::spalten_zeigen(int erste) {
    for (std::size_t j = 0; j < reihen; ++j) {
        const int spalte = erste + static_cast<int>(j);
        Spalte.at(j).schreibe(std::to_string(spalte));
        Datenreihe.at(j).setze(Spaltenbelegung(spalte));
    }
}

void Importvorschau::zeile_zeigen(std::size_t i, std::string_view zeile, const Spaltenteiler& teiler) {
    for (std::size_t j = 0; j < reihen; ++j) {
        const auto stelle = teiler.stelle(zeile, HScroll1.position() + static_cast<int>(j));
        Zelle.at(i).at(j).schreibe(quelltext(stelle.value_or(""), zeichen_der_zelle));
    }
}

}  // namespace velmaris
