#include "charts/kuehldiagramme.h"

#include "calc/jahressummen.h"
#include "charts/balkenfarben.h"
#include "charts/chartwerte.h"
#include "charts/schema.h"
#include "charts/stufen.h"

#include <algorithm>
#include <string>
#include <utility>

namespace velmaris {
namespace {

constexpr int stundenteile = 4;
constexpr int bilanzteile = 5;

double kuehlgradstunden(const Projekt& p, int m) {
    return p.Monat(m).Kuehlgradstunden;
}

/// What both charts of a pair have in common.
struct Art {
    int teile;
    Farbe farbe;
    std::string einheit;
};

template <std::size_t n>
void monate_zeichnen(const Projekt& p, Zeichenflaeche& bild, const Art& art,
                     double (*monatswert)(const Projekt&, int), const Stufentabelle<n>& stufen) {
    double M = 1;
    for (int m = 1; m <= monate; ++m)
        M = std::max(M, monatswert(p, m));
    const Balkendiagramm diagramm{bild, kuehlrahmen, stufen.schritt(M), art.teile};
    achsen_zeichnen(diagramm, monatsachse);
    monatsnamen_zeichnen(bild, p);
    bild.text(3, 0, art.einheit);
    for (int m = 1; m <= monate; ++m) {
        const double wert = monatswert(p, m);
        if (wert > 0) balken_zeichnen(diagramm, monatsspalte(m), monatsspalte(m) + 18, wert, art.farbe);
    }
}

template <std::size_t n>
void jahr_zeichnen(Zeichenflaeche& bild, const Art& art, double wert, const Stufentabelle<n>& stufen,
                   const std::string& name) {
    const Balkendiagramm diagramm{bild, kuehlrahmen, stufen.schritt(wert), art.teile};
    achsen_zeichnen(diagramm, jahresachse);
    jahresname_zeichnen(bild, name);
    bild.text(5, 0, art.einheit);
    if (wert > 0) balken_zeichnen(diagramm, 45, 70, wert, art.farbe);
}

Art art_tagesstunden(const Projekt& p) {
    return {stundenteile, balkenfarben::ueberwaermung, beschriftung(p, {"Std. / Tag", "h / d"})};
}

Art art_bedarf(std::string einheit) {
    return {bilanzteile, balkenfarben::kuehlen, std::move(einheit)};
}

Art art_gradstunden(const Projekt& p) {
    return {bilanzteile, balkenfarben::gradstunden, beschriftung(p, {"Kh", "Kh"})};
}

constexpr Wort ueberwaermung{"Durchschnittliche Überwärmung", "Average time of overheating"};
constexpr Wort bedarf{"Kühlbedarf", "Cooling demand"};
constexpr Wort gradstunden{"Kühlgradstunden", "Cooling degree hours"};

/// The column of a pair of charts.
std::vector<Wertespalte> spalte(const Projekt& p, const Wort& groesse, const Art& art) {
    return {{std::string(groesse.in(p.Sprache)), art.einheit}};
}

Wertetafel monatswerte(const Projekt& p, const Wort& groesse, const Art& art,
                       double (*monatswert)(const Projekt&, int)) {
    return monatstafel(p, groesse, spalte(p, groesse, art),
                       [&](int m) { return std::vector{monatswert(p, m)}; });
}

Wertetafel jahreswerte(const Projekt& p, const Wort& groesse, const Art& art, double wert) {
    return jahrestafel(p, groesse, spalte(p, groesse, art), {wert});
}

}  // namespace

void StundenProTagMonatZeichnen(const Projekt& p, Zeichenflaeche& bild) {
    monate_zeichnen(p, bild, art_tagesstunden(p), tagesstunden, stufen_tagesstunden);
}

void StundenProTagJahrZeichnen(const Projekt& p, Zeichenflaeche& bild) {
    jahr_zeichnen(bild, art_tagesstunden(p), tagesstunden_im_jahr(p), stufen_tagesstunden,
                  beschriftung(p, {"Jahresmittel", "yearly mean"}));
}

Wertetafel StundenProTagMonatWerte(const Projekt& p) {
    return monatswerte(p, ueberwaermung, art_tagesstunden(p), tagesstunden);
}

Wertetafel StundenProTagJahrWerte(const Projekt& p) {
    return jahreswerte(p, ueberwaermung, art_tagesstunden(p), tagesstunden_im_jahr(p));
}

void KuehlBedarfMonatZeichnen(const Projekt& p, Zeichenflaeche& bild) {
    monate_zeichnen(p, bild, art_bedarf(einheit_je_monat(p)), monatskuehlbedarf, stufen_bedarfsmonat);
}

void KuehlBedarfJahrZeichnen(const Projekt& p, Zeichenflaeche& bild) {
    jahr_zeichnen(bild, art_bedarf(einheit_je_jahr(p)), jahreskuehlbedarf(p), stufen_bedarfsjahr,
                  p.texte.txt_Jahresbilanz);
}

Wertetafel KuehlBedarfMonatWerte(const Projekt& p) {
    return monatswerte(p, bedarf, art_bedarf(einheit_je_monat(p)), monatskuehlbedarf);
}

Wertetafel KuehlBedarfJahrWerte(const Projekt& p) {
    return jahreswerte(p, bedarf, art_bedarf(einheit_je_jahr(p)), jahreskuehlbedarf(p));
}

void KuehlGradStundenMonatZeichnen(const Projekt& p, Zeichenflaeche& bild) {
    monate_zeichnen(p, bild, art_gradstunden(p), kuehlgradstunden, stufen_gradstunden_monat);
}

void KuehlGradStundenJahrZeichnen(const Projekt& p, Zeichenflaeche& bild) {
    jahr_zeichnen(bild, art_gradstunden(p), summe_der_monate(p, &Monatswerte::Kuehlgradstunden),
                  stufen_gradstunden_jahr, beschriftung(p, {"Jahressumme", "yearly sum"}));
}

Wertetafel KuehlGradStundenMonatWerte(const Projekt& p) {
    return monatswerte(p, gradstunden, art_gradstunden(p), kuehlgradstunden);
}

Wertetafel KuehlGradStundenJahrWerte(const Projekt& p) {
    return jahreswerte(p, gradstunden, art_gradstunden(p),
                       summe_der_monate(p, &Monatswerte::Kuehlgradstunden));
}

}  // namespace velmaris
