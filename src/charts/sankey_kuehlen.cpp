#include "charts/sankey_kuehlen.h"

#include "charts/c_sankey.h"
#include "charts/chartwerte.h"
#include "charts/schema.h"
#include "toolkit/fehler.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>
#include <vector>

namespace velmaris {
namespace {

constexpr Farbe farbe_kuehlen{180, 180, 255};
constexpr int bogenradius = 10;
constexpr int xBogen = 60;
constexpr int xSpitze = 410;

namespace namen {
constexpr Wort ende{"End-Kühlenergiebedarf", "end energy demand for cooling"};
constexpr Wort abgefuehrt{"Aus dem Gebäude abgeführte Wärme", "Heat removed from the building"};
constexpr Wort abwaerme{"Abwärme Kühlgerät", "Waste heat from cooling system"};
constexpr Wort ueberschuss{"Überschüssige", "Surplus"};
constexpr std::array<Wort, velmaris::ueberschuesse> ueberschuesse{
    {{"Transmissionsgewinne", "transmission gains"},
     {"Lüftungsgewinne", "ventilation gains"},
     {"solare Gewinne", "solar gains"},
     {"interne Gewinne", "internal gains"}}};
}  // namespace namen

struct Kuehlbild {
    const Projekt& p;
    Sankeyblatt blatt;
    Sankey_Kuehlwerte werte;
    Sankey_Kuehlmasse m;
};

/// A piece of a band between two columns, `breite` rows up from its lower edge.
void stueck(const Kuehlbild& b, double x1, double x2, int unten, int breite) {
    b.blatt.bild.flaeche(x1, unten, x2, unten - breite + 1, b.blatt.Bandfarbe);
}

void kerbe(const Kuehlbild& b, int x, int unten, int breite) {
    Sankey_Spitze(b.blatt.bild, x, unten, x, unten - breite + 1, farben::weiss);
}

void einlaesse_zeichnen(const Kuehlbild& b) {
    const Sankey_Kuehlmasse& m = b.m;
    for (std::size_t i = 0; i < ueberschuesse; ++i) {
        if (m.teile[i] == 0) continue;
        stueck(b, m.xEinlass, m.xSchraeg, m.einlass[i], m.teile[i]);
        kerbe(b, m.xEinlass, m.einlass[i], m.teile[i]);
        Sankey_Schraegband(b.blatt, m.xSchraeg, m.einlass[i], m.xSammlung, m.sammlung[i], m.teile[i] - 1);
    }
}

/// The loss leaves the top of the primary band upward; its bend shares one row with the end energy.
void verlust_zeichnen(const Kuehlbild& b) {
    const int y = b.m.yE + 1 - b.m.L - bogenradius;
    const int links = xBogen + bogenradius;
    const double oben = b.m.L / 2.0 + 25;
    Sankey_Bogen(b.blatt, xBogen, y, 270, 360, b.m.L, bogenradius);
    b.blatt.bild.flaeche(links, y, links + b.m.L, oben, b.blatt.Bandfarbe);
    Sankey_Spitze(b.blatt.bild, links + b.m.L, oben, links, oben, b.blatt.Bandfarbe);
}

void auslass_zeichnen(const Kuehlbild& b, int x, int unten, int breite) {
    const double ende = xSpitze - breite / 2.0;
    stueck(b, x, ende, unten, breite);
    Sankey_Spitze(b.blatt.bild, ende, unten, ende, unten - breite + 1, b.blatt.Bandfarbe);
}

void baender_zeichnen(const Kuehlbild& b) {
    const Sankey_Kuehlmasse& m = b.m;
    const int xAuslass = m.xSammlung + 3;
    einlaesse_zeichnen(b);
    stueck(b, m.xSammlung, xAuslass, m.yE, m.C);
    stueck(b, xBogen, xAuslass, m.yP, m.E);
    verlust_zeichnen(b);
    stueck(b, 5, xBogen, m.yP, m.P);
    kerbe(b, 5, m.yP, m.P);
    auslass_zeichnen(b, xAuslass, m.yE, m.C);
    auslass_zeichnen(b, xAuslass, m.yP, m.E);
}

void stroeme_beschriften(const Kuehlbild& b) {
    const auto schreibe = [&b](Buendig buendig, double x, double y, const Wort& name,
                               const std::string& zweite) {
        Sankey_Text(b.blatt.bild, buendig, x, y, {beschriftung(b.p, name), zweite});
    };
    const double unten = b.blatt.bild.hoehe() - 25;
    schreibe(Buendig::links, 2, b.m.yP - b.m.P - 24, sankeynamen::primaer, Sankey_Wert(b.werte.P));
    schreibe(Buendig::mitte, std::min(b.m.L / 2.0 + 70, 90.0), 0,
             {"Umwandlungs- und Transport-", "losses for transformation"},
             beschriftung(b.p, {"verluste ", "and transport "}) + Sankey_Wert(b.werte.L));
    schreibe(Buendig::mitte, 150, unten, namen::ende, Sankey_Wert(b.werte.E));
    schreibe(Buendig::rechts, 415, 0, namen::abgefuehrt,
             beschriftung(b.p, {"(= Kühlbedarf)", "(= cooling demand)"}) + " " + Sankey_Wert(b.werte.C));
    schreibe(Buendig::rechts, 415, unten, namen::abwaerme, Sankey_Wert(b.werte.E));
}

/// The list of the inlets stands level with them, between the headings and the end energy.
void einlaesse_beschriften(const Kuehlbild& b) {
    constexpr double hoehe = (1 + 2 * ueberschuesse) * sankey_zeile;
    constexpr double einzug = 8;
    const double mitte = (b.m.einlass.front() - b.m.teile.front() + b.m.einlass.back()) / 2.0;
    double y = std::clamp(mitte - hoehe / 2, 26.0, b.m.yE - hoehe - 2);
    Zeichenflaeche& bild = b.blatt.bild;
    Sankey_Text(bild, Buendig::links, b.m.xText, y, {beschriftung(b.p, namen::ueberschuss)});
    y += sankey_zeile;
    for (std::size_t i = 0; i < ueberschuesse; ++i, y += 2 * sankey_zeile) {
        Sankey_Text(bild, Buendig::links, b.m.xText, y,
                    {" - " + beschriftung(b.p, namen::ueberschuesse[i]) + ": "});
        Sankey_Text(bild, Buendig::links, b.m.xText + einzug, y + sankey_zeile,
                    {Sankey_Wert(b.werte.teile[i])});
    }
}

void ohne_bedarf(const Projekt& p, Zeichenflaeche& bild) {
    const std::string text =
        beschriftung(p, {"Kein Kühlbedarf vorhanden.", "The building has no cooling demand."});
    bild.text((bild.breite() - bild.textbreite(text)) / 2, bild.hoehe() / 2 - 6, text);
}

}  // namespace

void SankeyKuehlen(const Projekt& p, Zeichenflaeche& bild, double massstab) {
    const Sankey_Kuehlwerte werte = sankey_kuehlwerte(p);
    Sankey_anfangen(bild);
    if (werte.C == 0) {
        ohne_bedarf(p, bild);
        return;
    }
    const Kuehlbild b{p, {bild, farbe_kuehlen}, werte, sankey_kuehlmasse(werte, bild, massstab)};
    baender_zeichnen(b);
    stroeme_beschriften(b);
    einlaesse_beschriften(b);
}

Wertetafel SankeyKuehlenWerte(const Projekt& p) {
    const auto wort = [&p](const Wort& name) { return std::string(name.in(p.Sprache)); };
    const Sankey_Kuehlwerte werte = sankey_kuehlwerte(p);
    std::vector<Wertezeile> zeilen{{.namen = {wort(sankeynamen::primaer)}, .werte = {werte.P}},
                                   {.namen = {wort(sankeynamen::umwandlung)}, .werte = {werte.L}},
                                   {.namen = {wort(namen::ende)}, .werte = {werte.E}},
                                   {.namen = {wort(namen::abgefuehrt)}, .werte = {werte.C}},
                                   {.namen = {wort(namen::abwaerme)}, .werte = {werte.E}}};
    for (std::size_t i = 0; i < ueberschuesse; ++i)
        zeilen.push_back({.namen = {wort(namen::ueberschuss) + " " + wort(namen::ueberschuesse[i])},
                          .werte = {werte.teile[i]}});
    return groessentafel(p, wort({"Energiefluss Kühlen", "Energy flow of the cooling"}), std::move(zeilen),
                         einheit_je_jahr(p));
}

}  // namespace velmaris
