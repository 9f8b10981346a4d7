#include "charts/planes/A_Kuehlen.h"

#include "calc/jahressummen.h"
#include "charts/bilanzdiagramme.h"
#include "charts/kuehldiagramme.h"
#include "charts/schema.h"
#include "language/beschriftungen.h"
#include "toolkit/zahlen.h"

#include <string_view>

namespace velmaris {
namespace {

constexpr std::string_view kelvinstunden = " Kh";

std::string stundenzeile(const Projekt& p, double wert) {
    return "\r" + beschriftung(p, {"Durchschnittliche Überwärmung: ", "Average time of overheating: "}) +
           muster(wert, 1) + beschriftung(p, {" Stunden pro Tag", " hours per day"});
}

}  // namespace

A_Kuehlen::A_Kuehlen(Sitzung& sitzung) : tooltip(sitzung.plattform, ebene.name), sitzung_(sitzung) {
    ebene.zeige(false);
    bilder_verbinden();
    tipps_verbinden();
    anordnen();
    laden();
}

void A_Kuehlen::bilder_verbinden() {
    const Projekt& p = sitzung_.p;
    StundenProTagMonat.zeichnen = [&p](Zeichenflaeche& bild) { StundenProTagMonatZeichnen(p, bild); };
    StundenProTagJahr.zeichnen = [&p](Zeichenflaeche& bild) { StundenProTagJahrZeichnen(p, bild); };
    KuehlbedarfMonat.zeichnen = [&p](Zeichenflaeche& bild) { KuehlBedarfMonatZeichnen(p, bild); };
    KuehlbedarfJahr.zeichnen = [&p](Zeichenflaeche& bild) { KuehlBedarfJahrZeichnen(p, bild); };
    KuehlGradStundenMonat.zeichnen = [&p](Zeichenflaeche& bild) { KuehlGradStundenMonatZeichnen(p, bild); };
    KuehlGradStundenJahr.zeichnen = [&p](Zeichenflaeche& bild) { KuehlGradStundenJahrZeichnen(p, bild); };
    StundenProTagMonat.werte = [&p] { return StundenProTagMonatWerte(p); };
    StundenProTagJahr.werte = [&p] { return StundenProTagJahrWerte(p); };
    KuehlbedarfMonat.werte = [&p] { return KuehlBedarfMonatWerte(p); };
    KuehlbedarfJahr.werte = [&p] { return KuehlBedarfJahrWerte(p); };
    KuehlGradStundenMonat.werte = [&p] { return KuehlGradStundenMonatWerte(p); };
    KuehlGradStundenJahr.werte = [&p] { return KuehlGradStundenJahrWerte(p); };
}

void A_Kuehlen::tipps_verbinden() {
    tooltip.folge_monaten(StundenProTagMonat, [this](int m) { return tipp_stunden_monat(m); });
    tooltip.folge_jahr(StundenProTagJahr, [this] { return tipp_stunden_jahr(); });
    tooltip.folge_monaten(KuehlbedarfMonat, [this](int m) { return tipp_bedarf_monat(m); });
    tooltip.folge_jahr(KuehlbedarfJahr, [this] { return tipp_bedarf_jahr(); });
    tooltip.folge_monaten(KuehlGradStundenMonat, [this](int m) { return tipp_gradstunden_monat(m); });
    tooltip.folge_jahr(KuehlGradStundenJahr, [this] { return tipp_gradstunden_jahr(); });
}

void A_Kuehlen::anordnen() {
    constexpr double links = 8;
    constexpr double jahr = links + monatsflaeche_breite + 4;
    const auto zeile = [](Bildfeld& der_monate, Bildfeld& des_jahres, double oben) {
        der_monate.lege({links, oben, monatsflaeche_breite, chart_hoehe});
        des_jahres.lege({jahr, oben, jahresflaeche_breite, chart_hoehe});
    };
    zeile(StundenProTagMonat, StundenProTagJahr, 24);
    zeile(KuehlbedarfMonat, KuehlbedarfJahr, 190);
    zeile(KuehlGradStundenMonat, KuehlGradStundenJahr, 356);
}

void A_Kuehlen::laden() {
    beschriften(ebene.name, sitzung_.p.Sprache, {&Label1, &Label10, &Label2});
}

void A_Kuehlen::aktiviert() {
    tooltip.verlassen();
    StundenProTagZeichnen();
    KuehlBedarfZeichnen();
    KuehlGradStundenZeichnen();
}

void A_Kuehlen::StundenProTagZeichnen() const {
    StundenProTagMonat.neu_zeichnen();
    StundenProTagJahr.neu_zeichnen();
}

void A_Kuehlen::KuehlBedarfZeichnen() const {
    KuehlbedarfMonat.neu_zeichnen();
    KuehlbedarfJahr.neu_zeichnen();
}

void A_Kuehlen::KuehlGradStundenZeichnen() const {
    KuehlGradStundenMonat.neu_zeichnen();
    KuehlGradStundenJahr.neu_zeichnen();
}

std::string A_Kuehlen::tipp_stunden_monat(int m) const {
    return tippmonat(sitzung_.p, m) + stundenzeile(sitzung_.p, tagesstunden(sitzung_.p, m));
}

std::string A_Kuehlen::tipp_stunden_jahr() const {
    return beschriftung(sitzung_.p, {"Jahresmittel:", "Yearly mean:"}) +
           stundenzeile(sitzung_.p, tagesstunden_im_jahr(sitzung_.p));
}

std::string A_Kuehlen::tipp_bedarf_monat(int m) const {
    const Projekt& p = sitzung_.p;
    return tippmonat(p, m) + tippzeile(Label10, monatskuehlbedarf(p, m), kwh_je_monat(p));
}

std::string A_Kuehlen::tipp_bedarf_jahr() const {
    const Projekt& p = sitzung_.p;
    return p.texte.txt_Jahresbilanz + tippzeile(Label10, jahreskuehlbedarf(p), kwh_je_jahr);
}

std::string A_Kuehlen::tipp_gradstunden_monat(int m) const {
    const Projekt& p = sitzung_.p;
    return tippmonat(p, m) + tippzeile(Label2, p.Monat(m).Kuehlgradstunden, kelvinstunden);
}

std::string A_Kuehlen::tipp_gradstunden_jahr() const {
    const Projekt& p = sitzung_.p;
    return beschriftung(p, {"Jahressumme:", "Yearly sum:"}) +
           tippzeile(Label2, summe_der_monate(p, &Monatswerte::Kuehlgradstunden), kelvinstunden);
}

}  // namespace velmaris
