#include "planes/Haupt.h"

#include "tests/testprogramm.h"

#include <gtest/gtest.h>
#include <set>
#include <vector>

namespace velmaris {
namespace {

using test::Testprogramm;

class Hauptprogramm : public testing::Test {
  protected:
    Hauptprogramm() {
        h.laden();
        for (const Zeichnung& z : zeichnungen) {
            for (Feld* feld : z.felder)
                feld->ansicht = [this, feld] { gezeichnet.push_back(feld); };
        }
    }

    /// What a plane draws, in its order.
    struct Zeichnung {
        Feld& ebene;
        std::vector<Feld*> felder;
    };

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
    Haupt& h = *programm.haupt;
    Projekt& p = programm.p();
    const std::vector<Zeichnung> zeichnungen{
        {h.e_geometrie.ebene, {&h.e_geometrie.AV_Picture}},
        {h.a_uebersicht.ebene,
         {&h.a_uebersicht.Monatsbilanz, &h.a_uebersicht.UeberGrafik, &h.a_uebersicht.Temperaturen}},
        {h.a_zoom.ebene, {&h.a_zoom.Temperaturen}},
        {h.a_sankey.ebene, {&h.a_sankey.Sankey, &h.a_sankey.Sankey_Kühlen}},
        {h.a_heizen.ebene,
         {&h.a_heizen.qh_anz, &h.a_heizen.Gewinne_N, &h.a_heizen.JahrBilanz, &h.a_heizen.Heizbilanz,
          &h.a_heizen.NutzungsgradMonat}},
        {h.a_kuehlen.ebene,
         {&h.a_kuehlen.StundenProTagMonat, &h.a_kuehlen.KuehlbedarfMonat,
          &h.a_kuehlen.KuehlGradStundenMonat}},
        {h.a_klima.ebene, {&h.a_klima.anz_Heizlast}}};
    std::vector<const Feld*> gezeichnet;  ///< since the last look
};

/// The buttons of both bars show one plane each, with what changed while it was hidden drawn anew.
TEST_F(Hauptprogramm, JedeLeisteZeigtEineEbeneAufDemStand) {
    using Namen = std::set<std::string>;
    std::string zugewandt;
    h.e_menue.zugewandt = [&](const Feld& ebene) { zugewandt = ebene.name; };
    for (Ebenenleiste* leiste : {&h.e_menue, &h.a_menue}) {
        EXPECT_TRUE(leiste->leiste.sichtbar());
        EXPECT_EQ(gezeigt(*leiste), Namen{leiste->eintraege().front().ebene->name});
        leiste->klicke(leiste->eintraege().back().knopf->name);
        for (const auto& eintrag : leiste->eintraege()) {
            gezeichnet.clear();
            h.e_energie.Command1.druecke();
            eintrag.knopf->druecke();
            EXPECT_EQ(gezeigt(*leiste), Namen{eintrag.ebene->name});
            EXPECT_FALSE(h.e_energie.Auswahl.offen()) << "an open list closes with the plane";
            EXPECT_TRUE(!gezeichnet.empty() || leiste == &h.e_menue) << eintrag.ebene->name;
        }
    }
    for (const Menueknoten& fenster : h.menue.menues().at(2).kinder) {
        fenster.punkt->druecke();
        EXPECT_EQ(gezeigt(h.e_menue), Namen{zugewandt});
        EXPECT_TRUE(zugewandt.starts_with("E_" + fenster.punkt->name.substr(6))) << "mnuWinFens ...";
    }
    h.erste_ebenen();
    EXPECT_EQ(gezeigt(h.a_menue), Namen{"A_Uebersicht"});
}

TEST_F(Hauptprogramm, EineRechnungZeichnetDasSichtbareInIhrerReihenfolge) {
    int laenge = 200;
    for (const Zeichnung& verdeckt : zeichnungen) {
        std::vector<const Feld*> erwartet;
        for (const Zeichnung& z : zeichnungen) {
            z.ebene.zeige(&z != &verdeckt);
            if (&z != &verdeckt) erwartet.insert(erwartet.end(), z.felder.begin(), z.felder.end());
        }
        gezeichnet.clear();
        h.e_geometrie.l_sb.setze(laenge += 10);
        EXPECT_EQ(gezeichnet, erwartet);
    }
    p.FormLoadGuard = -1;
    gezeichnet.clear();
    h.e_geometrie.l_sb.setze(150);
    EXPECT_EQ(h.e_geometrie.l_anz.text(), "Länge: 15.0 m");
    EXPECT_EQ(h.e_fenster.nord.flaeche_anz.text(), " 3.9") << "5 % of 15 x 5.2";
    EXPECT_TRUE(gezeichnet.empty());
}

TEST_F(Hauptprogramm, MenueKenntJedenEintragInBeidenSprachen) {
    EXPECT_EQ(
        baum(h.menue.menues()),
        "mnuFile(mnuFileNeu mnuFileOeffnen mnuFileSpeichern mnuFileunter - mnuFileDrucken - mnuFileExit ) "
        "mnuAusgaben(mnuBerechnungsergebnisseExportieren mnuTemperaturExport ) "
        "mnuWin(mnuWinGeo mnuWinFens mnuWinDaem mnuWinGeb mnuWinKlima mnuWinEnerg ) "
        "mnuExtras(mnuKlimaImportieren mnuSprache(mnuSpracheDeutsch mnuSpracheEnglisch ) ) "
        "mnuQuest(mnuQuestHilfe mnuQuestInfo ) ");
    EXPECT_EQ(Testprogramm("e").haupt->menue.punkt("mnuFileunter").text(), "Save as ...");
    EXPECT_THROW(h.menue.punkt("mnuFehlt").druecke(), std::out_of_range);
    const auto druecke = [this](const char* name) { h.menue.punkt(name).druecke(); };
    druecke("mnuFileDrucken");
    EXPECT_TRUE(h.drucken.fenster.sichtbar());
    druecke("mnuBerechnungsergebnisseExportieren");
    EXPECT_TRUE(h.a_report.Report1.sichtbar());
    druecke("mnuTemperaturExport");
    EXPECT_TRUE(h.a_report.fenster.sichtbar());
    EXPECT_FALSE(h.a_report.Report1.sichtbar());
    druecke("mnuKlimaImportieren");
    EXPECT_TRUE(h.e_klimaimport.ebene.sichtbar());
    druecke("mnuQuestHilfe");
    EXPECT_EQ(programm.plattform.hilfeseiten.size(), 1U);
    bool info = false;
    druecke("mnuQuestInfo");
    h.info_zeigen = [&info] { info = true; };
    druecke("mnuQuestInfo");
    EXPECT_TRUE(info);
    for (const char* name : {"mnuFileSpeichern", "mnuFileunter", "mnuFileOeffnen"})
        druecke(name);
    EXPECT_EQ(programm.plattform.dialoge.size(), 3U);
    EXPECT_EQ(programm.plattform.dialoge.back().art, Dateidialog::Art::oeffnen);
    h.e_geometrie.l_sb.setze(300);
    programm.plattform.antworten = {Antwort::nein};
    druecke("mnuFileNeu");
    EXPECT_EQ(p.l, 10);
    druecke("mnuFileExit");
    EXPECT_TRUE(programm.plattform.beendet);
}

TEST_F(Hauptprogramm, MerktSichDenDruckerDesStarts) {
    programm.plattform.drucker = {"Blatt", "Rolle", "Karte"};
    for (const char* name : {"Karte", "fort"}) {
        programm.plattform.druckername = name;
        h.laden();
        EXPECT_EQ(p.Druckerindex, 2);
    }
}

TEST_F(Hauptprogramm, SpracheGiltErstBeimNaechstenStart) {
    for (const bool englisch : {false, true}) {
        h.menue.punkt(englisch ? "mnuSpracheEnglisch" : "mnuSpracheDeutsch").druecke();
        EXPECT_EQ(h.menue.punkt("mnuSpracheEnglisch").angekreuzt(), englisch);
        EXPECT_EQ(h.menue.punkt("mnuSpracheDeutsch").angekreuzt(), !englisch);
        EXPECT_EQ(programm.plattform.meldungen.size(), englisch ? 1U : 0U);
    }
    EXPECT_EQ(p.Sprache, "d");
    EXPECT_EQ(test::inhalt(programm.ordner / "klima/typ.dat").front(), 'e');
}

}  // namespace
}  // namespace velmaris
