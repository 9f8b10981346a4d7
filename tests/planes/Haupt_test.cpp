#include "planes/Haupt.h"

#include "project/rettung.h"
#include "tests/testprogramm.h"
#include "toolkit/text.h"

#include <gtest/gtest.h>
#include <set>
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

    Testprogramm programm;
};

TEST_F(Hauptprogramm, JedeLeisteZeigtEineEbene) {
    using Namen = std::set<std::string>;
    EXPECT_EQ(gezeigt(haupt().e_menue), Namen{"E_Geometrie"});
    EXPECT_EQ(gezeigt(haupt().a_menue), Namen{"A_Uebersicht"});
    haupt().menue.punkt("mnuWinFens").druecke();
    haupt().menue.punkt("mnuWinFens").druecke();
    EXPECT_EQ(gezeigt(haupt().e_menue), Namen{"E_Fenster"});
    for (const auto& eintrag : haupt().a_menue.eintraege()) {
        eintrag.knopf->druecke();
        EXPECT_EQ(gezeigt(haupt().a_menue), Namen{eintrag.ebene->name});
    }
    haupt().erste_ebenen();
    EXPECT_EQ(gezeigt(haupt().e_menue), Namen{"E_Geometrie"});
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
    EXPECT_EQ(haupt().menue.menues().size(), 5U);
    EXPECT_EQ(haupt().menue.punkt("mnuFileunter").text(), "Speichern &unter...");
    EXPECT_EQ(Testprogramm("e").haupt->menue.punkt("mnuFileunter").text(), "Save as ...");
    EXPECT_THROW(haupt().menue.punkt("mnuFehlt").druecke(), std::out_of_range);
    haupt().menue.punkt("mnuFileDrucken").druecke();
    EXPECT_TRUE(haupt().drucken.fenster.sichtbar());
    haupt().menue.punkt("mnuTemperaturExport").druecke();
    EXPECT_TRUE(haupt().a_report.fenster.sichtbar());
    EXPECT_FALSE(haupt().a_report.Report1.sichtbar());
    haupt().menue.punkt("mnuKlimaImportieren").druecke();
    EXPECT_TRUE(haupt().e_klimaimport.ebene.sichtbar());
    haupt().menue.punkt("mnuQuestHilfe").druecke();
    EXPECT_EQ(programm.plattform.hilfeseiten.size(), 1U);
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

}  // namespace
}  // namespace velmaris
