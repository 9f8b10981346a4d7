#include "charts/c_sankey.h"
#include "charts/planes/A_Heizen.h"
#include "charts/planes/A_Kuehlen.h"
#include "charts/planes/A_Sankey.h"
#include "charts/planes/A_Uebersicht.h"
#include "charts/planes/A_Zoom.h"
#include "tests/charts/probe.h"

#include <gtest/gtest.h>
#include <map>
#include <utility>

namespace velmaris {
namespace {

/// The planes over a hand-filled record of March.
struct Probeebenen {
    explicit Probeebenen(const std::string& sprache = "d") : p(test::leeres_projekt(sprache)) {
        Monatswerte& m = p->Monat(3);
        m.Qv = 110, m.Qt = 220, m.Qh = 240, m.Kuehlbedarf = 1234, m.Kuehlgradstunden = 77.77F;
        m.Qs_genutzt = 50, m.Qs_brutto = 125, m.Qi_genutzt = 40, m.Qi_brutto = 60;
        m.Stunden_kalt = 372, m.Stunden_komfort = 279, m.Stunden_heiss = 93;
        p->qinfs = 11, p->qtrs = 22, p->qsols = 5.05F, p->qis = 4, p->qhs_sum = 24.06F;
    }

    std::unique_ptr<Projekt> p;
    test::Testplattform plattform;
    int berechnet = 0;
    Sitzung sitzung{*p, plattform, [this] { ++berechnet; }};
    Monatswahl monatswahl{*p};
    A_Zoom z{sitzung, monatswahl};
    A_Uebersicht u{sitzung, monatswahl, z};
    A_Heizen h{sitzung};
    A_Kuehlen k{sitzung};
    A_Sankey s{sitzung};
};

/// A tooltip text from one with '|' for a new line, '#' for the unit of a month and '@' for that of a year.
std::string tipp(std::string_view kurz) {
    std::string text;
    for (const char c : kurz)
        text += c == '|'   ? "\r"
                : c == '#' ? " kWh / (m² Monat)"
                : c == '@' ? " kWh / (m² a)"
                           : std::string(1, c);
    return text;
}

TEST(Ebenen, JedeFlaecheZeigtIhrBildMitSeinemTipp) {
    Probeebenen e;
    double zeile = 0;
    for (const auto& [feld, text] : std::vector<std::pair<Bildfeld&, const char*>>{
             {e.u.Monatsbilanz, "Monat: März| Heizwärmebedarf: 2.4#|Kühlbedarf: 12.3#"},
             {e.u.JahrBilanz, "Jahresbilanz| Heizwärmebedarf: 24.1@|Kühlbedarf: 12.3@"},
             {e.u.UeberGrafik,
              "Monat: März|Heizstunden: 372 h  (50.0 %)|Nullenergiestunden: 279 h  (37.5 %)|Kühlstunden: 93 "
              "h  (12.5 %)"},
             {e.u.UeberJahr,
              "Jahressumme|Heizstunden: 372 h  (4.2 %)|Nullenergiestunden: 279 h  (3.2 %)|Kühlstunden: 93 h  "
              "(1.1 %)"},
             {e.h.Heizbilanz,
              "Monat: März|Lüftungsverluste: 1.1#|Transm.-Verluste: 2.2#|solare Gewinne: 0.5#|interne "
              "Gewinne: 0.4#|Heizwärme: 2.4#"},
             {e.h.JahrBilanz,
              "Jahresbilanz|Lüftungsverluste: 11.0@|Transm.-Verluste: 22.0@|solare Gewinne: 5.1@|interne "
              "Gewinne: 4.0@|Heizwärme: 24.1@"},
             {e.h.NutzungsgradMonat,
              "Monat: März|Nutzbare solare Gewinne: 0.5#|Nicht nutzbare solare Gewinne: 0.8#|Nutzbare "
              "interne Gewinne: 0.4#|Nicht nutzbare interne Gewinne: 0.2#"},
             {e.h.NutzungsgradJahr,
              "Jahresbilanz|Nutzbare solare Gewinne: 0.5@|Nicht nutzbare solare Gewinne: 0.8@|Nutzbare "
              "interne Gewinne: 0.4@|Nicht nutzbare interne Gewinne: 0.2@"},
             {e.k.StundenProTagMonat, "Monat: März|Durchschnittliche Überwärmung: 3.0 Stunden pro Tag"},
             {e.k.StundenProTagJahr, "Jahresmittel:|Durchschnittliche Überwärmung: 0.3 Stunden pro Tag"},
             {e.k.KuehlbedarfMonat, "Monat: März|Kühlbedarf: 12.3#"},
             {e.k.KuehlbedarfJahr, "Jahresbilanz|Kühlbedarf: 12.3@"},
             {e.k.KuehlGradStundenMonat, "Monat: März| Kühlgradstunden: 77.8 Kh"},
             {e.k.KuehlGradStundenJahr, "Jahressumme:| Kühlgradstunden: 77.8 Kh"}}) {
        RekorderFlaeche bild(feld.lage()->breite, feld.lage()->hoehe);
        feld.zeichnen(bild);
        const bool der_monate = bild.breite() > 100;
        EXPECT_EQ(feld.lage()->links, der_monate ? 8 : 8 + 330 + 4) << feld.name;
        EXPECT_TRUE(der_monate || feld.lage()->oben == zeile) << feld.name << ": in the row of the months";
        zeile = feld.lage()->oben;
        const double x = der_monate ? 85 : 50;
        const double y = bild.lies_punkt(x, 115) == bild.hintergrund() ? 108 : 115;
        feld.maus_bewegt(x, y);
        EXPECT_TRUE(e.plattform.zeitgeber.empty()) << feld.name << ": no view yet";
        feld.lies_punkt = [&bild](double px, double py) { return bild.lies_punkt(px, py); };
        feld.maus_bewegt(x, y);
        ASSERT_FALSE(e.plattform.zeitgeber.empty()) << feld.name;
        const std::string uhr = e.plattform.zeitgeber.begin()->first;
        const Tooltip& tooltip = uhr[2] == 'U' ? e.u.tooltip : uhr[2] == 'H' ? e.h.tooltip : e.k.tooltip;
        EXPECT_EQ(tooltip.Label_Tooltip.text(), tipp(text)) << feld.name;
        feld.maus_bewegt(90, 2);
        EXPECT_TRUE(e.plattform.zeitgeber.empty()) << feld.name << ": nothing there";
    }
}

TEST(Ebenen, FassadenbalkenTeilenDenMassstabDesGroessten) {
    Probeebenen e;
    struct Fall {
        const Bildfeld& bild;
        float Projekt::*wert;
        double x;  ///< on the plane, in pairs
    };
    const Fall faelle[]{
        {e.h.Gewinne_N, &Projekt::Fenstergewinn_N, 312}, {e.h.Verluste_N, &Projekt::Fensterverlust_N, 322},
        {e.h.Gewinne_S, &Projekt::Fenstergewinn_S, 336}, {e.h.Verluste_S, &Projekt::Fensterverlust_S, 346},
        {e.h.Gewinne_O, &Projekt::Fenstergewinn_O, 360}, {e.h.Verluste_O, &Projekt::Fensterverlust_O, 370},
        {e.h.Gewinne_W, &Projekt::Fenstergewinn_W, 384}, {e.h.Verluste_W, &Projekt::Fensterverlust_W, 394}};
    for (const Fall& groesste : faelle) {
        for (std::size_t i = 0; i < 8; ++i)
            (*e.p).*faelle[i].wert = static_cast<float>(10 * i);
        (*e.p).*groesste.wert = 100;
        for (const Fall& f : faelle) {
            RekorderFlaeche bild(10, 51);
            f.bild.zeichnen(bild);
            EXPECT_EQ(bild.zeichnungen.at(0).art, Zeichnung::Art::cls);
            const Farbe farbe = f.bild.name[0] == 'G' ? farben::gelb : Farbe{0, 0, 136};
            const std::vector<test::Ecken> balken{{1, 49, 8, 50 - (*e.p).*f.wert / 2}};
            EXPECT_EQ(test::flaechen(bild, farbe), balken) << f.bild.name;
            EXPECT_EQ(bild.alle(Zeichnung::Art::kasten, farben::schwarz).at(0).zahlen, balken[0]);
            EXPECT_EQ(f.bild.lage(), (Rechteck{f.x, 424, 10, 51})) << f.bild.name;
        }
    }
}

TEST(Ebenen, JedeRoutineBestelltIhreFlaechen) {
    Probeebenen e;
    std::map<const Bildfeld*, int> bestellt;
    for (Bildfeld* bild :
         {&e.u.Temperaturen, &e.u.Monatsbilanz, &e.u.JahrBilanz, &e.u.UeberGrafik, &e.u.UeberJahr,
          &e.h.Heizbilanz, &e.h.JahrBilanz, &e.h.NutzungsgradMonat, &e.h.NutzungsgradJahr, &e.h.Gewinne_N,
          &e.h.Verluste_W, &e.k.StundenProTagMonat, &e.k.StundenProTagJahr, &e.k.KuehlbedarfMonat,
          &e.k.KuehlbedarfJahr, &e.k.KuehlGradStundenMonat, &e.k.KuehlGradStundenJahr, &e.s.Sankey,
          &e.s.Sankey_Kühlen})
        bild->ansicht = [&zahl = bestellt[bild]] { ++zahl; };
    e.u.MonatsbilanzZeichnen();
    e.u.UeberGrafikZeichnen();
    e.u.TemperaturDiagrammZeichnen();
    e.h.aktiviert();
    e.k.aktiviert();
    e.s.aktiviert();
    for (const auto& [bild, anzahl] : bestellt)
        EXPECT_EQ(anzahl, 1) << bild->name;
    for (const Feld* ebene : {&e.u.ebene, &e.z.ebene, &e.h.ebene, &e.k.ebene, &e.s.ebene})
        EXPECT_FALSE(ebene->sichtbar()) << ebene->name;
}

TEST(A_Heizen, DieTabelleZeigtDenDatensatz) {
    Probeebenen e;
    e.p->qh = 2406.4F, e.p->qsol = 505, e.p->qi = 400, e.p->qinf = 1100, e.p->qtr = 2200;
    e.h.aktiviert();
    const std::vector<std::pair<const Anzeige*, std::string>> felder{
        {&e.h.qsols_anz, "5.1 "}, {&e.h.qis_anz, "4.0 "}, {&e.h.qh_s_anz, "24.1 "}, {&e.h.qinfs_anz, "11.0 "},
        {&e.h.qtrs_anz, "22.0 "}, {&e.h.qh_anz, "2406 "}, {&e.h.qsol_anz, "505 "},  {&e.h.qi_anz, "400 "},
        {&e.h.qinf_anz, "1100 "}, {&e.h.qtr_anz, "2200 "}};
    for (const auto& [feld, text] : felder)
        EXPECT_EQ(feld->text(), text) << feld->name;
}

TEST(A_Sankey, HeizenStehtUeberKuehlenJeUnterSeinemTitel) {
    Probeebenen e;
    RekorderFlaeche heizen(sankey_breite, sankey_hoehe);
    RekorderFlaeche kuehlen(sankey_breite, sankey_hoehe);
    e.s.Sankey.zeichnen(heizen);
    e.s.Sankey_Kühlen.zeichnen(kuehlen);
    EXPECT_FALSE(test::flaechen(heizen, {255, 180, 180}).empty());
    EXPECT_TRUE(test::steht(kuehlen, "Kein Kühlbedarf vorhanden.", 142, 110));
    EXPECT_EQ(e.s.Label1.lage(), (Rechteck{4, 3, 440, 15}));
    EXPECT_EQ(e.s.Label2.lage(), (Rechteck{4, 253, 440, 15}));
    EXPECT_NE(e.s.Label1.text().find("Heizen"), std::string::npos);
}

TEST(A_Uebersicht, JederKnopfWaehltSeinenMonatInBeidenFenstern) {
    Probeebenen e("e");
    EXPECT_EQ(e.p->Monat_Uebersicht, 7);
    EXPECT_EQ(e.u.monatsleiste.AktiverMonat1.text(), "Jul.");
    e.z.anordnen(1000, 600);
    int gezeichnet = 0;
    for (Bildfeld* bild : {&e.u.Temperaturen, &e.z.Temperaturen})
        bild->ansicht = [&] { ++gezeichnet; };
    const std::array<Monatsleiste*, 2> leisten{&e.u.monatsleiste, &e.z.monatsleiste};
    for (int m = 1; m <= monate; ++m) {
        leisten[static_cast<std::size_t>(m % 2)]->knopf(m).druecke();
        EXPECT_EQ(e.p->Monat_Uebersicht, m);
        EXPECT_EQ(gezeichnet, 2 * m);
        for (Monatsleiste* leiste : leisten) {
            const Rechteck knopf = leiste->knopf(m).lage().value();
            EXPECT_EQ(leiste->knopf(m).text(), e.p->Monat(m).Kurz);
            EXPECT_EQ(leiste->AktiverMonat1.text(), e.p->Monat(m).Kurz);
            EXPECT_EQ(leiste->AktiverMonat.lage(), knopf);
            EXPECT_EQ(leiste->AktiverMonat1.lage(), (Rechteck{0, 0, knopf.breite + 1, knopf.hoehe + 1}));
        }
    }
    EXPECT_EQ(e.u.monatsleiste.knopf(2).lage(), (Rechteck{44, 163, 37, 20}));    // 8 + 35.75 to 8 + 71.5
    EXPECT_EQ(e.u.monatsleiste.knopf(12).lage(), (Rechteck{401, 163, 37, 20}));  // 8 + 393.25 to 8 + 429
    EXPECT_EQ(e.z.monatsleiste.knopf(12).lage(), (Rechteck{917, 0, 84, 22}));    // 916.67 to 1000
    EXPECT_EQ(e.berechnet, 0);
    e.p->Monat_Uebersicht = 2;
    e.u.aktiviert();
    EXPECT_EQ(e.berechnet, 1);
    EXPECT_EQ(e.u.monatsleiste.AktiverMonat1.text(), "Feb.");
    e.p->Monat_Uebersicht = 3;
    e.u.laden();
    EXPECT_EQ(e.u.monatsleiste.AktiverMonat1.text(), "Mar.");
}

TEST(A_Zoom, OeffnetMitDemStandDerUebersicht) {
    Probeebenen e("e");
    int gezeichnet = 0;
    e.z.Temperaturen.ansicht = [&] { ++gezeichnet; };
    e.p->Monat_Uebersicht = 4;
    e.u.Temperaturen.maus_geklickt(10, 10);
    EXPECT_TRUE(e.z.ebene.sichtbar());
    EXPECT_EQ(gezeichnet, 1) << "what was drawn at an earlier opening may be old";
    EXPECT_EQ(e.z.monatsleiste.AktiverMonat1.text(), "Apr.");
    EXPECT_EQ(e.z.Command_Schliessen.text(), "Close");
    e.z.anordnen(1000, 600);
    EXPECT_EQ(e.z.Temperaturen.lage(), (Rechteck{8, 22, 984, 544}));
    EXPECT_EQ(e.z.Command_Schliessen.lage(), (Rechteck{856, 567, 136, 25}));
    e.z.Command_Schliessen.druecke();
    EXPECT_FALSE(e.z.ebene.sichtbar());
}

/// The overview with its months' chart drawn on pixels that the plane reads.
class Tooltiptest : public ::testing::Test {
  protected:
    Tooltiptest() {
        u.UeberGrafik.zeichnen(bild);
        u.UeberGrafik.lies_punkt = [this](double x, double y) { return bild.lies_punkt(x, y); };
        u.tooltip.ebenenlage = [] { return Ebenenlage{.haupt = {100, 50}, .ebene = {352, 0}}; };
    }

