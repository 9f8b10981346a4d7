#include "charts/planes/A_Heizen.h"
#include "charts/planes/A_Kuehlen.h"
#include "charts/planes/A_Uebersicht.h"
#include "charts/planes/A_Zoom.h"
#include "tests/charts/probe.h"

#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace velmaris {
namespace {

/// A session over a hand-filled record of March, in one language.
struct Probesitzung {
    explicit Probesitzung(const std::string& sprache = "d") : p(test::leeres_projekt(sprache)) {
        Monatswerte& m = p->Monat(3);
        m.Qv = 110;
        m.Qt = 220;
        m.Qs_genutzt = 50;
        m.Qs_brutto = 125;
        m.Qi_genutzt = 40;
        m.Qi_brutto = 60;
        m.Qh = 240;
        m.Kuehlbedarf = 1234;
        m.Kuehlgradstunden = 77.77F;
        m.Stunden_kalt = 372;
        m.Stunden_komfort = 279;
        m.Stunden_heiss = 93;
        p->qinfs = 11;
        p->qtrs = 22;
        p->qsols = 5.05F;
        p->qis = 4;
        p->qhs_sum = 24.06F;
        p->qh = 2406.4F;
    }

    std::unique_ptr<Projekt> p;
    test::Testplattform plattform;
    int berechnet = 0;
    Sitzung sitzung{*p, plattform, [this] { ++berechnet; }};
};

TEST(Tipptexte, Deutsch) {
    Probesitzung s;
    const A_Uebersicht u(s.sitzung);
    EXPECT_EQ(u.tipp_monatsbilanz(3),
              "Monat: März\r Heizwärmebedarf: 2.4 kWh / (m² Monat)\rKühlbedarf: 12.3 kWh / (m² Monat)");
    EXPECT_EQ(u.tipp_jahrbilanz(),
              "Jahresbilanz\r Heizwärmebedarf: 24.1 kWh / (m² a)\rKühlbedarf: 12.3 kWh / (m² a)");
    EXPECT_EQ(u.tipp_uebergrafik(3),
              "Monat: März\rHeizstunden: 372 h  (50.0 %)\rNullenergiestunden: 279 h  (37.5 %)\r"
              "Kühlstunden: 93 h  (12.5 %)");
    EXPECT_EQ(u.tipp_ueberjahr(),
              "Jahressumme\rHeizstunden: 372 h  (4.2 %)\rNullenergiestunden: 279 h  (3.2 %)\r"
              "Kühlstunden: 93 h  (1.1 %)");
    const A_Heizen h(s.sitzung);
    EXPECT_EQ(h.tipp_nutzungsgrad_monat(3),
              "Monat: März\rNutzbare solare Gewinne: 0.5 kWh / (m² Monat)\r"
              "Nicht nutzbare solare Gewinne: 0.8 kWh / (m² Monat)\r"
              "Nutzbare interne Gewinne: 0.4 kWh / (m² Monat)\r"
              "Nicht nutzbare interne Gewinne: 0.2 kWh / (m² Monat)");
    const A_Kuehlen k(s.sitzung);
    EXPECT_EQ(k.tipp_bedarf_monat(3), "Monat: März\rKühlbedarf: 12.3 kWh / (m² Monat)");
    EXPECT_EQ(k.tipp_stunden_monat(3), "Monat: März\rDurchschnittliche Überwärmung: 3.0 Stunden pro Tag");
    EXPECT_EQ(k.tipp_stunden_jahr(), "Jahresmittel:\rDurchschnittliche Überwärmung: 0.3 Stunden pro Tag");
    EXPECT_EQ(k.tipp_gradstunden_monat(3), "Monat: März\r Kühlgradstunden: 77.8 Kh");
    EXPECT_EQ(k.tipp_gradstunden_jahr(), "Jahressumme:\r Kühlgradstunden: 77.8 Kh");
}

TEST(Tipptexte, Englisch) {
    Probesitzung s("e");
    const A_Uebersicht u(s.sitzung);
    EXPECT_EQ(u.tipp_ueberjahr(),
              "annual sum\rheating hours: 372 h  (4.2 %)\rzero energy hours: 279 h  (3.2 %)\r"
              "cooling hours: 93 h  (1.1 %)");
    const A_Heizen h(s.sitzung);
    EXPECT_EQ(h.tipp_heizbilanz(3),
              "month: March\rvent. losses: 1.1 kWh / (m² month)\rtransm. losses: 2.2 kWh / (m² month)\r"
              "solar gains: 0.5 kWh / (m² month)\rinternal gains: 0.4 kWh / (m² month)\r"
              "heat energy: 2.4 kWh / (m² month)");
    EXPECT_EQ(
        h.tipp_jahrbilanz(),
        "yearly balance\rvent. losses: 11.0 kWh / (m² a)\rtransm. losses: 22.0 kWh / (m² a)\r"
        "solar gains: 5.1 kWh / (m² a)\rinternal gains: 4.0 kWh / (m² a)\rheat energy: 24.1 kWh / (m² a)");
    EXPECT_EQ(
        h.tipp_nutzungsgrad_jahr(),
        "yearly balance\rusable solar gains: 0.5 kWh / (m² a)\rnon usable solar gains: 0.8 kWh / (m² a)\r"
        "usable internal gains: 0.4 kWh / (m² a)\rnon usable internal gains: 0.2 kWh / (m² a)");
    const A_Kuehlen k(s.sitzung);
    EXPECT_EQ(k.tipp_bedarf_jahr(), "yearly balance\rcooling demand: 12.3 kWh / (m² a)");
    EXPECT_EQ(k.tipp_stunden_monat(3), "month: March\rAverage time of overheating: 3.0 hours per day");
    EXPECT_EQ(k.tipp_stunden_jahr(), "Yearly mean:\rAverage time of overheating: 0.3 hours per day");
    EXPECT_EQ(k.tipp_gradstunden_jahr(), "Yearly sum:\rcooling degree hours: 77.8 Kh");
}

TEST(Ebenen, JedeFlaecheZeichnetIhrDiagramm) {
    Probesitzung s;
    A_Uebersicht u(s.sitzung);
    A_Heizen h(s.sitzung);
    A_Kuehlen k(s.sitzung);
    struct Fall {
        const Bildfeld& bild;
        const char* kennzeichen;  ///< a text that only this chart shows at its scale
        Farbe balken;
    };
    for (const Fall& f :
         {Fall{u.Monatsbilanz, " 25", farben::blau}, Fall{u.JahrBilanz, " 25", farben::blau},
          Fall{u.UeberGrafik, " 800", farben::gelb}, Fall{u.UeberJahr, " 8800", farben::gelb},
          Fall{h.Heizbilanz, " 5", {0, 0, 136}}, Fall{h.JahrBilanz, " 10", {102, 102, 255}},
          Fall{h.NutzungsgradMonat, " 5", {192, 192, 0}}, Fall{h.NutzungsgradJahr, " 5", {200, 99, 0}},
          Fall{k.StundenProTagMonat, " 4", {128, 0, 0}},
          Fall{k.StundenProTagJahr, "Jahresmittel", {128, 0, 0}},
          Fall{k.KuehlbedarfMonat, " 25", farben::blau},
          Fall{k.KuehlbedarfJahr, "Jahresbilanz", farben::blau},
          Fall{k.KuehlGradStundenMonat, " 100", {64, 64, 0}},
          Fall{k.KuehlGradStundenJahr, "Jahressumme", {64, 64, 0}}}) {
        ASSERT_TRUE(f.bild.lage());
        RekorderFlaeche bild(f.bild.lage()->breite, f.bild.lage()->hoehe);
        f.bild.zeichnen(bild);
        const auto texte = bild.texte();
        EXPECT_NE(std::find(texte.begin(), texte.end(), f.kennzeichen), texte.end()) << f.bild.name;
        EXPECT_FALSE(test::flaechen(bild, f.balken).empty()) << f.bild.name;
    }
}

TEST(Ebenen, FassadenbalkenZeigenIhreFassade) {
    Probesitzung s;
    A_Heizen h(s.sitzung);
    Projekt& p = *s.p;
    p.Fenstergewinn_N = 10, p.Fenstergewinn_S = 20, p.Fenstergewinn_O = 30, p.Fenstergewinn_W = 40;
    p.Fensterverlust_N = 50, p.Fensterverlust_S = 60, p.Fensterverlust_O = 70, p.Fensterverlust_W = 100;
    struct Fall {
        const Bildfeld& bild;
        Farbe farbe;
        double y;
    };
    const Farbe blau{0, 0, 136};
    for (const Fall& f : {Fall{h.Gewinne_N, farben::gelb, 45}, Fall{h.Gewinne_S, farben::gelb, 40},
                          Fall{h.Gewinne_O, farben::gelb, 35}, Fall{h.Gewinne_W, farben::gelb, 30},
                          Fall{h.Verluste_N, blau, 25}, Fall{h.Verluste_S, blau, 20},
                          Fall{h.Verluste_O, blau, 15}, Fall{h.Verluste_W, blau, 0}}) {
        RekorderFlaeche bild(f.bild.lage()->breite, f.bild.lage()->hoehe);
        f.bild.zeichnen(bild);
        EXPECT_EQ(test::flaechen(bild, f.farbe), (std::vector<test::Ecken>{{1, 49, 8, f.y}})) << f.bild.name;
    }
}

TEST(Ebenen, DieRoutinenBestellenIhreFlaechen) {
    Probesitzung s;
    A_Uebersicht u(s.sitzung);
    A_Heizen h(s.sitzung);
    A_Kuehlen k(s.sitzung);
    std::string bestellt;
    for (Bildfeld* bild :
         {&u.Temperaturen, &u.Monatsbilanz, &u.JahrBilanz, &u.UeberGrafik, &u.UeberJahr, &h.Heizbilanz,
          &h.Gewinne_N, &h.Verluste_W, &h.NutzungsgradMonat, &h.NutzungsgradJahr, &k.StundenProTagMonat,
          &k.StundenProTagJahr, &k.KuehlbedarfMonat, &k.KuehlbedarfJahr, &k.KuehlGradStundenMonat,
          &k.KuehlGradStundenJahr})
        bild->ansicht = [bild, &bestellt] { bestellt += bild->name + " "; };
    u.MonatsbilanzZeichnen();
    u.UeberGrafikZeichnen();
    h.FassadenbalkenZeichnen();
    h.HeizbilanzZeichnen();
    h.NutzungsgradZeichnen();
    EXPECT_EQ(bestellt,
              "Monatsbilanz JahrBilanz UeberGrafik UeberJahr Gewinne_N Verluste_W Heizbilanz "
              "NutzungsgradMonat NutzungsgradJahr ");
    bestellt.clear();
    k.aktiviert();
    EXPECT_EQ(bestellt,
              "StundenProTagMonat StundenProTagJahr KuehlbedarfMonat KuehlbedarfJahr "
              "KuehlGradStundenMonat KuehlGradStundenJahr ");
}

TEST(A_Heizen, DieFelderEndenMitEinemBlank) {
    Probesitzung s;
    A_Heizen h(s.sitzung);
    h.HeizFelderAusfuellen();
    EXPECT_EQ(h.qh_s_anz.text(), "24.1 ");
    EXPECT_EQ(h.qh_anz.text(), "2406 ");
    EXPECT_EQ(h.qinfs_anz.text(), "11.0 ");
    EXPECT_EQ(h.qtr_anz.text(), "0 ");
    EXPECT_EQ(h.Label2.text(), " Heizwärmebedarf:");
}

TEST(A_Uebersicht, EinMonatsknopfWaehltUndWirdMarkiert) {
    Probesitzung s;
    s.p->Monat_Uebersicht = 2;
    A_Uebersicht u(s.sitzung);
    EXPECT_EQ(s.p->Monat_Uebersicht, 7);
    EXPECT_EQ(u.monatsleiste.AktiverMonat1.text(), "Jul.");
    int gezeichnet = 0;
    u.Temperaturen.ansicht = [&] { ++gezeichnet; };
    u.monatsleiste.knopf(5).druecke();
    EXPECT_EQ(s.p->Monat_Uebersicht, 5);
    EXPECT_EQ(gezeichnet, 1);
    EXPECT_EQ(u.monatsleiste.AktiverMonat1.text(), "Mai");
    EXPECT_EQ(u.monatsleiste.AktiverMonat.lage(), u.monatsleiste.knopf(5).lage());
    EXPECT_EQ(u.monatsleiste.AktiverMonat1.lage()->breite, u.monatsleiste.knopf(5).lage()->breite + 1);
    EXPECT_EQ(s.berechnet, 0);
    u.aktiviert();
    EXPECT_EQ(s.berechnet, 1);
}

TEST(A_Zoom, TeiltDenMonatUndDieFensterbreite) {
    Probesitzung s("e");
    A_Uebersicht u(s.sitzung);
    A_Zoom z(s.sitzung, u.monatswahl);
    u.zoom_oeffnen = [&] { z.oeffnen(); };
    int klein = 0;
    int gross = 0;
    u.Temperaturen.ansicht = [&] { ++klein; };
    z.Temperaturen.ansicht = [&] { ++gross; };
    u.Temperaturen.maus_geklickt(10, 10);
    EXPECT_TRUE(z.ebene.sichtbar());
    EXPECT_EQ(gross, 1) << "what was drawn at an earlier opening may be old";
    EXPECT_EQ(z.monatsleiste.AktiverMonat1.text(), "Jul.");
    EXPECT_EQ(z.Command_Schliessen.text(), "Close");

    z.anordnen(1000, 600);
    EXPECT_EQ(z.Temperaturen.lage()->breite, 984);
    EXPECT_EQ(z.Temperaturen.lage()->hoehe, 544);
    EXPECT_EQ(z.Command_Schliessen.lage()->links, 856);
    EXPECT_EQ(z.Command_Schliessen.lage()->oben, 567);
    EXPECT_EQ(z.monatsleiste.knopf(1).lage()->breite, 84);  // 0 to 83
    EXPECT_EQ(z.monatsleiste.knopf(2).lage()->links, 83);
    EXPECT_EQ(z.monatsleiste.knopf(12).lage()->links, 917);  // 916.67
    EXPECT_EQ(z.monatsleiste.knopf(12).lage()->breite, 84);

    struct Wahl {
        Monatsleiste& leiste;
        int monat;
        const char* name;
    };
    klein = gross = 0;
    for (const Wahl& wahl : {Wahl{z.monatsleiste, 12, "Dec."}, Wahl{u.monatsleiste, 3, "Mar."}}) {
        wahl.leiste.knopf(wahl.monat).druecke();
        EXPECT_EQ(s.p->Monat_Uebersicht, wahl.monat);
        for (Monatsleiste* leiste : {&u.monatsleiste, &z.monatsleiste}) {
            EXPECT_EQ(leiste->AktiverMonat1.text(), wahl.name);
            EXPECT_EQ(leiste->AktiverMonat.lage(), leiste->knopf(wahl.monat).lage());
        }
    }
    EXPECT_EQ(klein, 2);
    EXPECT_EQ(gross, 2);
    z.Command_Schliessen.druecke();
    EXPECT_FALSE(z.ebene.sichtbar());
}

/// The overview with its months' chart drawn on pixels that the plane reads.
class Tooltiptest : public ::testing::Test {
  protected:
    Tooltiptest() {
        u.UeberGrafik.zeichnen(bild);
        u.UeberGrafik.lies_punkt = [this](double x, double y) { return bild.lies_punkt(x, y); };
        u.tooltip.ebenenlage = [] { return Ebenenlage{.haupt = {100, 50}, .ebene = {352, 0}}; };
    }

