#include "planes/Haupt.h"

#include "project/rettung.h"
#include "tests/testprogramm.h"
#include "toolkit/text.h"

#include <gtest/gtest.h>
#include <memory>
#include <set>
#include <tuple>
#include <utility>
#include <vector>

namespace velmaris {
namespace {

using test::Testprogramm;

class Hauptprogramm : public testing::Test {
  protected:
    Hauptprogramm() { haupt().laden(); }

    Haupt& haupt() { return *programm.haupt; }
    Projekt& p() { return programm.p(); }

    /// Names of the planes of a bar that are shown.
    static std::set<std::string> gezeigt(const Ebenenleiste& leiste) {
        std::set<std::string> namen;
        for (const auto& eintrag : leiste.eintraege()) {
            EXPECT_EQ(eintrag.ebene->sichtbar(), !eintrag.knopf->aktiv());
            if (eintrag.ebene->sichtbar()) namen.insert(eintrag.ebene->name);
        }
        return namen;
    }

    /// The names of a menu, those below an entry in brackets, a dash for a separator.
    static std::string baum(const std::vector<Menueknoten>& ebene) {
        std::string text;
        for (const Menueknoten& knoten : ebene)
            text += (knoten.punkt ? knoten.punkt->name : "-") +
                    (knoten.kinder.empty() ? " " : "(" + baum(knoten.kinder) + ") ");
        return text;
    }

