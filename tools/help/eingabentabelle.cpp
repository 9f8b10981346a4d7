#include "tools/help/eingabentabelle.h"

#include "planes/neues_projekt.h"
#include "toolkit/wort.h"
#include "toolkit/zahlen.h"
#include "tools/help/groessen.h"
#include "tools/help/tabelle.h"

#include <algorithm>
#include <cmath>
#include <memory>

namespace velmaris::hilfe {
namespace {

std::string zahl(double wert, int stellen) {
    const std::string text = muster(wert, stellen);
    return text.starts_with('-') ? "&minus;" + text.substr(1) : text;
}

/// A number of positions as the value that the plane shows.
double gezeigt(const Scrollzeile& z, int positionen) {
    return positionen / z.teiler * z.anzeigefaktor;
}

std::string bereich(const Scrollzeile& z, std::string_view sprache) {
    const double ende = gezeigt(z, z.minimum);
    const double anderes_ende = gezeigt(z, z.maximum);
    return zahl(std::min(ende, anderes_ende), z.stellen) + Zweisprachig{" bis ", " to "}.in(sprache) +
           zahl(std::max(ende, anderes_ende), z.stellen);
}

std::string schritt(const Scrollzeile& z, int positionen) {
    return zahl(std::abs(gezeigt(z, positionen)), z.stellen) + (positionen < 0 ? " *" : "");
}

std::string neuer_wert(std::string_view feld, const Projekt& neu) {
    const Scrollzeile& z = scrollzeile(feld);
    double wert = 0;
    if (const auto* gleitzahl = std::get_if<float Projekt::*>(&z.ziel)) wert = neu.*(*gleitzahl);
    if (const auto* ganzzahl = std::get_if<std::int16_t Projekt::*>(&z.ziel)) wert = neu.*(*ganzzahl);
    return zahl(wert * z.anzeigefaktor, z.stellen);
}

/// The value of a new project; where the facades differ, all of them in their order.
std::string neue_werte(const Groesse& groesse, const Projekt& neu) {
    const std::string erster = neuer_wert(groesse.felder.front(), neu);
    std::string alle;
    bool verschieden = false;
    for (const std::string_view feld : groesse.felder) {
        const std::string wert = neuer_wert(feld, neu);
        verschieden = verschieden || wert != erster;
        alle += (alle.empty() ? "" : " / ") + wert;
    }
    return verschieden ? alle : erster;
}

/// A scroll field is named like its quantity and three characters more.
std::string namen(const Groesse& groesse) {
    std::string text;
    for (const std::string_view feld : groesse.felder) {
        text += text.empty() ? "<code>" : ", <code>";
        text.append(feld.substr(0, feld.size() - 3)).append("</code>");
    }
    return text;
}

std::vector<std::string> kopf(bool mit_namen, std::string_view sprache) {
    std::vector<std::string> zellen;
    for (const Zweisprachig& wort : {Zweisprachig{"Eingabe", "Input"},
                                     {"Bereich", "Range"},
                                     {"kleiner Schritt", "Small step"},
                                     {"großer Schritt", "Large step"},
                                     {"Einheit", "Unit"},
                                     {"neues Projekt", "New project"},
                                     {"Name", "Name"}}) {
        zellen.push_back(wort.in(sprache));
    }
    if (!mit_namen) zellen.pop_back();
    return zellen;
}

std::vector<std::string> zellen(const Groesse& groesse, const Projekt& neu, bool mit_namen,
                                std::string_view sprache) {
    const Scrollzeile& z = zeile(groesse);
    std::vector<std::string> zellen{html(groesse.name.in(sprache)),
                                    bereich(z, sprache),
                                    schritt(z, z.klein),
                                    schritt(z, z.gross),
                                    html(z.einheit),
                                    neue_werte(groesse, neu)};
    if (z.einheit.empty()) zellen[4] = "&ndash;";
    if (mit_namen) zellen.push_back(namen(groesse));
    return zellen;
}

/// What the asterisk behind a large step means.
std::string fussnote(std::string_view sprache) {
    const Zweisprachig text{"* Der große Schritt läuft gegen den Klick.",
                            "* The large step moves against the click."};
    return "<p>" + text.in(sprache) + "</p>\n";
}

}  // namespace

std::string eingabentabelle(std::string_view ebene, bool mit_namen, std::string_view sprache) {
    const auto neu = std::make_unique<Projekt>();
    neue_eingaben(*neu);
    Tabelle tabelle(kopf(mit_namen, sprache));
    bool leer = true;
    bool gegenlauf = false;
    for (const Groesse& groesse : groessen()) {
        if (groesse.ebene != ebene) continue;
        tabelle.zeile(zellen(groesse, *neu, mit_namen, sprache));
        leer = false;
        gegenlauf = gegenlauf || zeile(groesse).gross < 0;
    }
    if (leer) throw Laufzeitfehler({"keine Scrollfelder", "no scroll fields"}, std::string(ebene));
    return tabelle.text() + (gegenlauf ? fussnote(sprache) : "");
}

}  // namespace velmaris::hilfe
