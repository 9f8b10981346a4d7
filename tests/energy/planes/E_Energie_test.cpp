#include "energy/planes/E_Energie.h"

#include "language/c_Sprache.h"
#include "tests/testplattform.h"
#include "toolkit/fehler.h"

#include <gtest/gtest.h>
#include <memory>

namespace velmaris {
namespace {

using test::Testplattform;

/// A plane on a project of 150 m2 with 50 kWh/(m2 a) of heat: 1500 kWh in January, 6000 in December.
class Energieebene : public testing::Test {
  protected:
    Energieebene() { beginne("d"); }

    void beginne(const std::string& sprache) {
        p->Sprache = sprache;
        sprachtexte_setzen(*p);
        p->f_nutz = 150;
        p->qhs_sum = 50;
        p->Monat(1).Qh = 1500;
        p->Monat(12).Qh = 6000;
        waehle(1, 1, 1);
        ebene = std::make_unique<E_Energie>(sitzung);
        ebene->EnergRefresh();
    }

    void waehle(std::int16_t system, std::int16_t uebergabe, std::int16_t traeger) {
        p->Heizsystem = system;
        p->Uebergabe = uebergabe;
        p->Energietraeger = traeger;
    }

    /// Presses the button beside a field and takes entry i.
    void klicke(Knopf E_Energie::*knopf, int i) {
        ((*ebene).*knopf).druecke();
        ebene->Label_Auswahl_Click(i);
    }

    std::string wahl() const {
        return std::to_string(p->Heizsystem) + std::to_string(p->Uebergabe) +
               std::to_string(p->Energietraeger);
    }

