#include "tools/help/katalogtabellen.h"

#include "energy/Heizsysteme.h"
#include "energy/katalog_werte.h"
#include "planes/fensterseite.h"
#include "project/feldtabelle.h"
#include "toolkit/auszeichnung.h"
#include "toolkit/fehler.h"
#include "toolkit/wort.h"
#include "toolkit/zahlen.h"
#include "tools/help/tabelle.h"

#include <vector>

namespace velmaris::hilfe {
namespace {

constexpr float nutzflaeche_der_tabelle = 150;

std::vector<std::string> kopf(const std::vector<Zweisprachig>& worte, std::string_view sprache) {
    std::vector<std::string> zellen;
    zellen.reserve(worte.size());
    for (const Zweisprachig& wort : worte)
        zellen.push_back(wort.in(sprache));
    return zellen;
}

/// The carriers on offer with their numbers and primary energy factors, one below the other.
std::string traeger(int system, const Heizsystemzeile& zeile) {
    std::string text;
    for (int i = 1; i <= energietraeger_je_zeile; ++i) {
        const std::string& name = zeile.Energietraeger(i);
        if (name.empty()) continue;
        const float f_p = katalog_werte(system, 1, i, nutzflaeche_der_tabelle).f_p;
        text += (text.empty() ? "" : "<br>") + std::to_string(i) + " " + maskiert(name) + " (" +
                muster(f_p, 1) + ")";
    }
    return text;
}

constexpr int erste_wertzeile = 2;
constexpr int letzte_wertzeile = 69;
constexpr int paare_je_zeile = 4;
constexpr int zeilen_der_tabelle = (letzte_wertzeile - erste_wertzeile + paare_je_zeile) / paare_je_zeile;

}  // namespace

std::string fenstertypentabelle(std::string_view sprache) {
    Tabelle tabelle(kopf({{"Nr.", "No."},
                          {"Fenstertyp", "Window type"},
                          {"U-Wert Glas<br>in W/(m² K)", "U-value glazing<br>in W/(m² K)"},
                          {"g-Wert", "g-value"},
                          {"U-Wert Rahmen<br>in W/(m² K)", "U-value frame<br>in W/(m² K)"}},
                         sprache));
    int nummer = 0;
    for (const Fenstertyp& typ : fenstertypen()) {
        tabelle.zeile({std::to_string(nummer++), maskiert(typ.name.in(sprache)), muster(typ.kfg, 1),
                       muster(typ.gf, 2), muster(typ.kfr, 1)});
    }
    return tabelle.text();
}

std::string heizsystemtabelle(std::string_view sprache) {
    Tabelle tabelle(kopf({{"Nr.", "No."},
                          {"Heizungssystem", "Heating system"},
                          {"Energieträger (Primärenergiefaktor)", "Source of energy (primary energy factor)"},
                          {"Aufwandszahl", "Expense number"}},
                         sprache));
    const Heizsystemkatalog katalog = katalog_laden(sprache);
    for (int system = 1; system <= heizsysteme; ++system) {
        tabelle.zeile({std::to_string(system), maskiert(katalog(system).Bezeichnung),
                       traeger(system, katalog(system)),
                       muster(katalog_werte(system, 1, 1, nutzflaeche_der_tabelle).e_g, 2)});
    }
    return tabelle.text();
}

std::string projektdateitabelle(std::string_view sprache) {
    std::vector<Zweisprachig> worte;
    for (int paar = 0; paar < paare_je_zeile; ++paar) {
        worte.push_back({"Zeile", "Line"});
        worte.push_back({"Größe", "Quantity"});
    }
    Tabelle tabelle(kopf(worte, sprache));
    for (int i = 0; i < zeilen_der_tabelle; ++i) {
        std::vector<std::string> zellen;
        for (int zeile = erste_wertzeile + i; zeile <= letzte_wertzeile; zeile += zeilen_der_tabelle) {
            zellen.push_back(std::to_string(zeile));
            zellen.push_back("<code>" + maskiert(feld_der_zeile(zeile).name) + "</code>");
        }
        tabelle.zeile(zellen);
    }
    return tabelle.text();
}

}  // namespace velmaris::hilfe
