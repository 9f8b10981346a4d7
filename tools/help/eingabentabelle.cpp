#include "tools/help/eingabentabelle.h"

#include "planes/eingabehinweise.h"
#include "planes/neues_projekt.h"
#include "planes/scrolltabelle.h"
#include "toolkit/auszeichnung.h"
#include "toolkit/fehler.h"
#include "toolkit/zahlen.h"
#include "tools/help/tabelle.h"

#include <cctype>
#include <cmath>
#include <functional>
#include <memory>

namespace velmaris::hilfe {
namespace {

/// A sign in front of a number becomes a minus of its width; other strokes stay.
std::string mit_minus(std::string text) {
    for (std::size_t i = 0; (i = text.find('-', i)) != std::string::npos; ++i) {
        const bool vorzeichen = (i == 0 || text[i - 1] == ' ') && i + 1 < text.size() &&
                                std::isdigit(static_cast<unsigned char>(text[i + 1])) != 0;
        if (vorzeichen) text.replace(i, 1, "&minus;");
    }
    return text;
}

const Scrollzeile& zeile(const Eingabehinweis& eingabe) {
    return *scrollzeile(eingabe.felder.front());
}

std::string schritt(const Scrollzeile& z, int positionen) {
    return muster(std::abs(z.gezeigt(positionen)), z.stellen) + (positionen < 0 ? " *" : "");
}

std::string neuer_wert(std::string_view feld, const Projekt& neu) {
    const Scrollzeile& z = *scrollzeile(feld);
    double wert = 0;
    if (const auto* gleitzahl = std::get_if<float Projekt::*>(&z.ziel)) wert = neu.*(*gleitzahl);
    if (const auto* ganzzahl = std::get_if<std::int16_t Projekt::*>(&z.ziel)) wert = neu.*(*ganzzahl);
    return muster(wert * z.anzeigefaktor, z.stellen);
}

/// The value of a new project; where the facades differ, all of them in their order.
std::string neue_werte(const Eingabehinweis& eingabe, const Projekt& neu) {
    const std::string erster = neuer_wert(eingabe.felder.front(), neu);
    std::string alle;
    bool verschieden = false;
    for (const std::string_view feld : eingabe.felder) {
        const std::string wert = neuer_wert(feld, neu);
        verschieden = verschieden || wert != erster;
        alle += (alle.empty() ? "" : " / ") + wert;
    }
    return verschieden ? alle : erster;
}

/// A scroll field is named like its quantity and three characters more.
std::string namen(const Eingabehinweis& eingabe) {
    std::string text;
    for (const std::string_view feld : eingabe.felder) {
        text += text.empty() ? "<code>" : ", <code>";
        text.append(feld.substr(0, feld.size() - 3)).append("</code>");
    }
    return text;
}

std::string oder_strich(std::string_view text) {
    return text.empty() ? "&ndash;" : maskiert(text);
}

/// Runs a routine for each input of a plane that is a scroll field; a plane without any is a Laufzeitfehler.
void fuer_jedes_scrollfeld(std::string_view ebene, const std::function<void(const Eingabehinweis&)>& tu) {
    bool leer = true;
    for (const Eingabehinweis& eingabe : eingabehinweise()) {
        if (eingabe.ebene != ebene || scrollzeile(eingabe.felder.front()) == nullptr) continue;
        tu(eingabe);
        leer = false;
    }
    if (leer) throw Laufzeitfehler({"keine Scrollfelder", "no scroll fields"}, std::string(ebene));
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

std::vector<std::string> zellen(const Eingabehinweis& eingabe, const Projekt& neu, bool mit_namen,
                                std::string_view sprache) {
    const Scrollzeile& z = zeile(eingabe);
    std::vector<std::string> zellen{maskiert(eingabe.name.in(sprache)),
                                    mit_minus(z.bereich(sprache)),
                                    schritt(z, z.klein),
                                    schritt(z, z.gross),
                                    oder_strich(z.einheit),
                                    neue_werte(eingabe, neu)};
    if (mit_namen) zellen.push_back(namen(eingabe));
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
    bool gegenlauf = false;
    fuer_jedes_scrollfeld(ebene, [&](const Eingabehinweis& eingabe) {
        tabelle.zeile(zellen(eingabe, *neu, mit_namen, sprache));
        gegenlauf = gegenlauf || zeile(eingabe).gross < 0;
    });
    return tabelle.text() + (gegenlauf ? fussnote(sprache) : "");
}

std::string richtwerttabelle(std::string_view ebene, std::string_view sprache) {
    const auto wort = [sprache](const Wort& text) { return std::string(text.in(sprache)); };
    Tabelle tabelle({wort({"Eingabe", "Input"}), wort({"übliche Werte", "Common values"}),
                     wort({"Einheit", "Unit"}), wort({"Quelle", "Source"})});
    fuer_jedes_scrollfeld(ebene, [&](const Eingabehinweis& eingabe) {
        tabelle.zeile({maskiert(eingabe.name.in(sprache)),
                       mit_minus(maskiert(richtwerttext(eingabe, sprache))),
                       oder_strich(zeile(eingabe).einheit), oder_strich(eingabe.quelle.in(sprache))});
    });
    return tabelle.text();
}

std::string erklaerung(std::string_view ebene, std::string_view feld, std::string_view sprache) {
    const Eingabehinweis* eingabe = eingabehinweis(ebene, feld);
    if (eingabe == nullptr) throw Laufzeitfehler({"keine Eingabe", "no input"}, std::string(feld));
    return maskiert(eingabe->erklaerung.in(sprache));
}

}  // namespace velmaris::hilfe