    void bewege(double x, double y) { u.UeberGrafik.maus_bewegt(x, y); }
    [[nodiscard]] bool laeuft() const { return s.plattform.zeitgeber.contains(uhr); }
    [[nodiscard]] bool sichtbar() const { return u.tooltip.Frame_ToolTip.sichtbar(); }

    const std::string uhr = "A_Uebersicht.Timer_Tip_ein";
    Probesitzung s;
    A_Uebersicht u{s.sitzung};
    RekorderFlaeche bild;
};

TEST_F(Tooltiptest, ErscheintWennDerZeigerAufEinemBalkenRuht) {
    EXPECT_EQ(u.tooltip.Label_Tooltip.text(), "Infos");
    s.plattform.zeiger_ort = {600, 400};
    bewege(90, 100);
    ASSERT_TRUE(laeuft());
    EXPECT_FALSE(sichtbar());
    s.plattform.lasse_ablaufen(uhr);
    EXPECT_TRUE(sichtbar());
    EXPECT_EQ(u.tooltip.Label_Tooltip.text(), u.tipp_uebergrafik(3));
    const Rechteck lage = u.tooltip.Frame_ToolTip.lage().value();
    EXPECT_EQ(lage.links, 143);
    EXPECT_EQ(lage.oben, 330);
    EXPECT_EQ(lage.hoehe, 64);
    bewege(92, 100);
    EXPECT_FALSE(laeuft());
    u.tooltip.Label_Tooltip_MouseMove();
    EXPECT_FALSE(sichtbar());
}

TEST_F(Tooltiptest, EinBewegterZeigerZeigtNichts) {
    s.plattform.zeiger_ort = {600, 400};
    bewege(90, 100);
    s.plattform.zeiger_ort = {601, 400};
    s.plattform.lasse_ablaufen(uhr);
    EXPECT_FALSE(sichtbar());
    bewege(90, 100);
    EXPECT_TRUE(laeuft());
}

TEST_F(Tooltiptest, AufDemGrundUndNebenDenMonatenVerschwindetEr) {
    s.plattform.zeiger_ort = {440, 10};
    bewege(90, 100);
    s.plattform.lasse_ablaufen(uhr);
    EXPECT_EQ(u.tooltip.Frame_ToolTip.lage()->links, 0);
    bewege(110, 100);
    EXPECT_FALSE(sichtbar());
    bewege(90, 100);
    EXPECT_TRUE(laeuft());
    bewege(30, 60);  // the axis, left of January
    EXPECT_FALSE(laeuft());
}

TEST_F(Tooltiptest, NimmtPlatzFuerSeinenTextUndBleibtNichtStehen) {
    s.plattform.zeiger_ort = {600, 400};
    bewege(90, 100);
    s.plattform.lasse_ablaufen(uhr);
    Groesse bedarf{260, 70};
    u.tooltip.platzbedarf = [&] { return bedarf; };
    bewege(92, 100);
    EXPECT_EQ(u.tooltip.Frame_ToolTip.lage(), (Rechteck{143, 330, 260, 70}));
    s.p->Monat(3).Stunden_kalt = 100;
    bedarf.breite = 300;
    u.tooltip.erneuern();
    EXPECT_EQ(u.tooltip.Frame_ToolTip.lage()->breite, 300);
    EXPECT_EQ(u.tooltip.Label_Tooltip.text(), u.tipp_uebergrafik(3)) << "recalculated under the pointer";
    bild.Cls();
    u.tooltip.erneuern();
    EXPECT_FALSE(sichtbar()) << "the bar has gone";

    u.UeberGrafik.zeichnen(bild);
    for (const bool gezeigt : {false, true}) {
        for (const auto& fort : std::vector<std::function<void()>>{
                 [&] { u.aktiviert(); }, [&] { bewege(-1, -1); }, [&] { u.tooltip.verlassen(); }}) {
            bewege(90, 100);
            if (gezeigt) s.plattform.lasse_ablaufen(uhr);
            ASSERT_EQ(sichtbar(), gezeigt);
            fort();
            EXPECT_FALSE(sichtbar());
            EXPECT_FALSE(laeuft());
        }
    }
}

TEST_F(Tooltiptest, OhneAnsichtGibtEsKeinen) {
    u.JahrBilanz.maus_bewegt(60, 100);
    EXPECT_FALSE(laeuft());
}

}  // namespace
}  // namespace velmaris