    /// Moves over the bar of March and rests there.
    void ruhe(Bildschirmpunkt zeiger) {
        e.plattform.zeiger_ort = zeiger;
        u.UeberGrafik.maus_bewegt(90, 100);
        if (laeuft()) e.plattform.lasse_ablaufen(uhr);
    }
    [[nodiscard]] bool laeuft() const { return e.plattform.zeitgeber.contains(uhr); }
    [[nodiscard]] bool sichtbar() const { return tip.Frame_ToolTip.sichtbar(); }

    const std::string uhr = "A_Uebersicht.Timer_Tip_ein";
    Probeebenen e;
    A_Uebersicht& u = e.u;
    Tooltip& tip = u.tooltip;
    RekorderFlaeche bild;
};

TEST_F(Tooltiptest, ErscheintWennDerZeigerAufEinemBalkenRuht) {
    EXPECT_EQ(tip.Label_Tooltip.text(), "Infos");
    u.UeberGrafik.maus_bewegt(90, 100);
    EXPECT_EQ(e.plattform.zeitgeber[uhr].millisekunden, 1000);
    bild.Cls();
    tip.erneuern();
    EXPECT_TRUE(laeuft()) << "only a shown one is brought up to date";
    u.UeberGrafik.zeichnen(bild);
    e.plattform.zeiger_ort = {601, 400};
    e.plattform.lasse_ablaufen(uhr);
    EXPECT_FALSE(sichtbar()) << "the pointer has moved on";
    ruhe({600, 400});
    EXPECT_TRUE(sichtbar());
    const Rechteck lage = tip.Frame_ToolTip.lage().value();
    EXPECT_EQ(lage.links, 600 - 100 - 352 - 5);
    EXPECT_EQ(lage.oben, 400 - 50 - 20);
    EXPECT_EQ(lage.hoehe, 4 * 12.5 + 14);
    ruhe({700, 400});
    EXPECT_EQ(tip.Frame_ToolTip.lage(), lage) << "stays while the pointer goes on over bars";
    tip.Label_Tooltip_MouseDown();
    EXPECT_TRUE(sichtbar());
    tip.Label_Tooltip_MouseMove();
    EXPECT_FALSE(sichtbar());
    ruhe({440, 10});
    EXPECT_EQ(tip.Frame_ToolTip.lage()->links, 0);
    u.UeberGrafik.maus_bewegt(30, 60);  // the axis, left of January
    EXPECT_FALSE(sichtbar());
}

TEST(Tooltip, SeineArtBestimmtPlatzHoeheUndVerschwinden) {
    Probeebenen e;
    Tooltip tooltip(e.plattform, "Ebene",
                    {.platz = platz_neben_dem_zeiger, .hoehe = 72, .verbirgt_bei_druck = true});
    tooltip.ebenenlage = [] { return Ebenenlage{.haupt = {100, 50}, .ebene = {10, 0}, .hoehe = 300}; };
    tooltip.platzbedarf = [] { return Groesse{200, 20}; };
    Bildfeld bild{"Bild"};
    tooltip.folge(bild, [](double, double) { return "Text"; });
    using Fall = std::pair<Bildschirmpunkt, Rechteck>;
    // To the left with the whole width; above the pointer from 278 on, where 72 below 20 above it leave the
    // plane.
    for (const auto& [zeiger, lage] :
         {Fall{{500, 298}, {185, 228, 200, 72}}, Fall{{500, 299}, {185, 127, 200, 72}},
          Fall{{314, 100}, {0, 30, 200, 72}}}) {
        e.plattform.zeiger_ort = zeiger;
        bild.maus_bewegt(1, 1);
        e.plattform.lasse_ablaufen("Ebene.Timer_Tip_ein");
        EXPECT_EQ(tooltip.Frame_ToolTip.lage(), lage);
        tooltip.Label_Tooltip_MouseMove();
        EXPECT_TRUE(tooltip.Frame_ToolTip.sichtbar());
        tooltip.Label_Tooltip_MouseDown();
        EXPECT_FALSE(tooltip.Frame_ToolTip.sichtbar());
    }
}

}  // namespace
}  // namespace velmaris
