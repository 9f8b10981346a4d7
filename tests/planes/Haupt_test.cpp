#include "planes/Haupt.h"

#include "project/rettung.h"
#include "tests/testprogramm.h"
#include "toolkit/text.h"

#include <gtest/gtest.h>
#include <set>

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

TEST_F(Hauptprogramm, NurSichtbareEbenenWerdenGezeichnet) {
    int heizen = 0;
    int uebersicht = 0;
    haupt().a_heizen.Heizbilanz.ansicht = [&] { ++heizen; };
    haupt().a_uebersicht.Monatsbilanz.ansicht = [&] { ++uebersicht; };
    haupt().e_geometrie.l_sb.setze(200);
    EXPECT_EQ(heizen, 0);
    EXPECT_EQ(uebersicht, 1);
    haupt().a_menue.klicke("Heizen");
    heizen = uebersicht = 0;
    haupt().e_geometrie.l_sb.setze(210);
    EXPECT_EQ(heizen, 1);
    EXPECT_EQ(uebersicht, 0);

    int zoom = 0;
    haupt().a_zoom.oeffnen();
    haupt().a_zoom.Temperaturen.ansicht = [&] { ++zoom; };
    haupt().e_geometrie.l_sb.setze(220);
    EXPECT_EQ(zoom, 1) << "it stands beside the planes, whichever is shown";
    haupt().menue.punkt("mnuFileNeu").druecke();
    EXPECT_GT(zoom, 1);
    haupt().a_zoom.Command_Schliessen.druecke();
    zoom = 0;
    haupt().e_geometrie.l_sb.setze(200);
    EXPECT_EQ(zoom, 0);
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
