#include "energy/planes/E_Energie.h"

#include "language/c_Sprache.h"
#include "tests/testplattform.h"
#include "toolkit/fehler.h"

#include <gtest/gtest.h>
#include <initializer_list>
#include <memory>
#include <tuple>

namespace velmaris {
namespace {

using test::Testplattform;

/// A plane on a project of 150 m2 with 50 kWh/(m2 a) of heat: 1500 kWh in January, 6000 in December.
class Energieebene : public testing::Test {
  protected:
    Energieebene() {
        p->Sprache = "d";
        sprachtexte_setzen(*p);
        p->f_nutz = 150;
        p->qhs_sum = 50;
        p->Monat(1).Qh = 1500;
        p->Monat(12).Qh = 6000;
        waehle(1, 1, 1);
        ebene = std::make_unique<E_Energie>(sitzung);
        ebene->EnergRefresh();
    }

    void waehle(int system, int uebergabe, int traeger) {
        p->Heizsystem = static_cast<std::int16_t>(system);
        p->Uebergabe = static_cast<std::int16_t>(uebergabe);
        p->Energietraeger = static_cast<std::int16_t>(traeger);
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
    EXPECT_EQ(texte({&e.anz_qhs_sum, &e.anz_q_verlust, &e.anz_e_g, &e.anz_q_HE_Energieträger,
                     &e.anz_q_HE_Strom, &e.anz_q_PE_Energieträger, &e.anz_q_PE_Strom,
                     &e.anz_Primärenergiefaktor_Energieträger, &e.anz_Primärenergiefaktor_Strom}),
              "50.0|3.6|1.08|57.9|1.9|63.7|5.7|1.1|3.0|");
    const std::initializer_list<const Anzeige*> verdeckt{&e.anz_q_ce,   &e.anz_q_d,    &e.anz_q_s,
                                                         &e.anz_q_d_he, &e.anz_q_s_he, &e.anz_q_g_he};
    EXPECT_EQ(texte(verdeckt), "1.1|2.5|0.0|1.2|0.0|0.7|");
    EXPECT_EQ(texte({&e.Label8, &e.Label21, &e.Label27, &e.Label30, &e.Label_Energieträger}),
              "Heizenergiebedarf (Heizöl):|Primärenergiebedarf (Heizöl):|Heizöl:|Verluste Verteilung && "
              "Speicherung:|Heizöl EL|");
    EXPECT_EQ(e.kennwerte().q_d, 2.5F);
    EXPECT_FALSE(e.ebene.sichtbar());
    for (const Anzeige* anzeige : verdeckt)
        EXPECT_FALSE(anzeige->sichtbar()) << anzeige->name;
}

TEST_F(Energieebene, StromHatEineEinzigeZeile) {
    E_Energie& e = *ebene;
    for (const auto& [system, traeger, texte_davon, mit_hilfsstrom] :
         {std::tuple{6, 4, "5.2|0.1|Nah-/Fernwärme:|", true}, {7, 1, "47.7|3.0|Strom:|", false}}) {
        waehle(system, 2, traeger);
        e.EnergRefresh();
        // (50 + 1.1 + 0.6) * 1.01 * 0.1 and (51.8 * 0.23 + 3.981183) * 3
        EXPECT_EQ(texte({&e.anz_q_PE_Energieträger, &e.anz_Primärenergiefaktor_Energieträger, &e.Label27}),
                  texte_davon);
        for (const Anzeige* zeile :
             {&e.Label14, &e.Label6, &e.anz_q_PE_Strom, &e.Label34, &e.anz_Primärenergiefaktor_Strom})
            EXPECT_EQ(zeile->sichtbar(), mit_hilfsstrom) << zeile->name;
    }
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

TEST_F(Energieebene, OeffnenLaesstDieWahlUndFalscherIndexDieEbeneStehen) {
    waehle(1, 2, 2);
    ebene->eingaben_anzeigen();
    EXPECT_EQ(wahl(), "122");
    EXPECT_TRUE(ebene->Label_Übergabe.text().starts_with("Integrierte Heizflächen"));
    waehle(9, 2, 1);
    ebene->eingaben_anzeigen();
    EXPECT_EQ(wahl(), "911") << "there is no transfer to choose";
    waehle(1, 1, 3);
    EXPECT_THROW(ebene->eingaben_anzeigen(), Laufzeitfehler);
    EXPECT_THROW(ebene->EnergRefresh(), Laufzeitfehler);
    EXPECT_EQ(texte({&ebene->anz_q_HE_Energieträger, &ebene->Label_Energieträger}), "57.9|Strom|");
    waehle(1, 0, 1);
    ebene->zeigen({});
    EXPECT_EQ(ebene->Label_Übergabe.text(), "");
    EXPECT_EQ(berechnet, 0);
    p->FormLoadGuard = -1;
    sitzung.alles_berechnen = [] {};
    EXPECT_NO_THROW(ebene->aktiviert()) << "what a failed opening has left";
}

TEST_F(Energieebene, WahlSpeichertUndRechnetOhneDenMerkerGeaendert) {
    klicke(&E_Energie::Command1, 6);
    EXPECT_EQ(berechnet, 1);
    klicke(&E_Energie::Command3, 4);
    klicke(&E_Energie::Command2, 2);
    EXPECT_EQ(wahl(), "624");
    EXPECT_EQ(ebene->Label_Energieträger.text(), "Wärme aus Heizkraftwerken, erneuerbarer Brennstoff");
    EXPECT_EQ(ebene->anz_Primärenergiefaktor_Energieträger.text(), "0.1");
    klicke(&E_Energie::Command1, 1);
    EXPECT_EQ(wahl(), "111");
    klicke(&E_Energie::Command1, 9);
    EXPECT_EQ(ebene->Label_Übergabe.text(), "");
    EXPECT_EQ(berechnet, 5);
    EXPECT_EQ(p->Geaendert, 0);
    EXPECT_FALSE(ebene->Auswahl.Frame_Auswahl.sichtbar());
}

/// The row of the record counts, not what the list shows.
TEST_F(Energieebene, WasDieZeileNichtBietetIstKeineWahl) {
    // With heating systems at the opening of the list and at the click.
    using Fall = std::tuple<Knopf E_Energie::*, int, int, int>;
    constexpr auto uebergabe = &E_Energie::Command2, traeger = &E_Energie::Command3;
    for (const auto& [knopf, davor, jetzt, eintrag] :
         {Fall{traeger, 5, 5, 2}, Fall{traeger, 6, 1, 4}, Fall{traeger, 1, 7, 2}, Fall{traeger, 1, 4, 2},
          Fall{uebergabe, 1, 8, 2}, Fall{uebergabe, 8, 8, 1}, Fall{traeger, 1, 12, 1},
          Fall{traeger, 1, 0, 1}}) {
        waehle(davor, 1, 1);
        ((*ebene).*knopf).druecke();
        p->Heizsystem = static_cast<std::int16_t>(jetzt);
        ebene->Label_Auswahl_Click(eintrag);
        EXPECT_EQ(wahl(), std::to_string(jetzt) + "11") << davor;
        EXPECT_FALSE(ebene->Auswahl.offen());
    }
    EXPECT_EQ(berechnet, 0);
}

TEST_F(Energieebene, KnopfKlapptSeineListeAufUndZu) {
    const auto offen = [&] { return ebene->Auswahl.offen() ? ebene->Auswahl.feld() : std::string(); };
    ebene->Command1.druecke();
    EXPECT_EQ(offen(), "Label_System");
    ebene->Command1.druecke();
    EXPECT_EQ(offen(), "");
    ebene->Command3.druecke();
    ebene->Command2.druecke();
    EXPECT_EQ(offen(), "Label_Übergabe");
    ebene->Frame_Auswahl_Click();
    EXPECT_EQ(offen(), "");
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
    waehle(7, 2, 1);
    ebene->EnergRefresh();
    EXPECT_EQ(ueber(310, 94),
              "Monat: Dezember\rHeizenergiebedarf (Strom):: 12.7 kWh / (m² Monat)\r"
              "Primärenergiebedarf (Strom):: 38.1 kWh / (m² Monat)");
}

}  // namespace
}  // namespace velmaris
