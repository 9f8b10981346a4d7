#include "planes/Haupt.h"

#include "tests/testprogramm.h"

#include <array>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <set>
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

/// The buttons of both bars show one plane each, with what changed while it was hidden drawn anew.
TEST_F(Hauptprogramm, JedeLeisteZeigtEineEbeneAufDemStand) {
    using Namen = std::set<std::string>;
    Haupt& h = haupt();
    const std::map<std::string, std::pair<const char*, Feld*>> knoepfe{
        {"E_Geometrie", {"Geometrie", &h.e_geometrie.Picture1}},
        {"E_Fenster", {"Fenster", nullptr}},
        {"E_Daemmung", {"Dämmung", nullptr}},
        {"E_Gebaeude", {"Gebäude", nullptr}},
        {"E_Klima", {"Klima", nullptr}},
        {"E_Energie", {"Energie", &h.e_energie.Picture2}},
        {"A_Uebersicht", {"Übersicht", &h.a_uebersicht.Monatsbilanz}},
        {"A_Klima", {"Klima / Gebäude", &h.a_klima.anz_Heizlast}},
        {"A_Heizen", {"Heizen", &h.a_heizen.Heizbilanz}},
        {"A_Kuehlen", {"Kühlen", &h.a_kuehlen.KuehlbedarfMonat}},
        {"A_Sankey", {"Energieflüsse", &h.a_sankey.Sankey}}};
    std::string zugewandt;
    h.e_menue.zugewandt = [&](const Feld& ebene) { zugewandt = ebene.name; };
    for (Ebenenleiste* leiste : {&h.e_menue, &h.a_menue}) {
        EXPECT_TRUE(leiste->leiste.sichtbar());
        EXPECT_EQ(gezeigt(*leiste), Namen{leiste->eintraege().front().ebene->name});
        leiste->klicke(leiste->eintraege().back().knopf->name);
        for (const auto& eintrag : leiste->eintraege()) {
            const auto& [text, feld] = knoepfe.at(eintrag.ebene->name);
            EXPECT_EQ(eintrag.knopf->text(), text);
            bool gezeichnet = feld == nullptr;
            if (feld != nullptr) feld->ansicht = [&gezeichnet] { gezeichnet = true; };
            h.e_energie.Command1.druecke();
            eintrag.knopf->druecke();
            EXPECT_EQ(gezeigt(*leiste), Namen{eintrag.ebene->name});
            EXPECT_FALSE(h.e_energie.Auswahl.offen()) << "an open list closes with the plane";
            EXPECT_TRUE(gezeichnet) << text;
            if (feld != nullptr) feld->ansicht = {};
        }
    }
    for (const auto& [punkt, ebene] : {std::pair("mnuWinFens", "E_Fenster"),
                                       {"mnuWinDaem", "E_Daemmung"},
                                       {"mnuWinGeb", "E_Gebaeude"},
                                       {"mnuWinKlima", "E_Klima"},
                                       {"mnuWinEnerg", "E_Energie"},
                                       {"mnuWinGeo", "E_Geometrie"}}) {
        h.menue.punkt(punkt).druecke();
        EXPECT_EQ(gezeigt(h.e_menue), Namen{ebene});
        EXPECT_EQ(zugewandt, ebene);
    }
    h.erste_ebenen();
    EXPECT_EQ(gezeigt(h.a_menue), Namen{"A_Uebersicht"});
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
    for (const Zeile& verdeckt : tabelle) {
        std::vector<const Feld*> erwartet;
        for (const Zeile& zeile : tabelle) {
            zeile.ebene.zeige(&zeile.ebene != &verdeckt.ebene);
            if (zeile.ebene.sichtbar()) erwartet.push_back(&zeile.feld);
        }
        gezeichnet.clear();
        h.e_geometrie.l_sb.setze(laenge += 10);
        EXPECT_EQ(gezeichnet, erwartet);
    }
    p().FormLoadGuard = -1;
    gezeichnet.clear();
    h.e_geometrie.l_sb.setze(150);
    EXPECT_EQ(h.e_geometrie.l_anz.text(), "Länge: 15.0 m");
    EXPECT_EQ(h.e_fenster.nord.flaeche_anz.text(), " 3.9") << "5 % of 15 x 5.2";
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
    bool info = false;
    druecke("mnuQuestInfo");
    haupt().info_zeigen = [&info] { info = true; };
    druecke("mnuQuestInfo");
    EXPECT_TRUE(info);
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
    for (const char* name : {"Karte", "fort"}) {
        programm.plattform.druckername = name;
        haupt().laden();
        EXPECT_EQ(p().Druckerindex, 2);
    }
}

TEST_F(Hauptprogramm, SpracheGiltErstBeimNaechstenStart) {
    for (const bool englisch : {false, true}) {
        haupt().menue.punkt(englisch ? "mnuSpracheEnglisch" : "mnuSpracheDeutsch").druecke();
        EXPECT_EQ(haupt().menue.punkt("mnuSpracheEnglisch").angekreuzt(), englisch);
        EXPECT_EQ(haupt().menue.punkt("mnuSpracheDeutsch").angekreuzt(), !englisch);
        EXPECT_EQ(programm.plattform.meldungen.size(), englisch ? 1U : 0U);
    }
    EXPECT_EQ(p().Sprache, "d");
    EXPECT_EQ(test::inhalt(programm.ordner / "klima/typ.dat").front(), 'e');
}

TEST(HauptOhneProjekt, KenntSeineOrdner) {
    const test::Testordner ordner;
    test::Testplattform plattform;
    plattform.daten = ordner / "eigene";
    const auto haupt = std::make_unique<Haupt>(plattform, ordner / "fehlt", "d");
    EXPECT_EQ((std::array{haupt->p.AppPfad, haupt->p.InitDir, haupt->p.Datenordner}),
              (std::array{ordner / "fehlt", ordner / "fehlt", ordner / "eigene"}));
    EXPECT_EQ(haupt->p.Datei, "default.vel");
    EXPECT_TRUE(haupt->e_geometrie.Option_Dachfirst.gesetzt(1));
}

}  // namespace
}  // namespace velmaris
