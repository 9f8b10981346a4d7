#include "energy/planes/E_Energie.h"

#include "language/c_Sprache.h"
#include "tests/testplattform.h"
#include "toolkit/fehler.h"

#include <gtest/gtest.h>
#include <initializer_list>
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

/// The texts of the displays, joined by "|".
std::string texte(std::initializer_list<const Anzeige*> anzeigen) {
    std::string alle;
    for (const Anzeige* anzeige : anzeigen)
        alle += anzeige->text() + "|";
    return alle;
}

TEST_F(Energieebene, ZeigtDieBilanz) {
    // (50 + 1.1 + 2.5) * 1.08 = 57.888, 1.24 + 0.66 = 1.9, * 1.1 and * 3
    E_Energie& e = *ebene;
    EXPECT_EQ(texte({&e.anz_qhs_sum, &e.anz_q_verlust, &e.anz_e_g}), "50.0|3.6|1.08|");
    EXPECT_EQ(texte({&e.anz_q_HE_Energieträger, &e.anz_q_HE_Strom}), "57.9|1.9|");
    EXPECT_EQ(texte({&e.anz_q_PE_Energieträger, &e.anz_q_PE_Strom}), "63.7|5.7|");
    EXPECT_EQ(texte({&e.anz_Primärenergiefaktor_Energieträger, &e.anz_Primärenergiefaktor_Strom}),
              "1.1|3.0|");
    const std::initializer_list<const Anzeige*> verdeckt{&e.anz_q_ce,   &e.anz_q_d,    &e.anz_q_s,
                                                         &e.anz_q_d_he, &e.anz_q_s_he, &e.anz_q_g_he};
    EXPECT_EQ(texte(verdeckt), "1.1|2.5|0.0|1.2|0.0|0.7|");
    EXPECT_EQ(texte({&e.Label8, &e.Label21, &e.Label27}),
              "Heizenergiebedarf (Heizöl):|Primärenergiebedarf (Heizöl):|Heizöl:|");
    EXPECT_EQ(texte({&e.Label30, &e.Label_Energieträger}), "Verluste Verteilung && Speicherung:|Heizöl EL|");
    EXPECT_EQ(e.kennwerte().q_d, 2.5F);
    EXPECT_FALSE(e.ebene.sichtbar());
    for (const Anzeige* anzeige : verdeckt)
        EXPECT_FALSE(anzeige->sichtbar()) << anzeige->name;
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

TEST_F(Energieebene, RechnetUndZeichnetWennSieNachVornKommt) {
    int gezeichnet = 0;
    for (Bildfeld* bild : {&ebene->Picture2, &ebene->Picture3, &ebene->Monatsübersicht_Energieträger})
        bild->ansicht = [&] { ++gezeichnet; };
    ebene->EnergRefresh();
    EXPECT_EQ(gezeichnet, 0) << "hidden";
    sitzung.alles_berechnen = [&] { p->qhs_sum = 40; };
    ebene->ebene.zeige(true);
    ebene->aktiviert();
    EXPECT_EQ(ebene->anz_qhs_sum.text(), "40.0");
    EXPECT_EQ(gezeichnet, 3);
}

TEST_F(Energieebene, OeffnenLaesstDieWahlWieSieIst) {
    waehle(1, 2, 2);
    ebene->eingaben_anzeigen();
    EXPECT_EQ(wahl(), "122");
    EXPECT_TRUE(ebene->Label_Übergabe.text().starts_with("Integrierte Heizflächen"));
    EXPECT_EQ(ebene->Label_Energieträger.text(), "Erdgas H");
    waehle(9, 2, 1);
    ebene->eingaben_anzeigen();
    EXPECT_EQ(wahl(), "911") << "there is no transfer to choose";
    waehle(1, 1, 3);
    EXPECT_THROW(ebene->eingaben_anzeigen(), Laufzeitfehler);
    EXPECT_EQ(berechnet, 0);
}

TEST_F(Energieebene, FalscherIndexLaesstDieEbeneStehen) {
    waehle(1, 1, 3);
    EXPECT_THROW(ebene->EnergRefresh(), Laufzeitfehler);
    EXPECT_EQ(ebene->anz_q_HE_Energieträger.text(), "57.9");
    EXPECT_EQ(ebene->Label_Energieträger.text(), "Heizöl EL");
    waehle(1, 0, 1);
    ebene->zeigen({});
    EXPECT_EQ(ebene->Label_Übergabe.text(), "");
    p->FormLoadGuard = -1;
    sitzung.alles_berechnen = [] {};
    EXPECT_NO_THROW(ebene->aktiviert()) << "what a failed opening has left";
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
                             {&E_Energie::Command3, 1, 12, 1},
                             {&E_Energie::Command3, 1, 0, 1}}) {
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
    EXPECT_TRUE(rahmen.Label_Auswahl(4).sichtbar());
    EXPECT_FALSE(rahmen.Label_Auswahl(5).sichtbar());
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

TEST_F(Energieebene, TooltipNenntDieWerteDerSaeule) {
    const auto ueber = [&](double x, double y) {
        ebene->tooltip.verlassen();
        ebene->Monatsübersicht_Energieträger.maus_bewegt(x, y);
        return plattform.zeitgeber.empty() ? std::string() : ebene->tooltip.Label_Tooltip.text();
    };
    EXPECT_EQ(ueber(36, 94),
              "Monat: Januar\rHeizenergiebedarf (Heizöl):: 11.6 kWh / (m² Monat)\r"
              "Hilfsenergiebedarf (Strom):: 0.4 kWh / (m² Monat)\r"
              "Primärenergiebedarf (Heizöl):: 12.7 kWh / (m² Monat)\r"
              "Primärenergiebedarf (Strom):: 1.1 kWh / (m² Monat)");
    EXPECT_EQ(ueber(60, 94), "") << "February has no column";
    beginne("e");
    waehle(7, 2, 1);
    ebene->EnergRefresh();
    EXPECT_EQ(ueber(310, 94),
              "month: December\rheating energy demand (electricity):: 12.7 kWh / (m² month)\r"
              "primary energy demand (electricity):: 38.1 kWh / (m² month)");
}

TEST(Tippplatz, BleibtAufDerEbene) {
    struct Fall {
        Bildschirmpunkt zeiger;
        Platz platz;
    };
    // Main window at (100, 50), plane at (0, 25) in it, 500 pixels high, panel 200 wide and 72 high.
    const Ebenenlage lage{.haupt = {100, 50}, .ebene = {0, 25}, .hoehe = 500};
    // At 523 the panel ends at 500, just inside; at 524 it stands above, 449 - 50 - 72.
    for (const Fall& f : {Fall{{400, 200}, {95, 105}}, Fall{{305, 200}, {0, 105}}, Fall{{250, 200}, {0, 105}},
                          Fall{{400, 523}, {95, 428}}, Fall{{400, 524}, {95, 327}}}) {
        EXPECT_EQ(platz_neben_dem_zeiger(f.zeiger, lage, {200, 72}), f.platz)
            << f.zeiger.x << "," << f.zeiger.y;
    }
}

}  // namespace
}  // namespace velmaris