    Testprogramm programm;
};

TEST_F(Hauptprogramm, JedeLeisteZeigtEineEbene) {
    using Namen = std::set<std::string>;
    std::string beschriftet;
    std::string zugewandt;
    haupt().e_menue.zugewandt = [&](const Feld& ebene) { zugewandt = ebene.name; };
    for (Ebenenleiste* leiste : {&haupt().e_menue, &haupt().a_menue}) {
        EXPECT_TRUE(leiste->leiste.sichtbar());
        EXPECT_EQ(gezeigt(*leiste), Namen{leiste->eintraege().front().ebene->name});
        for (const auto& eintrag : leiste->eintraege()) {
            beschriftet += eintrag.knopf->text() + "|";
            haupt().e_energie.Command1.druecke();
            eintrag.knopf->druecke();
            EXPECT_EQ(gezeigt(*leiste), Namen{eintrag.ebene->name});
            const bool schon_da = &eintrag == &leiste->eintraege().front();
            EXPECT_EQ(haupt().e_energie.Auswahl.offen(), schon_da) << "an open list closes with the plane";
            haupt().e_energie.Auswahl.schliesse();
        }
    }
    EXPECT_EQ(beschriftet,
              "Geometrie|Fenster|Dämmung|Gebäude|Klima|Energie|"
              "Übersicht|Klima / Gebäude|Heizen|Kühlen|Energieflüsse|");
    for (const auto& [punkt, ebene] : {std::pair("mnuWinFens", "E_Fenster"),
                                       {"mnuWinFens", "E_Fenster"},
                                       {"mnuWinDaem", "E_Daemmung"},
                                       {"mnuWinGeb", "E_Gebaeude"},
                                       {"mnuWinKlima", "E_Klima"},
                                       {"mnuWinEnerg", "E_Energie"},
                                       {"mnuWinGeo", "E_Geometrie"}}) {
        haupt().menue.punkt(punkt).druecke();
        EXPECT_EQ(gezeigt(haupt().e_menue), Namen{ebene});
        EXPECT_EQ(zugewandt, ebene);
    }
    haupt().erste_ebenen();
    EXPECT_EQ(gezeigt(haupt().a_menue), Namen{"A_Uebersicht"});
}

/// What changed while a plane was hidden is drawn as its button brings it up.
TEST_F(Hauptprogramm, EineEbeneIstMitIhremKnopfAufDemStand) {
    Haupt& h = haupt();
    const std::vector<std::tuple<Ebenenleiste*, const char*, Feld*>> knoepfe{
        {&h.e_menue, "Geometrie", &h.e_geometrie.Picture1},
        {&h.e_menue, "Energie", &h.e_energie.Picture2},
        {&h.a_menue, "Uebersicht", &h.a_uebersicht.Monatsbilanz},
        {&h.a_menue, "Klima", &h.a_klima.anz_Heizlast},
        {&h.a_menue, "Heizen", &h.a_heizen.Heizbilanz},
        {&h.a_menue, "Kuehlen", &h.a_kuehlen.KuehlbedarfMonat},
        {&h.a_menue, "Sankey", &h.a_sankey.Sankey}};
    for (const auto& [leiste, knopf, feld] : knoepfe) {
        int gezeichnet = 0;
        feld->ansicht = [&gezeichnet] { ++gezeichnet; };
        leiste->klicke(knopf);
        EXPECT_GT(gezeichnet, 0) << knopf;
        feld->ansicht = {};
    }
}

TEST_F(Hauptprogramm, EineRechnungZeichnetDasSichtbareInIhrerReihenfolge) {
    Haupt& h = haupt();
    struct Zeile {
        Feld& ebene;
        Feld& feld;
    };
    const std::vector<Zeile> tabelle{{h.e_geometrie.ebene, h.e_geometrie.AV_Picture},
                                     {h.a_uebersicht.ebene, h.a_uebersicht.Monatsbilanz},
                                     {h.a_uebersicht.ebene, h.a_uebersicht.UeberGrafik},
                                     {h.a_uebersicht.ebene, h.a_uebersicht.Temperaturen},
                                     {h.a_zoom.ebene, h.a_zoom.Temperaturen},
                                     {h.a_sankey.ebene, h.a_sankey.Sankey},
                                     {h.a_sankey.ebene, h.a_sankey.Sankey_Kühlen},
                                     {h.a_heizen.ebene, h.a_heizen.qh_anz},
                                     {h.a_heizen.ebene, h.a_heizen.Gewinne_N},
                                     {h.a_heizen.ebene, h.a_heizen.JahrBilanz},
                                     {h.a_heizen.ebene, h.a_heizen.Heizbilanz},
                                     {h.a_heizen.ebene, h.a_heizen.NutzungsgradMonat},
                                     {h.a_kuehlen.ebene, h.a_kuehlen.StundenProTagMonat},
                                     {h.a_kuehlen.ebene, h.a_kuehlen.KuehlbedarfMonat},
                                     {h.a_kuehlen.ebene, h.a_kuehlen.KuehlGradStundenMonat},
                                     {h.a_klima.ebene, h.a_klima.anz_Heizlast}};
    std::vector<const Feld*> gezeichnet;
    for (const Zeile& zeile : tabelle)
        zeile.feld.ansicht = [&] { gezeichnet.push_back(&zeile.feld); };
    int laenge = 200;
    const auto pruefe = [&](const Feld* verdeckt) {
        std::vector<const Feld*> erwartet;
        for (const Zeile& zeile : tabelle) {
            zeile.ebene.zeige(&zeile.ebene != verdeckt);
            if (&zeile.ebene != verdeckt) erwartet.push_back(&zeile.feld);
        }
        gezeichnet.clear();
        h.e_geometrie.l_sb.setze(laenge += 10);
        EXPECT_EQ(gezeichnet, erwartet);
    };
    pruefe(nullptr);
    for (const Zeile& zeile : tabelle)
        pruefe(&zeile.ebene);

    p().FormLoadGuard = -1;
    gezeichnet.clear();
    const float qh = p().qh;
    h.e_geometrie.l_sb.setze(150);
    EXPECT_EQ(h.e_geometrie.l_anz.text(), "Länge: 15.0 m");
    EXPECT_EQ(h.e_fenster.nord.flaeche_anz.text(), " 3.9") << "5 % of 15 x 5.2";
    EXPECT_EQ(p().qh, qh);
    EXPECT_TRUE(gezeichnet.empty());
}

TEST_F(Hauptprogramm, MenueKenntJedenEintragInBeidenSprachen) {
    EXPECT_EQ(
        baum(haupt().menue.menues()),
        "mnuFile(mnuFileNeu mnuFileOeffnen mnuFileSpeichern mnuFileunter - mnuFileDrucken - mnuFileExit ) "
        "mnuAusgaben(mnuBerechnungsergebnisseExportieren mnuTemperaturExport ) "
        "mnuWin(mnuWinGeo mnuWinFens mnuWinDaem mnuWinGeb mnuWinKlima mnuWinEnerg ) "
        "mnuExtras(mnuKlimaImportieren mnuSprache(mnuSpracheDeutsch mnuSpracheEnglisch ) ) "
        "mnuQuest(mnuQuestHilfe mnuQuestInfo ) ");
    EXPECT_EQ(haupt().menue.punkt("mnuFileunter").text(), "Speichern &unter...");
    EXPECT_EQ(Testprogramm("e").haupt->menue.punkt("mnuFileunter").text(), "Save as ...");
    EXPECT_THROW(haupt().menue.punkt("mnuFehlt").druecke(), std::out_of_range);
    const auto druecke = [this](const char* name) { haupt().menue.punkt(name).druecke(); };
    druecke("mnuFileDrucken");
    EXPECT_TRUE(haupt().drucken.fenster.sichtbar());
    druecke("mnuBerechnungsergebnisseExportieren");
    EXPECT_TRUE(haupt().a_report.Report1.sichtbar());
    druecke("mnuTemperaturExport");
    EXPECT_TRUE(haupt().a_report.fenster.sichtbar());
    EXPECT_FALSE(haupt().a_report.Report1.sichtbar());
    druecke("mnuKlimaImportieren");
    EXPECT_TRUE(haupt().e_klimaimport.ebene.sichtbar());
    druecke("mnuQuestHilfe");
    EXPECT_EQ(programm.plattform.hilfeseiten.size(), 1U);
    int info = 0;
    druecke("mnuQuestInfo");
    haupt().info_zeigen = [&info] { ++info; };
    druecke("mnuQuestInfo");
    EXPECT_EQ(info, 1);
    for (const char* name : {"mnuFileSpeichern", "mnuFileunter", "mnuFileOeffnen"})
        druecke(name);
    using Art = Dateidialog::Art;
    std::vector<Art> arten;
    for (const Dateidialog& dialog : programm.plattform.dialoge)
        arten.push_back(dialog.art);
    EXPECT_EQ(arten, (std::vector{Art::speichern, Art::speichern, Art::oeffnen}));
    haupt().e_geometrie.l_sb.setze(300);
    programm.plattform.antworten = {Antwort::nein};
    druecke("mnuFileNeu");
    EXPECT_EQ(p().l, 10);
    druecke("mnuFileExit");
    EXPECT_TRUE(programm.plattform.beendet);
}

TEST_F(Hauptprogramm, MerktSichDenDruckerDesStarts) {
    programm.plattform.drucker = {"Blatt", "Rolle", "Karte"};
    programm.plattform.druckername = "Karte";
    haupt().laden();
    EXPECT_EQ(p().Druckerindex, 2);
    programm.plattform.druckername = "fort";
    haupt().laden();
    EXPECT_EQ(p().Druckerindex, 2);
}

TEST_F(Hauptprogramm, SpracheGiltErstBeimNaechstenStart) {
    Menuepunkt& deutsch = haupt().menue.punkt("mnuSpracheDeutsch");
    Menuepunkt& englisch = haupt().menue.punkt("mnuSpracheEnglisch");
    EXPECT_TRUE(deutsch.angekreuzt());
    deutsch.druecke();
    EXPECT_TRUE(programm.plattform.meldungen.empty());
    englisch.druecke();
    EXPECT_TRUE(englisch.angekreuzt());
    EXPECT_FALSE(deutsch.angekreuzt());
    EXPECT_EQ(programm.plattform.meldungen.size(), 1U);
    EXPECT_EQ(p().Sprache, "d");
    EXPECT_EQ(test::inhalt(programm.ordner / "klima/typ.dat").front(), 'e');
}

TEST(HauptOhneProjekt, KenntSeineOrdner) {
    const test::Testordner ordner;
    test::Testplattform plattform;
    plattform.daten = ordner / "eigene";
    const auto haupt = std::make_unique<Haupt>(plattform, ordner / "fehlt", "d");
    EXPECT_EQ(haupt->p.AppPfad, ordner / "fehlt");
    EXPECT_EQ(haupt->p.InitDir, ordner / "fehlt");
    EXPECT_EQ(haupt->p.Datenordner, plattform.daten);
    EXPECT_EQ(haupt->p.Datei, "default.vel");
    EXPECT_TRUE(haupt->e_geometrie.Option_Dachfirst.gesetzt(1));
}

}  // namespace
}  // namespace velmaris
