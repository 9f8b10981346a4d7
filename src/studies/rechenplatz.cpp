#include "studies/rechenplatz.h"

#include "calc/rechenstufen.h"
#include "climate/strahlung.h"
#include "toolkit/csvleser.h"
#include "toolkit/fehler.h"
#include "toolkit/text.h"

#include <string_view>
#include <variant>

namespace velmaris {
namespace {

/// What no line of a project file can hold: nothing, and a character that ends an item or that the file's
/// code page lacks.
void zelle_pruefen(const std::string& zelle, const Feldzeile& feld) {
    const std::string name(feld.name);
    if (ohne_blanks(zelle).empty()) throw Laufzeitfehler({"die Zelle ist leer", "the cell is empty"}, name);
    if (zelle.find(',') != std::string::npos)
        throw Laufzeitfehler({"ein Komma kann in einer Projektdatei nicht stehen: \"" + zelle + "\"",
                              "a project file cannot hold a comma: \"" + zelle + "\""},
                             name);
    if (!in_windows1252(zelle))
        throw Laufzeitfehler({"ein Zeichen kann in einer Projektdatei nicht stehen: \"" + zelle + "\"",
                              "a project file cannot hold a character of \"" + zelle + "\""},
                             name);
}

}  // namespace

Rechenplatz::Rechenplatz(const Studiengrundlage& grundlage)
    : g_(grundlage),
      ebenen_(plattform_, grundlage.programmordner, grundlage.sprache, [] {}),
      klima_(brauchen_klima(grundlage.ergebnisse) ? std::make_unique<A_Klima>() : nullptr) {
    ebenen_.p.FormLoadGuard = -1;
    for (int zeile = 2; zeile <= letzte_projektzeile; ++zeile)
        felder_(zeile) = &feld_der_zeile(zeile);
}

void Rechenplatz::rechnen(const Planzeile& zeile) {
    if (zeile.fehler) throw Laufzeitfehler(*zeile.fehler);
    posten_sammeln(zeile);
    ebenen_.neues_haus();
    ebenen_.regler_anzeigen();
    einlesen();
    station_einsetzen();
    ebenen_.regler_anzeigen();
    Projekt& p = ebenen_.p;
    geometrie_stufe(p);
    bilanz_stufe(p);
    simulation_stufe(p);
    kennwerte_ = energie_stufe(p);
    if (klima_) klimatexte_zeigen();
}

void Rechenplatz::posten_sammeln(const Planzeile& zeile) {
    for (int i = 2; i <= letzte_projektzeile; ++i)
        posten_(i) = &g_.basis(i);
    for (std::size_t i = 0; i < g_.spalten.size(); ++i) {
        zelle_pruefen(zeile.zellen[i], *g_.spalten[i]);
        posten_(g_.spalten[i]->zeile) = &zeile.zellen[i];
    }
}

void Rechenplatz::einlesen() {
    const Feldsteller stellen = [this](std::string_view feld, int wert) {
        return ebenen_.regler_stellen(feld, wert);
    };
    for (int zeile = 2; zeile <= letzte_projektzeile; ++zeile) {
        const Feldzeile& feld = *felder_(zeile);
        try {
            posten_ablegen(ebenen_.p, feld, ohne_blanks(*posten_(zeile)), stellen);
        } catch (const Laufzeitfehler& fehler) {
            throw Laufzeitfehler(fehler.grund(), std::string(feld.name));
        }
    }
}

/// The fault of a station is told as one of the quantity that names it.
void Rechenplatz::station_einsetzen() {
    Projekt& p = ebenen_.p;
    const Stationsabbild* station = nullptr;
    try {
        station = &g_.stationen.station(p.Klimadatei);
    } catch (const Dateifehler& fehler) {
        throw Laufzeitfehler({fehler.text("d"), fehler.text("e")}, "Klimadatei");
    }
    if (station == station_ && p.orient == orient_) return;
    if (station != station_) station->einsetzen(p);
    station_ = nullptr;
    monatsstrahlung_berechnen(p);
    station_ = station;
    orient_ = p.orient;
}

void Rechenplatz::klimatexte_zeigen() {
    klima_->stationswerte_zeigen(ebenen_.p);
    klima_->kennwerte_zeigen(ebenen_.p);
    klima_->Ausfuellen(ebenen_.p);
}

}  // namespace velmaris
