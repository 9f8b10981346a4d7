#include "documents/print/druckdiagramme.h"

#include "calc/jahressummen.h"
#include "charts/stufen.h"
#include "documents/fassadenwerte.h"
#include "documents/print/druckachsen.h"
#include "energy/energiebilanz.h"

#include <algorithm>
#include <functional>

namespace velmaris {
namespace {

constexpr int fuenf = 5;
constexpr int vier = 4;
constexpr int drei = 3;

constexpr double oben = 139;  ///< of the boxes of the balances and hours
constexpr double unten = 211;
constexpr Diagrammlage bilanzmonate = monatsdiagramm(oben, unten);
constexpr Diagrammlage bilanzjahr{{140, oben, 175, unten}, 150, 205, 145, 172, 143};
constexpr Diagrammlage fenster{{25, 135, 175, 207}, 50, 201, 141, 170, 28};
constexpr Diagrammlage ueberwaermung = monatsdiagramm(164, 206);
constexpr Diagrammlage kuehlbedarf = monatsdiagramm(211, 253);
constexpr Diagrammlage energie = monatsdiagramm(209, 241);

/// Left edge of the legends beside the diagrams by months.
constexpr double legende = 137;
constexpr double legendenabstand = 6;

constexpr double balkenbreite = 3.4;
constexpr double balkenluecke = 0.2;

std::string einheit_im_monat(const Projekt& p) {
    return "kWh/(m² " + p.texte.txt_Monat + ")";
}

/// The largest value of the twelve months, at least `mindestens`.
double groesster(const std::function<double(int)>& wert, double mindestens) {
    double maximum = mindestens;
    for (int m = 1; m <= monate; ++m)
        maximum = std::max(maximum, wert(m));
    return maximum;
}

/// Step of a scale for energies of the whole house, which reach further than those per area: from 10000 on
/// the steps repeat in thousands.
double schritt_absolut(double hoechster) {
    constexpr double tausend = 1000;
    if (hoechster < 10 * tausend) return stufen_heizjahr.schritt(hoechster);
    return tausend * stufen_heizjahr.schritt(hoechster / tausend);
}

/// A diagram with one bar in every month.
void einzelbalken(Blatt& blatt, const Diagrammlage& lage, const std::function<double(int)>& wert,
                  double schritt, int teile, std::string_view einheit, Farbe farbe) {
    const Druckdiagramm diagramm(blatt, lage, schritt, teile, einheit);
    for (int m = 1; m <= monate; ++m)
        diagramm.stapel(monatsbalken(m), monatsbalken(m) + 2 * balkenbreite + balkenluecke,
                        {{wert(m), farbe}});
    diagramm.monatsnamen();
}

void stundenstapel(const Druckdiagramm& diagramm, double x1, double x2, const Betriebsstunden& h) {
    diagramm.stapel(x1, x2,
                    {{static_cast<double>(h.kalt), druckfarben::heizen},
                     {static_cast<double>(h.komfort), druckfarben::komfort},
                     {static_cast<double>(h.heiss), druckfarben::kuehlen}});
}

/// Both parts of the end energy and of the primary energy of a month.
struct Energiesaeulen {
    Druckabschnitt ende;
    Druckabschnitt ende_strom;
    Druckabschnitt primaer;
    Druckabschnitt primaer_strom;
};

void energiediagramm(Blatt& blatt, const Projekt& p, const std::function<Energiesaeulen(int)>& saeulen) {
    const double hoechster = groesster(
        [&](int m) {
            const Energiesaeulen s = saeulen(m);
            return std::max(s.ende.wert + s.ende_strom.wert, s.primaer.wert + s.primaer_strom.wert);
        },
        0);
    const Druckdiagramm diagramm(blatt, energie, stufen_energiemonat.schritt(hoechster), drei,
                                 einheit_im_monat(p));
    for (int m = 1; m <= monate; ++m) {
        const Energiesaeulen s = saeulen(m);
        const double x = monatsbalken(m) + 0.5;
        diagramm.stapel(x, x + 3, {s.ende, s.ende_strom});
        diagramm.stapel(x + 3.2, x + 6.2, {s.primaer, s.primaer_strom});
    }
    diagramm.monatsnamen();
    diagrammschrift(blatt);
    blatt.text(legende, energie.kasten.oben, Wort{"Legende:", "Legend:"});
}

}  // namespace

void Diagramm_Jahresbilanz(Blatt& blatt, const Projekt& p) {
    const Druckdiagramm diagramm(blatt, bilanzjahr, stufen_heizjahr.schritt(p.qverl_s), fuenf, "kWh/(m² a)");
    diagramm.stapel(151, 160, {{p.qtrs, druckfarben::transmission}, {p.qinfs, druckfarben::lueftung}});
    diagramm.stapel(
        162, 171,
        {{p.qis, druckfarben::intern}, {p.qsols, druckfarben::solar}, {p.qhs_sum, druckfarben::heizen}});
    diagramm.name(p.texte.txt_Jahresbilanz);
}

void Diagramm_Monatbilanz(Blatt& blatt, const Projekt& p) {
    const double flaeche = p.f_nutz;
    const double verluste =
        groesster([&](int m) { return (double{p.Monat(m).Qt} + p.Monat(m).Qv) / flaeche; }, 1);
    const Druckdiagramm diagramm(blatt, bilanzmonate, stufen_heizmonat.schritt(verluste), fuenf,
                                 einheit_im_monat(p));
    for (int m = 1; m <= monate; ++m) {
        const Monatswerte& monat = p.Monat(m);
        const double x = monatsbalken(m);
        const double x2 = x + balkenbreite + balkenluecke;
        diagramm.stapel(
            x, x + balkenbreite,
            {{monat.Qt / flaeche, druckfarben::transmission}, {monat.Qv / flaeche, druckfarben::lueftung}});
        diagramm.stapel(x2, x2 + balkenbreite,
                        {{monat.Qi_genutzt / flaeche, druckfarben::intern},
                         {monat.Qs_genutzt / flaeche, druckfarben::solar},
                         {monat.Qh / flaeche, druckfarben::heizen}});
    }
    diagramm.monatsnamen();
}

void Legende_Bilanz(Blatt& blatt) {
    diagrammschrift(blatt);
    blatt.drucker().kasten(rahmen::links, 216, rahmen::rechts, 241, farben::schwarz);
    blatt.text(30, 218, Wort{"Legende:", "Legend:"});
    legendeneintrag(blatt, 30, 224, druckfarben::transmission,
                    {"Transmissionsverluste", "Transmission losses"});
    legendeneintrag(blatt, 30, 230, druckfarben::lueftung, {"Lüftungsverluste", "Ventilation losses"});
    legendeneintrag(blatt, 100, 224, druckfarben::heizen, {"Heizwärmebedarf", "Heat energy demand"});
    legendeneintrag(blatt, 100, 230, druckfarben::solar, {"Nutzbare solare Gewinne", "Usable solar gains"});
    legendeneintrag(blatt, 100, 236, druckfarben::intern,
                    {"Nutzbare interne Gewinne", "Usable internal gains"});
}

void Diagramm_Fenster(Blatt& blatt, const Projekt& p) {
    constexpr double breite = 10;
    constexpr double zweiter = 12;
    const JeWandseite<double> gewinne = fenstergewinne(p);
    const JeWandseite<double> verluste = fensterverluste(p);
    double hoechster = 1;
    for (const Wandseite seite : wandseiten)
        hoechster = std::max({hoechster, gewinne[seite], verluste[seite]});
    const Druckdiagramm diagramm(blatt, fenster, schritt_absolut(hoechster), fuenf, "kWh/a");
    for (const Wandseite seite : wandseiten) {
        const double x = 54 + 30.0 * static_cast<double>(platz(seite));
        diagramm.stapel(x, x + breite, {{gewinne[seite], druckfarben::solar}});
        diagramm.stapel(x + zweiter, x + zweiter + breite, {{verluste[seite], druckfarben::transmission}});
        blatt.mitte(x + (zweiter + breite) / 2, fenster.unten + 1, fassadennamen[seite].in(blatt.sprache()));
    }
    blatt.drucker().kasten(rahmen::links, 220, rahmen::rechts, 245, farben::schwarz);
    blatt.text(30, 222, Wort{"Legende:", "Legend:"});
    legendeneintrag(blatt, 30, 229, druckfarben::solar,
                    {"Solare Gewinne durch Fenster", "Solar gains of windows"});
    legendeneintrag(blatt, 30, 236, druckfarben::transmission,
                    {"Transmissionsverluste durch Fenster", "Transmission losses of windows"});
}

void Diagramm_Stunden(Blatt& blatt, const Projekt& p) {
    constexpr double monatsschritt = 200;
    constexpr double jahresschritt = 2200;
    const std::string_view einheit = Wort{"Stunden", "hours"}.in(blatt.sprache());
    const Druckdiagramm im_monat(blatt, bilanzmonate, monatsschritt, vier, einheit);
    for (int m = 1; m <= monate; ++m)
        stundenstapel(im_monat, monatsbalken(m), monatsbalken(m) + 2 * balkenbreite + balkenluecke,
                      betriebsstunden(p, m));
    im_monat.monatsnamen();
    const Druckdiagramm im_jahr(blatt, bilanzjahr, jahresschritt, vier, einheit);
    stundenstapel(im_jahr, 155, 167, betriebsstunden_im_jahr(p));
    im_jahr.name(Wort{"Jahressumme", "Annual sum"}.in(blatt.sprache()));
    blatt.text(rahmen::links, 216, Wort{"Legende:", "Legend:"});
    legendeneintrag(blatt, 30, 222, druckfarben::kuehlen, {"Kühlstunden", "Cooling hours"});
    legendeneintrag(blatt, 30, 228, druckfarben::komfort, {"Nullenergiestunden", "Zero energy hours"});
    legendeneintrag(blatt, 30, 234, druckfarben::heizen, {"Heizstunden", "Heating hours"});
}

void Diagramm_Kuehlen(Blatt& blatt, const Projekt& p) {
    const auto je_tag = [&p](int m) { return tagesstunden(p, m); };
    const auto je_flaeche = [&p](int m) { return monatskuehlbedarf(p, m); };
    einzelbalken(blatt, ueberwaermung, je_tag, stufen_tagesstunden.schritt(groesster(je_tag, 1)), vier,
                 Wort{"Std./Tag", "hours/day"}.in(blatt.sprache()), druckfarben::ueberwaermung);
    einzelbalken(blatt, kuehlbedarf, je_flaeche, stufen_bedarfsmonat.schritt(groesster(je_flaeche, 1)), fuenf,
                 einheit_im_monat(p), druckfarben::kuehlen);
    blatt.text(legende, ueberwaermung.kasten.oben, Wort{"Legende:", "Legend:"});
    legendeneintrag(blatt, legende, 171, druckfarben::ueberwaermung,
                    {"Überwärmungsstunden", "Overheating hours"});
    legendeneintrag(blatt, legende, 177, druckfarben::kuehlen, {"Kühlbedarf", "Cooling demand"});
}

void Diagramm_Heizenergie(Blatt& blatt, const Projekt& p) {
    const Monatsenergie werte = monatswerte(p);
    energiediagramm(blatt, p, [&](int m) -> Energiesaeulen {
        return {{werte.E(m), druckfarben::endenergie},
                {werte.H(m), druckfarben::endenergie_strom},
                {werte.P(m), druckfarben::primaerenergie},
                {werte.Q(m), druckfarben::primaerenergie_strom}};
    });
    const bool mit_hilfsstrom = !kurzname(p.Heizsystem, p.Energietraeger).elektrisch();
    constexpr Wort strom{"Strom", "electricity"};
    double y = energie.kasten.oben;
    const auto eintrag = [&](Farbe farbe, const Wort& name) {
        legendeneintrag(blatt, legende, y += legendenabstand, farbe, name);
    };
    eintrag(druckfarben::endenergie, {"Endenergiebedarf", "End energy demand"});
    if (mit_hilfsstrom) eintrag(druckfarben::endenergie_strom, strom);
    eintrag(druckfarben::primaerenergie, {"Primärenergiebedarf", "Primary energy demand"});
    if (mit_hilfsstrom) eintrag(druckfarben::primaerenergie_strom, strom);
}

void Diagramm_Kühlenergie(Blatt& blatt, const Projekt& p) {
    energiediagramm(blatt, p, [&](int m) -> Energiesaeulen {
        const Kuehlenergie monat = kuehlenergie(p, m);
        return {{monat.Endenergie, druckfarben::kuehlenergie},
                {},
                {monat.Primaerenergie, druckfarben::kuehlprimaerenergie},
                {}};
    });
    legendeneintrag(blatt, legende, 215, druckfarben::kuehlenergie,
                    {"Kühlenergiebedarf", "End energy demand"});
    legendeneintrag(blatt, legende, 221, druckfarben::kuehlprimaerenergie,
                    {"Primärenergiebedarf", "Primary energy demand"});
}

}  // namespace velmaris