    std::unique_ptr<Projekt> p = std::make_unique<Projekt>();
    Testplattform plattform;
    int berechnet = 0;
    Sitzung sitzung{*p, plattform, [this] {
                        ++berechnet;
                        ebene->EnergRefresh();
                    }};
    std::unique_ptr<E_Energie> ebene;
};

TEST_F(Energieebene, ZeigtDieBilanz) {
    // (50 + 1.1 + 2.5) * 1.08 = 57.888, 1.24 + 0.66 = 1.9, * 1.1 and * 3
    const std::vector<std::pair<const Anzeige*, std::string>> felder{
        {&ebene->anz_qhs_sum, "50.0"},
        {&ebene->anz_q_verlust, "3.6"},
        {&ebene->anz_e_g, "1.08"},
        {&ebene->anz_q_HE_Energieträger, "57.9"},
        {&ebene->anz_q_HE_Strom, "1.9"},
        {&ebene->anz_q_PE_Energieträger, "63.7"},
        {&ebene->anz_q_PE_Strom, "5.7"},
        {&ebene->anz_Primärenergiefaktor_Energieträger, "1.1"},
        {&ebene->anz_Primärenergiefaktor_Strom, "3.0"},
        {&ebene->anz_q_ce, "1.1"},
        {&ebene->anz_q_d, "2.5"},
        {&ebene->anz_q_s, "0.0"},
        {&ebene->anz_q_d_he, "1.2"},
        {&ebene->anz_q_s_he, "0.0"},
        {&ebene->anz_q_g_he, "0.7"},
    };
    for (const auto& [feld, text] : felder)
        EXPECT_EQ(feld->text(), text) << feld->name;
    EXPECT_EQ(ebene->Label8.text(), "Heizenergiebedarf (Heizöl):");
    EXPECT_EQ(ebene->Label21.text(), "Primärenergiebedarf (Heizöl):");
    EXPECT_EQ(ebene->Label27.text(), "Heizöl:");
    EXPECT_EQ(ebene->Label30.text(), "Verluste Verteilung && Speicherung:");
    EXPECT_EQ(ebene->Label6.text(), "kWh/(m² a)");
    EXPECT_EQ(ebene->Label_Energieträger.text(), "Heizöl EL");
    EXPECT_FALSE(ebene->ebene.sichtbar());
    for (const Anzeige* verdeckt : {&ebene->anz_q_ce, &ebene->anz_q_d, &ebene->anz_q_s, &ebene->anz_q_d_he,
                                    &ebene->anz_q_s_he, &ebene->anz_q_g_he})
        EXPECT_FALSE(verdeckt->sichtbar()) << verdeckt->name;
}

TEST_F(Energieebene, OhneBedarfZeigtNull) {
    p->qhs_sum = 0;
    ebene->EnergRefresh();
    EXPECT_EQ(ebene->anz_qhs_sum.text(), "0.0");
    EXPECT_EQ(ebene->anz_q_verlust.text(), "0.0");
    EXPECT_EQ(ebene->anz_e_g.text(), "1.08");
}

TEST_F(Energieebene, StromHatEineEinzigeZeile) {
    const auto strom_zeilen = [&] {
        return std::vector<bool>{ebene->Label14.sichtbar(), ebene->Label6.sichtbar(),
                                 ebene->anz_q_PE_Strom.sichtbar(), ebene->Label34.sichtbar(),
                                 ebene->anz_Primärenergiefaktor_Strom.sichtbar()};
    };
    EXPECT_EQ(strom_zeilen(), std::vector<bool>(5, true));
    waehle(7, 2, 1);
    ebene->EnergRefresh();
    EXPECT_EQ(strom_zeilen(), std::vector<bool>(5, false));
    // (51.8 * 0.23 + 3.981183) * 3
    EXPECT_EQ(ebene->anz_q_PE_Energieträger.text(), "47.7");
    EXPECT_EQ(ebene->anz_Primärenergiefaktor_Energieträger.text(), "3.0");
    EXPECT_EQ(ebene->Label27.text(), "Strom:");
    waehle(6, 2, 4);
    ebene->EnergRefresh();
    EXPECT_EQ(strom_zeilen(), std::vector<bool>(5, true));
}

TEST_F(Energieebene, SprichtEnglisch) {
    beginne("e");
    const std::vector<std::pair<const Anzeige*, std::string>> texte{
        {&ebene->Label1, "heating system"},
        {&ebene->Label3, "heat transfer / system temperature"},
        {&ebene->Label2, "source of energy"},
        {&ebene->Label11, "heat energy demand:"},
        {&ebene->Label30, "losses of distribution and storage:"},
        {&ebene->Label16, "expense number of heat generation:"},
        {&ebene->Label33, "auxiliary energy demand (electricity):"},
        {&ebene->Label14, "primary energy demand (electricity):"},
        {&ebene->Label34, "electricity"},
        {&ebene->Frame1, "end energy demand"},
        {&ebene->Frame8, "primary energy factors"},
        {&ebene->Monatsverbrauch, "monthly end and primary energy demand in kWh/(m² month)"},
        {&ebene->Label8, "heating energy demand (fuel oil):"},
        {&ebene->Label21, "primary energy demand (fuel oil):"},
        {&ebene->Label27, "fuel oil:"},
        {&ebene->Label_Energieträger, "fuel oil"},
    };
    for (const auto& [feld, text] : texte)
        EXPECT_EQ(feld->text(), text) << feld->name;
}

TEST_F(Energieebene, ZeichnetNurWennSieZuSehenIst) {
    int gezeichnet = 0;
    for (Bildfeld* bild : {&ebene->Picture2, &ebene->Picture3, &ebene->Monatsübersicht_Energieträger})
        bild->ansicht = [&] { ++gezeichnet; };
    ebene->EnergRefresh();
    EXPECT_EQ(gezeichnet, 0);
    ebene->ebene.zeige(true);
    ebene->aktiviert();
    EXPECT_EQ(berechnet, 1);
    EXPECT_GE(gezeichnet, 3);
}

TEST_F(Energieebene, FalscherIndexLaesstDieEbeneStehen) {
    waehle(1, 1, 3);
    EXPECT_THROW(ebene->EnergRefresh(), Laufzeitfehler);
    EXPECT_EQ(ebene->anz_q_HE_Energieträger.text(), "57.9");
    EXPECT_EQ(ebene->Label_Energieträger.text(), "Heizöl EL");
    p->FormLoadGuard = -1;
    sitzung.alles_berechnen = [] {};
    EXPECT_NO_THROW(ebene->aktiviert()) << "what a failed opening has left";
}

/// How many entries the open list shows.
int eintraege(Auswahlrahmen& rahmen) {
    int zahl = 0;
    for (int i = 1; i <= 9; ++i)
        zahl += rahmen.Label_Auswahl(i).sichtbar() ? 1 : 0;
    return zahl;
}

TEST_F(Energieebene, ListenBietenNurWasEsGibt) {
    struct Fall {
        std::int16_t system;
        int uebergaben, traeger;
    };
    for (const Fall& f :
         std::vector<Fall>{{1, 2, 2}, {4, 2, 2}, {5, 2, 1}, {6, 2, 4}, {7, 2, 1}, {8, 0, 1}, {9, 0, 1}}) {
        waehle(f.system, 1, 1);
        ebene->Command1.druecke();
        EXPECT_EQ(eintraege(ebene->Auswahl), 9);
        ebene->Command2.druecke();
        EXPECT_EQ(eintraege(ebene->Auswahl), f.uebergaben);
        ebene->Command3.druecke();
        EXPECT_EQ(eintraege(ebene->Auswahl), f.traeger);
    }
}

TEST_F(Energieebene, WahlSpeichertUndRechnetOhneDenMerkerGeaendert) {
    klicke(&E_Energie::Command1, 6);
    EXPECT_EQ(wahl(), "611");
    EXPECT_EQ(berechnet, 1);
    klicke(&E_Energie::Command3, 4);
    klicke(&E_Energie::Command2, 2);
    EXPECT_EQ(wahl(), "624");
    EXPECT_EQ(ebene->Label_Energieträger.text(), "Wärme aus Heizkraftwerken, erneuerbarer Brennstoff");
    EXPECT_EQ(ebene->anz_Primärenergiefaktor_Energieträger.text(), "0.1");
    klicke(&E_Energie::Command1, 1);
    EXPECT_EQ(wahl(), "111");
    EXPECT_EQ(ebene->Label_Energieträger.text(), "Heizöl EL");
    klicke(&E_Energie::Command1, 9);
    EXPECT_EQ(ebene->Label_Übergabe.text(), "");
    EXPECT_EQ(berechnet, 5);
    EXPECT_EQ(p->Geaendert, 0);
    EXPECT_FALSE(ebene->Auswahl.Frame_Auswahl.sichtbar());
}

/// The row of the record counts, not what the list shows.
TEST_F(Energieebene, WasDieZeileNichtBietetIstKeineWahl) {
    struct Fall {
        Knopf E_Energie::*knopf;
        std::int16_t davor, jetzt;  // heating systems, at the opening of the list and at the click
        int eintrag;
    };
    for (const Fall& fall : {Fall{&E_Energie::Command3, 5, 5, 2},
                             {&E_Energie::Command3, 6, 1, 4},
                             {&E_Energie::Command3, 1, 7, 2},
                             {&E_Energie::Command3, 1, 4, 2},  // another text in the same place
                             {&E_Energie::Command2, 1, 8, 2},
                             {&E_Energie::Command2, 8, 8, 1},  // no list at all
                             {&E_Energie::Command3, 1, 12, 1}}) {
        waehle(fall.davor, 1, 1);
        ((*ebene).*fall.knopf).druecke();
        p->Heizsystem = fall.jetzt;
        ebene->Label_Auswahl_Click(fall.eintrag);
        EXPECT_EQ(wahl(), std::to_string(fall.jetzt) + "11") << fall.davor;
        EXPECT_FALSE(ebene->Auswahl.offen());
    }
    EXPECT_EQ(berechnet, 0);
}

TEST_F(Energieebene, KnopfKlapptSeineListeAufUndZu) {
    const auto offen = [&] { return ebene->Auswahl.offen() ? ebene->Auswahl.feld() : std::string(); };
    EXPECT_EQ(offen(), "");
    ebene->Command1.druecke();
    EXPECT_EQ(offen(), "Label_System");
    ebene->Command1.druecke();
    EXPECT_EQ(offen(), "");
    ebene->Command3.druecke();
    ebene->Command2.druecke();
    EXPECT_EQ(offen(), "Label_Übergabe");
    ebene->Frame_Auswahl_Click();
    EXPECT_EQ(offen(), "");
    EXPECT_EQ(wahl(), "111");
    EXPECT_EQ(berechnet, 0);
    ebene->Command2.druecke();
    waehle(8, 1, 1);
    ebene->EnergRefresh();
    EXPECT_EQ(offen(), "") << "closed by a choice from elsewhere";
    ebene->Command3.druecke();
    ebene->Command2.druecke();
    EXPECT_EQ(offen(), "") << "nothing to choose from";
    ebene->Command1.druecke();
    ebene->eingaben_anzeigen();
    EXPECT_EQ(offen(), "") << "closed by a project";
}

TEST_F(Energieebene, MarkeBeginntBeiDerWahlUndBleibtInDerListe) {
    Auswahlrahmen& rahmen = ebene->Auswahl;
    waehle(6, 2, 3);
    ebene->Command3.druecke();
    EXPECT_EQ(rahmen.marke(), 3);
    for (const auto& [schritte, marke] :
         std::vector<std::pair<int, int>>{{-1, 2}, {-5, 1}, {-1, 1}, {2, 3}, {9, 4}, {1, 4}, {0, 4}}) {
        rahmen.ruecke(schritte);
        EXPECT_EQ(rahmen.marke(), marke) << schritte;
    }
    rahmen.markiere(5);
    EXPECT_EQ(rahmen.marke(), 4) << "a hidden entry";
    ebene->Command2.druecke();
    EXPECT_EQ(rahmen.marke(), 2);
    rahmen.schliesse();
    rahmen.markiere(1);
    EXPECT_EQ(rahmen.marke(), 0);
}

TEST_F(Energieebene, EintraegeStapelnSichNachIhrerHoehe) {
    ebene->Auswahl.unterkante = [&](const Anzeige& feld) {
        return &feld == &ebene->Label_Übergabe ? Platz{240, 1500} : Platz{};
    };
    ebene->Auswahl.eintragshoehe = [](const Anzeige& eintrag) {
        return eintrag.text().starts_with("Heizflächen") ? 585.0 : 390.0;
    };
    ebene->Command2.druecke();
    Auswahlrahmen& rahmen = ebene->Auswahl;
    EXPECT_EQ(rahmen.Label_Auswahl(1).platz(), (Platz{0, 0}));
    EXPECT_EQ(rahmen.Label_Auswahl(2).platz(), (Platz{0, 705}));
    EXPECT_EQ(rahmen.hoehe(), 705 + 390 + 120);
    EXPECT_EQ(rahmen.platz(), (Platz{240, 1500}));
    // Nine entries of one line: 9 * 195 + 8 * 120, and the gap below.
    rahmen.eintragshoehe = nullptr;
    ebene->Command1.druecke();
    EXPECT_EQ(rahmen.hoehe(), 9 * 195 + 9 * 120);
}

TEST_F(Energieebene, TooltipText) {
    EXPECT_EQ(ebene->tooltip_text(1),
              "Monat: Januar\rHeizenergiebedarf (Heizöl):: 11.6 kWh / (m² Monat)\r"
              "Hilfsenergiebedarf (Strom):: 0.4 kWh / (m² Monat)\r"
              "Primärenergiebedarf (Heizöl):: 12.7 kWh / (m² Monat)\r"
              "Primärenergiebedarf (Strom):: 1.1 kWh / (m² Monat)");
    beginne("e");
    EXPECT_EQ(ebene->tooltip_text(12),
              "month: December\rheating energy demand (fuel oil):: 46.3 kWh / (m² month)\r"
              "auxiliary energy demand (electricity):: 1.5 kWh / (m² month)\r"
              "primary energy demand (fuel oil):: 50.9 kWh / (m² month)\r"
              "primary energy demand (electricity):: 4.6 kWh / (m² month)");
    waehle(7, 2, 1);
    ebene->EnergRefresh();
    EXPECT_EQ(ebene->tooltip_text(12),
              "month: December\rheating energy demand (electricity):: 12.7 kWh / (m² month)\r"
              "primary energy demand (electricity):: 38.1 kWh / (m² month)");
}

constexpr const char* zeitgeber = "E_Energie.Timer_Tip_ein";

TEST_F(Energieebene, TooltipErscheintWennDerZeigerRuht) {
    const auto bewege = [&](double x, double y) { ebene->Monatsübersicht_Energieträger.maus_bewegt(x, y); };
    Tooltip& tooltip = ebene->tooltip;
    tooltip.ebenenlage = [] { return Ebenenlage{.haupt = {}, .ebene = {0, 25}, .hoehe = 500}; };
    Groesse bedarf{280, 60};
    tooltip.platzbedarf = [&] { return bedarf; };
    plattform.zeiger_ort = {300, 400};
    bewege(310, 94);
    ASSERT_EQ(plattform.zeitgeber.count(zeitgeber), 1U);
    EXPECT_EQ(plattform.zeitgeber[zeitgeber].millisekunden, 1000);
    EXPECT_FALSE(tooltip.Frame_ToolTip.sichtbar());
    EXPECT_TRUE(tooltip.Label_Tooltip.text().starts_with("Monat: Dezember\r"));

    plattform.zeiger_ort = {301, 400};
    plattform.lasse_ablaufen(zeitgeber);
    EXPECT_FALSE(tooltip.Frame_ToolTip.sichtbar());

    bewege(310, 94);
    plattform.lasse_ablaufen(zeitgeber);
    EXPECT_TRUE(tooltip.Frame_ToolTip.sichtbar());
    // As wide as its text asks for, and as high as told.
    EXPECT_EQ(tooltip.Frame_ToolTip.lage(), (Rechteck{16, 355, 280, 72}));

    bewege(36, 94);
    EXPECT_TRUE(plattform.zeitgeber.empty());
    EXPECT_TRUE(tooltip.Label_Tooltip.text().starts_with("Monat: Januar\r"));
    tooltip.Label_Tooltip_MouseMove();
    EXPECT_TRUE(tooltip.Frame_ToolTip.sichtbar());
    bedarf = {290, 90};
    tooltip.erneuern();
    EXPECT_EQ(tooltip.Frame_ToolTip.lage(), (Rechteck{6, 355, 290, 90})) << "a longer text";
    tooltip.Label_Tooltip_MouseDown();
    EXPECT_FALSE(tooltip.Frame_ToolTip.sichtbar());

    bewege(36, 94);
    EXPECT_EQ(plattform.zeitgeber.size(), 1U);
    bewege(60, 94);  // February has no column
    EXPECT_TRUE(plattform.zeitgeber.empty());
}

TEST(Tippplatz, BleibtAufDerEbene) {
    struct Fall {
        Bildschirmpunkt zeiger;
        Platz platz;
    };
    // Main window at (100, 50), plane at (0, 25) in it, 500 pixels high, panel 200 wide and 72 high.
    const Ebenenlage lage{.haupt = {100, 50}, .ebene = {0, 25}, .hoehe = 500};
    for (const Fall& f : std::vector<Fall>{{{400, 200}, {95, 105}},
                                           {{305, 200}, {0, 105}},
                                           {{250, 200}, {0, 105}},
                                           {{400, 523}, {95, 428}},     // ends at 500, just inside
                                           {{400, 524}, {95, 327}}}) {  // 449 - 50 - 72
        EXPECT_EQ(platz_neben_dem_zeiger(f.zeiger, lage, {200, 72}), f.platz)
            << f.zeiger.x << "," << f.zeiger.y;
    }
}

}  // namespace
}  // namespace velmaris
