#include "charts/sankey_heizen.h"

#include "charts/c_sankey.h"
#include "charts/chartwerte.h"
#include "charts/schema.h"
#include "toolkit/fehler.h"
#include "toolkit/zahlen.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <string>

namespace velmaris {
namespace {

constexpr Farbe farbe_heizen{255, 180, 180};
constexpr int bogenradius = 10;
constexpr double liste_tiefste = 166;

struct Heizbild {
    const Projekt& p;
    Sankeyblatt blatt;
    Sankey_Heizmasse m;

    void flaeche(double x1, double y1, double x2, double y2) const {
        blatt.bild.flaeche(x1, y1, x2, y2, blatt.Bandfarbe);
    }
    void spitze(double a, double b, double c, double d) const {
        Sankey_Spitze(blatt.bild, a, b, c, d, blatt.Bandfarbe);
    }
    void kerbe(double a, double b, double c, double d) const {
        Sankey_Spitze(blatt.bild, a, b, c, d, farben::weiss);
    }
};

/// The narrower band comes first: the narrower, the larger is the disk that cuts out the inside of its bend.
void gewinnboegen_zeichnen(const Heizbild& b) {
    const Sankey_Heizmasse& m = b.m;
    const auto intern = [&] { Sankey_Schwungband(b.blatt, {230, m.yC}, {200, m.yC + 10}, m.bQI); };
    if (m.bQI > 0 && m.bQI <= m.bQS) intern();
    if (m.bQS > 0) Sankey_Schwungband(b.blatt, {230, m.yD}, {200, m.yD - 10}, m.bQS);
    if (m.bQI > 0 && m.bQI > m.bQS) intern();
}

void boegen_zeichnen(const Heizbild& b) {
    const Sankey_Heizmasse& m = b.m;
    if (m.bTV > 0) Sankey_Bogen(b.blatt, 80, m.yE - m.bTV - 10, 270, 360, m.bTV, bogenradius);
    if (m.bTV < 0) Sankey_Bogen(b.blatt, 80, m.yE - 10, 180, 270, -m.bTV, bogenradius);
    if (m.bSV > 0) Sankey_Bogen(b.blatt, 120, m.yP + 10, 360, 90, m.bSV, bogenradius);
    if (m.bSV < 0) Sankey_Bogen(b.blatt, 120, m.yB + 10, 90, 180, -m.bSV, bogenradius);
    gewinnboegen_zeichnen(b);
    if (m.bQL > 0) Sankey_Schwungband(b.blatt, {280, m.yF}, {310, m.yF - 10}, m.bQL);
}

/// The loss of transformation rises from the band, renewable energies come down into it. Zero draws nothing.
void umwandlung_zeichnen(const Heizbild& b) {
    const int breite = b.m.bTV;
    const int y = b.m.yE - 10;
    if (breite > 0) {
        const double oben = breite / 2.0 + 25;
        b.flaeche(90, y - breite, 90 + breite, oben);
        b.spitze(90 + breite, oben, 90, oben);
    } else if (breite < 0) {
        b.flaeche(70 + breite, y, 70, 25);
        b.kerbe(70 + breite, 25, 70, 25);
    }
}

/// The loss of the heating system leaves downward, gains from the environment come up.
void system_zeichnen(const Heizbild& b) {
    const int breite = b.m.bSV;
    const int y = b.m.yA + 10;
    const double unten = b.blatt.bild.hoehe() - 25;
    if (breite > 0) {
        b.flaeche(130, y, 130 + breite, unten - breite / 2.0);
        b.spitze(130, unten - breite / 2.0, 130 + breite, unten - breite / 2.0);
    } else if (breite < 0) {
        b.flaeche(110, y, 110 + breite, unten);
        b.kerbe(110, unten, 110 + breite, unten);
    }
}

void gewinn_zeichnen(const Heizbild& b, double x, int unten, int breite) {
    if (breite <= 0) return;
    b.flaeche(x, unten, 200, unten - breite);
    b.kerbe(x, unten, x, unten - breite);
}

void stuecke_zeichnen(const Heizbild& b) {
    const Sankey_Heizmasse& m = b.m;
    b.flaeche(5, m.yP, 80, m.yP - (m.bPE - 1));
    b.kerbe(5, m.yP, 5, m.yP - (m.bPE - 1));
    umwandlung_zeichnen(b);
    b.flaeche(80, m.yP, 120, m.yP - (m.bEE - 1));
    system_zeichnen(b);
    b.flaeche(120, m.yB, 230, m.yP - (m.bEE - 1));
    gewinn_zeichnen(b, 180, m.yC + 10, m.bQI);
    gewinn_zeichnen(b, 150, m.yD - 10, m.bQS);
    b.flaeche(230, m.yC, 280, m.yD - m.bQS);
    if (m.bQL > 0) {
        const double ende = 350 - m.bQL / 2.0;
        b.flaeche(310, m.yF - 10, ende, m.yF - m.bQL - 10);
        b.spitze(ende, m.yF - 10, ende, m.yF - m.bQL - 10);
    }
    b.flaeche(280, m.yC, 310, m.yF);
}

void teilung_zeichnen(const Heizbild& b) {
    for (const Sankey_Bauteil& teil : b.m.bauteile)
        if (teil.verlust > 0) b.flaeche(310, teil.unten, 350 - teil.breite / 2, teil.oben);
    for (const Sankey_Bauteil& teil : b.m.bauteile) {
        const double ende = 350 - teil.breite / 2;
        if (teil.verlust > 0) b.spitze(ende, teil.unten, ende, teil.oben);
    }
    for (const int y : b.m.grenzen)
        Sankey_Linie(b.blatt.bild, 310, y, 350, y, farben::weiss);
}

namespace namen {
constexpr Wort erneuerbar{"Erneuerbare Energien", "renewable energies"};
constexpr Wort solar{"nutzbare solare Gewinne", "usable solar gains"};
constexpr Wort intern{"nutzbare interne Gewinne", "usable internal gains"};
constexpr Wort lueftung{"Lüftungsverluste", "ventilation losses"};
constexpr Wort transmission{"Transmissionsverluste", "transmission losses"};
constexpr Wort heizwaerme{"Heizwärmebedarf", "heat energy demand"};
constexpr Wort systemverlust{"Verluste Heizungssystem", "losses of the heating"};
constexpr Wort systemgewinn{"Gewinne aus der Umwelt", "gains from environment"};
/// From the bottom up, as they stand in `Sankey_Heizmasse::bauteile`.
constexpr std::array<Wort, 5> bauteile{
    {{"Boden", "ground"}, {"Tür", "door"}, {"Wände", "walls"}, {"Fenster", "windows"}, {"Dach", "roof"}}};
}  // namespace namen

/// A label of two lines: what flows and how much.
struct Strom {
    const Wort& name;
    double wert;
    Buendig buendig;
    double x;
    double y;
};

double primaerenergie(const Projekt& p) {
    return double{p.q_PE_Strom} + p.q_PE_Energietraeger;
}

/// Loss by transformation, or the renewable energies if the band does not rise.
void umwandlung_beschriften(const Heizbild& b) {
    const std::string wert = Sankey_Wert(std::abs(b.m.TV));
    if (b.m.bTV > 0) {
        Sankey_Text(b.blatt.bild, Buendig::mitte, 90, 0,
                    {beschriftung(b.p, {"Umwandlungs- und Transport-", "losses for transformation"}),
                     beschriftung(b.p, {"verluste ", "and transport "}) + wert});
    } else {
        Sankey_Text(b.blatt.bild, Buendig::mitte, b.m.bTV / 2.0 + 70, 0,
                    {beschriftung(b.p, namen::erneuerbar), wert});
    }
}

void stroeme_beschriften(const Heizbild& b) {
    const Projekt& p = b.p;
    const Sankey_Heizmasse& m = b.m;
    const double unten = b.blatt.bild.hoehe() - 25;
    const Strom verlust{namen::systemverlust, m.SV, Buendig::rechts, 123, m.yA + 5.0};
    const Strom gewinn{namen::systemgewinn, -m.SV, Buendig::rechts, 103, m.yA + 5.0};
    const auto stroeme = std::to_array<Strom>({
        {sankeynamen::primaer, primaerenergie(p), Buendig::links, 2, m.yP - m.bPE - 24.0},
        {namen::solar, p.qsols, Buendig::mitte, 215, 0},
        {namen::lueftung, p.qinfs, Buendig::rechts, 415, 0},
        m.bSV >= 0 ? verlust : gewinn,
        {namen::intern, p.qis, Buendig::mitte, 200, unten},
        {namen::transmission, p.qtrs, Buendig::rechts, 415, unten},
        {namen::heizwaerme, p.qhs_sum, Buendig::mitte, 175, m.yB - m.bQH / 2.0 - 12},
    });
    for (const Strom& strom : stroeme)
        Sankey_Text(b.blatt.bild, strom.buendig, strom.x, strom.y,
                    {beschriftung(p, strom.name), Sankey_Wert(strom.wert)});
    umwandlung_beschriften(b);
}

/// The list of the building's parts beside the arrows, roof first.
void bauteile_beschriften(const Heizbild& b) {
    double y = std::min(b.m.yC - b.m.bQT / 2.0, liste_tiefste) - 30;
    for (std::size_t i = b.m.bauteile.size(); i-- > 0;) {
        const double verlust = b.m.bauteile[i].verlust;
        if (!(verlust > 0)) continue;
        Sankey_Text(
            b.blatt.bild, Buendig::links, 356, y,
            {beschriftung(b.p, namen::bauteile[i]) + " (" + muster(verlust / b.p.qtr * 100, 0) + " %)"});
        y += sankey_zeile;
    }
}

}  // namespace

void SankeyHeizen(const Projekt& p, Zeichenflaeche& bild, double massstab) {
    const Heizbild b{p, {bild, farbe_heizen}, sankey_heizmasse(p, bild, massstab)};
    Sankey_anfangen(bild);
    boegen_zeichnen(b);
    stuecke_zeichnen(b);
    if (p.qtr > 0) teilung_zeichnen(b);
    stroeme_beschriften(b);
    if (p.qtr > 0) bauteile_beschriften(b);
}

Wertetafel SankeyHeizenWerte(const Projekt& p) {
    const auto wort = [&p](const Wort& name) { return std::string(name.in(p.Sprache)); };
    const auto [SV, TV] = sankey_heizwerte(p);
    Wertetafel tafel =
        groessentafel(p, wort({"Energiefluss Heizen", "Energy flow of the heating"}), {}, einheit_je_jahr(p));
    const auto zeile = [&](const Wort& name, double wert) {
        tafel.zeilen.push_back({.namen = {wort(name)}, .werte = {wert}});
    };
    zeile(sankeynamen::primaer, primaerenergie(p));
    zeile(TV > 0 ? sankeynamen::umwandlung : namen::erneuerbar, std::abs(TV));
    zeile(SV >= 0 ? namen::systemverlust : namen::systemgewinn, std::abs(SV));
    zeile(namen::heizwaerme, p.qhs_sum);
    zeile(namen::solar, p.qsols);
    zeile(namen::intern, p.qis);
    zeile(namen::lueftung, p.qinfs);
    zeile(namen::transmission, p.qtrs);
    const std::array<double, 5> teile{p.qtr_Boden, p.qtr_Tuer, p.qtr_Waende, p.qtr_Fenster, p.qtr_Dach};
    for (std::size_t i = 0; i < teile.size(); ++i)
        tafel.zeilen.push_back({.namen = {wort(namen::transmission) + " " + wort(namen::bauteile[i])},
                                .werte = {teile[i] / p.f_nutz}});
    return tafel;
}

}  // namespace velmaris
