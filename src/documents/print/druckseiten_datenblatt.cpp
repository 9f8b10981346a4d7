#include "calc/fassaden.h"
#include "climate/regionen.h"
#include "documents/fassadenwerte.h"
#include "documents/klimaregionen.h"
#include "documents/nachbarwaende.h"
#include "documents/print/druckseiten.h"
#include "documents/print/zeichnung_haus.h"
#include "toolkit/zahlen.h"

#include <algorithm>
#include <functional>

namespace velmaris {
namespace {

constexpr double seitenanfang = 50;
constexpr double zeilenhoehe = 4.5;

std::string mit_einheit(double wert, int stellen, std::string_view einheit) {
    return muster(wert, stellen).append(einheit);
}

std::string u_wert_text(double wert) {
    return mit_einheit(wert, 2, " W/(m² K)");
}

void geometrie(Formular& f, const Projekt& p, std::string_view sprache) {
    f.abschnitt({"Geometrie:", "Geometry:"});
    f.zeile({"Länge der Nord- und Südfassade", "Length of north and south facade"},
            mit_einheit(p.l, 1, " m"));
    f.zeile({"Länge der Ost- und Westfassade", "Length of west and east facade"}, mit_einheit(p.b, 1, " m"));
    f.zeile({"Höhe (ohne Dach)", "Height (without roof)"}, mit_einheit(p.h, 1, " m"));
    f.zeile({"Anzahl Geschosse", "Number of floors"}, muster(p.ag, 0));
    if (p.Check_Dachgeschoss == 1) {
        f.zeile({"Dachhöhe", "Height of roof"}, mit_einheit(p.hd, 1, " m"));
        if (p.hd > 0) {
            const Wort richtung =
                p.Option_Dachfirst == 1 ? Wort{"Nord-Süd", "north-south"} : Wort{"Ost-West", "east-west"};
            f.zeile({"Dachfirst in Richtung", "Direction of roof ridge"}, richtung.in(sprache));
        }
    }
    f.zeile({"Südabweichung (gegen Westen positiv)", "Deviation from south direction (west positive)"},
            mit_einheit(p.orient, 0, " °"));
    f.zeile({"Nutzfläche", "Useful area"}, mit_einheit(p.f_nutz, 1, " m²"));
    f.zeile({"Luftvolumen", "Air volume"}, mit_einheit(p.v_luft, 1, " m³"));
    f.zeile({"A/V - Verhältnis", "Surface-to-volume value"}, mit_einheit(p.AV, 2, " 1/m"));
}

void daemmung(Formular& f, const Dokumentquelle& quelle, std::string_view sprache) {
    const Projekt& p = quelle.p;
    f.abschnitt({"Dämmung:", "Insulation:"});
    f.zeile({"U-Wert der Nordwand", "U value of the north wall"}, u_wert_text(p.kwn));
    f.zeile({"U-Wert der Südwand", "U value of the south wall"}, u_wert_text(p.kws));
    f.zeile({"U-Wert der Ostwand", "U value of the east wall"}, u_wert_text(p.kwo));
    f.zeile({"U-Wert der Westwand", "U value of the west wall"}, u_wert_text(p.kww));
    if (p.Check_Dachgeschoss == 1) {
        f.zeile({"Dach gegen", "Roof towards"}, Wort{"Außenluft", "outside air"}.in(sprache));
        f.zeile({"U-Wert des Dachs", "U value of the roof"}, u_wert_text(p.kd));
    } else {
        f.zeile({"Obere Geschoßdecke gegen", "Upper floor towards"}, quelle.auswahl.Dachraum);
        f.zeile({"U-Wert der oberen Geschoßdecke", "U value of the upper floor"}, u_wert_text(p.kd));
    }
    f.zeile({"Untere Geschoßdecke gegen", "Lower floor towards"}, quelle.auswahl.untere_Decke);
    f.zeile({"U-Wert der unteren Geschoßdecke", "U value of the lower floor"}, u_wert_text(p.kk));
    f.zeile({"Fläche der Tür (Nordfassade)", "Area of the door (north facade)"}, mit_einheit(p.ft, 1, " m²"));
    f.zeile({"U-Wert der Tür", "U value of the door"}, u_wert_text(p.kt));
    f.zeile({"Wärmebrücken", "Heat bridges"}, quelle.auswahl.Waermebruecken);
}

void gebaeude(Formular& f, const Dokumentquelle& quelle, std::string_view sprache) {
    const Projekt& p = quelle.p;
    const std::string nachbarn = nachbarwaende(p, sprache);
    f.abschnitt({"Gebäude:", "Building:"});
    f.zeile({"Soll-Raumlufttemperatur", "Interior temperature"}, mit_einheit(p.Troom, 1, " °C"));
    f.zeile({"Freie Lüftung (Infiltration)", "Natural ventilation (infiltration)"},
            mit_einheit(p.infiltration, 2, " 1/h"));
    f.zeile({"Mechanische Lüftung", "Mechanical ventilation"}, mit_einheit(p.lw, 2, " 1/h"));
    f.zeile({"Interne Gewinne", "Internal gains"}, mit_einheit(p.intg, 1, " kWh/(m² a)"));
    f.zeile({"Überwärmung ab einer Raumlufttemperatur über", "Limit of overheating"},
            mit_einheit(p.Tueber, 1, " °C"));
    f.zeile({"Wärmerückgewinnung (nur mech. Lüftung)", "Heat recovery (only mech. ventilation)"},
            mit_einheit(double{p.WRG} * 100, 0, " %"));
    f.zeile({"Art der Außenwände", "Kind of outdoor walls"}, quelle.auswahl.Aussenwandart);
    f.zeile({"Art der Innenwände", "Kind of indoor walls"}, quelle.auswahl.Innenwandart);
    f.zeile({"Wände gegen eine beheizte Zone", "Walls towards another heated area"},
            nachbarn.empty() ? Wort{"keine", "none"}.in(sprache) : std::string_view(nachbarn));
}

std::string_view ohne_blanks(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

void klima(Formular& f, const Projekt& p) {
    f.abschnitt({"Klima:", "Climate:"});
    const int region = region_der_station(p);
    if (region == 0) {
        f.zeile({"Klimastation", "Climate station"}, p.Stationsname);
        return;
    }
    Regionszeilen zeilen = regionszeilen(region);
    std::transform(zeilen.begin(), zeilen.end(), zeilen.begin(), ohne_blanks);
    f.zeilen({"Klimaregion", "Climatic region"}, zeilen);
}

// --- The table of the windows, one column for each facade ---

constexpr double erste_spalte = 26;
constexpr double spaltenbreite = 27;
constexpr double textbreite_der_spalte = 25.5;

/// Right edge of the column of a facade.
constexpr double fassadenanker(Wandseite seite) {
    return 93 + spaltenbreite * static_cast<double>(platz(seite));
}

/// A row of numbers, one for each facade.
struct Fensterzeile {
    Wort name;
    JeWandseite<double> werte;
    int stellen;
};

JeWandseite<double> je_fassade(const Projekt& p, const std::function<double(const Fassade&)>& wert) {
    const JeWandseite<Fassade> seiten = fassaden(p);
    JeWandseite<double> werte;
    for (const Wandseite seite : wandseiten)
        werte[seite] = wert(seiten[seite]);
    return werte;
}

/// A row of texts, broken into their columns. Returns the y below it.
double textzeile(Blatt& blatt, double y, const Wort& name, const JeWandseite<std::string>& texte) {
    constexpr double hoehe = 3.6;
    blatt.text(erste_spalte, y, name);
    double unten = y + zeilenhoehe;
    for (const Wandseite seite : wandseiten) {
        double zeile = y;
        for (std::string teil : blatt.ZeilenUmbruch(texte[seite], textbreite_der_spalte)) {
            while (teil.ends_with(' '))
                teil.pop_back();
            blatt.DruckeText(blatt.gekuerzt(teil, textbreite_der_spalte), fassadenanker(seite), zeile);
            zeile += hoehe;
        }
        unten = std::max(unten, zeile + zeilenhoehe - hoehe);
    }
    return unten;
}

double zahlenzeilen(Blatt& blatt, double y, std::initializer_list<Fensterzeile> zeilen) {
    for (const Fensterzeile& zeile : zeilen) {
        blatt.text(erste_spalte, y, zeile.name);
        for (const Wandseite seite : wandseiten)
            blatt.DruckeWert(zeile.werte[seite], fassadenanker(seite), zeile.stellen, y);
        y += zeilenhoehe;
    }
    return y;
}

double fenstertabelle(Blatt& blatt, double y, const Dokumentquelle& quelle) {
    const Projekt& p = quelle.p;
    blatt.regel(y);
    y += 0.7;
    for (const Wandseite seite : wandseiten)
        blatt.DruckeText(fassadennamen[seite].in(blatt.sprache()), fassadenanker(seite), y);
    y += zeilenhoehe;
    blatt.doppelregel(y);
    y += 1.7;
    y = zahlenzeilen(blatt, y,
                     {{{"Fensterfläche in m²", "Window area in m²"},
                       je_fassade(p, [](const Fassade& f) { return f.f_fenster; }),
                       1},
                      {{"Anteil der Fassade in %", "Fraction of the facade in %"},
                       {{{1.0 * p.fn, 1.0 * p.fs, 1.0 * p.fo, 1.0 * p.fw}}},
                       0}});
    y = textzeile(blatt, y, {"Fensterart", "Kind of windows"}, quelle.auswahl.Fensterart);
    y = zahlenzeilen(
        blatt, y,
        {{{"U-Wert Glas in W/(m² K)", "U value glazing in W/(m² K)"},
          {{{p.kfgn, p.kfgs, p.kfgo, p.kfgw}}},
          2},
         {{"U-Wert Rahmen in W/(m² K)", "U value frame in W/(m² K)"},
          {{{p.kfrn, p.kfrs, p.kfro, p.kfrw}}},
          2},
         {{"g-Wert Verglasung", "g value glazing"}, je_fassade(p, [](const Fassade& f) { return f.g; }), 2},
         {{"Rahmenanteil in %", "Fraction of frame in %"},
          je_fassade(p, [](const Fassade& f) { return f.rahmen * 100; }),
          0},
         {{"Verschattung in %", "Shading in %"},
          je_fassade(p, [](const Fassade& f) { return f.verschattung * 100; }),
          0}});
    blatt.regel(y);
    return y;
}

}  // namespace

void seite_datenblatt_1(Blatt& blatt, const Dokumentquelle& quelle) {
    Formular f(blatt, seitenanfang, zeilenhoehe);
    geometrie(f, quelle.p, blatt.sprache());
    daemmung(f, quelle, blatt.sprache());
    gebaeude(f, quelle, blatt.sprache());
    klima(f, quelle.p);
    Zeichnung_Haus(blatt, quelle.p);
}

void seite_datenblatt_2(Blatt& blatt, const Dokumentquelle& quelle) {
    const Energietexte& e = quelle.energie;
    Formular kopf(blatt, seitenanfang, zeilenhoehe);
    kopf.abschnitt({"Fenster:", "Windows:"});
    blatt.schrift({.groesse = 8});
    const double unten = fenstertabelle(blatt, kopf.y() + 1, quelle);
    Formular f(blatt, unten + 8, zeilenhoehe);
    f.abschnitt({"Energie:", "Energy:"});
    f.zeile({"Heizungssystem", "Heating system"}, e.System);
    f.zeile({"Wärmeübergabe / Systemtemperatur", "Heat transfer / system temperature"}, e.Uebergabe);
    f.zeile({"Energieträger", "Source of energy"}, e.Energietraeger);
}

}  // namespace velmaris
