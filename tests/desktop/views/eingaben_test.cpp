#include "desktop/widgets/bildflaeche.h"
#include "project/feldtabelle.h"
#include "tests/desktop/programmprobe.h"
#include "tests/testprogramm.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>

namespace velmaris {
namespace {

/// A click on a part of a scroll bar, or a key.
enum class Zug { vor, zurueck, seite_vor, seite_zurueck, rechts, runter, anfang };

/// One move of a scroll field from its place in a new project, and what comes of it.
struct Schieberfall {
    const char* feld;
    Zug zug;
    int stellung;
    double wert;
    const char* anzeige;
    const char* text;
};

/// Each control of the input planes moved once through its widget, in the program of a new project.
class EingabenTest : public test::Programmprobe {
  protected:
    void ebene(const char* knopf, const char* name) {
        klicke(such<QAbstractButton>("E_Menue", knopf));
        ebene_ = name;
    }

    void ziehe(const char* feld, Zug zug) {
        auto& leiste = such<Scrollleiste>(ebene_, feld);
        ASSERT_TRUE(leiste.isVisible()) << feld;
        const auto klick = [&](QStyle::SubControl teil) {
            QTest::mouseClick(&leiste, Qt::LeftButton, {}, test::teil(leiste, teil));
        };
        leiste.setFocus();
        switch (zug) {
            case Zug::vor:
                return klick(QStyle::SC_ScrollBarAddLine);
            case Zug::zurueck:
                return klick(QStyle::SC_ScrollBarSubLine);
            case Zug::seite_vor:
                return klick(QStyle::SC_ScrollBarAddPage);
            case Zug::seite_zurueck:
                return klick(QStyle::SC_ScrollBarSubPage);
            case Zug::rechts:
                return QTest::keyClick(&leiste, Qt::Key_Right);
            case Zug::runter:
                return QTest::keyClick(&leiste, Qt::Key_Down);
            case Zug::anfang:
                return QTest::keyClick(&leiste, Qt::Key_Home);
        }
    }

    /// A quantity of the record by its name.
    double wert(const std::string& groesse) {
        double zahl = -999;
        if (const auto* zeiger = std::get_if<float Projekt::*>(&feld_suchen(groesse)->zeiger))
            zahl = p().*(*zeiger);
        if (const auto* zeiger = std::get_if<std::int16_t Projekt::*>(&feld_suchen(groesse)->zeiger))
            zahl = p().*(*zeiger);
        return zahl;
    }

    void schieber(const std::vector<Schieberfall>& faelle) {
        for (const Schieberfall& fall : faelle) {
            p().Geaendert = 0;
            ziehe(fall.feld, fall.zug);
            const std::string name = fall.feld;
            EXPECT_EQ(such<Scrollleiste>(ebene_, fall.feld).value(), fall.stellung) << name;
            EXPECT_NEAR(wert(name.substr(0, name.size() - 3)), fall.wert, 1e-6) << name;
            EXPECT_EQ(such<QLabel>(ebene_, fall.anzeige).text().toStdString(), fall.text) << name;
            EXPECT_EQ(p().Geaendert, 1) << name;
        }
    }

    void waehle(const char* liste, int zeile) { test::waehle_zeile(such<QComboBox>(ebene_, liste), zeile); }

    /// A click on the mark of a check or option field.
    void hake(const char* feld) {
        auto& kasten = such<QAbstractButton>(ebene_, feld);
        QTest::mouseClick(&kasten, Qt::LeftButton, {}, QPoint(8, kasten.height() / 2));
    }

    const char* ebene_ = "";
};

TEST_F(EingabenTest, SchieberDerGeometrie) {
    starte("d");
    ebene("Geometrie", "E_Geometrie");
    hake("Check_Dachgeschoss");
    EXPECT_EQ(p().hd, 1);
    schieber({{"l_sb", Zug::vor, 110, 11, "l_anz", "Länge: 11.0 m"},
              {"b_sb", Zug::seite_vor, 120, 12, "b_anz", "Breite: 12.0 m"},
              {"h_sb", Zug::seite_vor, -72, 7.2, "h_anz", "7.2 m"},
              {"hd_sb", Zug::vor, -8, 0.8, "hd_anz", "0.8 m"},
              {"ag_sb", Zug::seite_vor, -4, 4, "ag_anz", " 4"},
              {"orient_sb", Zug::rechts, 5, -5, "orient_anz", "-5°"}});
    EXPECT_EQ(such<QLabel>("E_Geometrie", "f_nfa_anz").text(), " 79.2");
    hake("Option_Dachfirst2");
    EXPECT_EQ(p().Option_Dachfirst, 2);
    EXPECT_EQ(such<QLabel>("E_Geometrie", "Label9").text(), "Giebel:");
}

TEST_F(EingabenTest, SchieberListenUndOptionenDerDaemmung) {
    starte("d");
    ebene("Daemmung", "E_Daemmung");
    schieber({{"kwn_sb", Zug::vor, 30, 0.3, "kwn_anz", "0.30"},
              {"kws_sb", Zug::seite_vor, 40, 0.4, "kws_anz", "0.40"},
              {"kwo_sb", Zug::zurueck, 10, 0.1, "kwo_anz", "0.10"},
              {"kww_sb", Zug::anfang, 1, 0.01, "kww_anz", "0.01"},
              {"kd_sb", Zug::anfang, 0, 0, "kd_anz", "0.00"},
              {"kk_sb", Zug::rechts, 30, 0.3, "kk_anz", "0.30"},
              {"ft_sb", Zug::vor, 10, 1, "ft_anz", "1.0"},
              {"kt_sb", Zug::seite_vor, 30, 3, "kt_anz", "3.0"},
              {"absfaktor_sb", Zug::seite_zurueck, 0, 0, "absfaktor_anz", "0.00"}});
    p().Geaendert = 0;
    waehle("ugd", 3);
    waehle("ogd", 1);
    EXPECT_EQ(p().ugd_typ, 3);
    EXPECT_EQ(p().Dachraum_typ, 1);
    EXPECT_EQ(p().Geaendert, 0) << "a row of these lists is no change of the project";
    hake("Waermebruecken_opt3");
    EXPECT_EQ(p().Waermebruecken, 0.05F);
    hake("Waermebruecken_opt1");
    EXPECT_EQ(p().Waermebruecken, 0);
    hake("Waermebruecken_opt2");
    EXPECT_EQ(p().Waermebruecken, 0.1F);
    hake("cbk_hDach");
    EXPECT_EQ(p().cbk_hDach, 0);
    EXPECT_EQ(p().Geaendert, 1);
}

TEST_F(EingabenTest, SchieberListenUndWaendeDesGebaeudes) {
    starte("e");
    ebene("Gebaeude", "E_Gebaeude");
    schieber({{"Troom_sb", Zug::vor, 220, 22, "troom_anz", "22.0"},
              {"Tueber_sb", Zug::seite_vor, 370, 37, "Tueber_anz", "37.0"},
              {"intg_sb", Zug::rechts, 60, 30, "intg_anz2", "3.4"},
              {"infiltration_sb", Zug::seite_vor, 120, 1.2, "infiltration_anz", "1.20"},
              {"lw_sb", Zug::vor, 20, 0.2, "lw_anz", "0.20"},
              {"WRG_Sb", Zug::seite_vor, 1, 0.01, "WRG_anz", "1"},
              {"Klimaeffizienz_sb", Zug::zurueck, 15, 1.5, "KlimaEffizienz_anz", "1.5"}});
    ziehe("Troom_sb", Zug::seite_vor);
    EXPECT_EQ(such<Scrollleiste>("E_Gebaeude", "Troom_sb").value(), 369) << "one position below the limit";
    waehle("Aussenwandart", 2);
    waehle("Innenwandart", 0);
    EXPECT_EQ(p().Aussenwandart, 2);
    EXPECT_EQ(p().Innenwandart, 0);
    EXPECT_EQ(such<QComboBox>("E_Gebaeude", "Innenwandart").currentText(), "heavy construction");
    for (const char* wand : {"awn", "aws", "awo", "aww"}) {
        hake((std::string(wand) + "_cb").c_str());
        EXPECT_EQ(wert(wand), 0) << wand;
    }
    EXPECT_EQ(such<QLabel>("E_Fenster", "kf_anz").text(), "") << "no outer wall, no window";
}

TEST_F(EingabenTest, SchieberUndListenDerVierFassaden) {
    starte("d");
    ebene("Fenster", "E_Fenster");
    schieber({{"fn_sb", Zug::vor, 10, 10, "fn_anz", "10"},
              {"fs_sb", Zug::seite_zurueck, 35, 35, "fs_anz", "35"},
              {"fo_sb", Zug::rechts, 10, 10, "fo_anz", "10"},
              {"fw_sb", Zug::zurueck, 0, 0, "fw_anz", "0"}});
    EXPECT_EQ(such<QLabel>("E_Fenster", "f_gf_anz").text(), "28.6");  // 55 % of 52 m2
    hake("Option11");
    EXPECT_EQ(p().Option1, 1);
    struct Seite {
        const char* reiter;
        std::string buchstabe;
        int typ;
    };
    const std::vector<Seite> seiten{
        {"Command_HR0", "n", 1}, {"Command_HR1", "s", 6}, {"Command_HR2", "o", 0}, {"Command_HR3", "w", 4}};
    const std::vector<Schieberfall> faelle{
        {"kfgn_sb", Zug::vor, 305, 3.05, "kfgn_anz", "3.05"},
        {"kfgs_sb", Zug::zurueck, 45, 0.45, "kfgs_anz", "0.45"},
        {"kfgo_sb", Zug::seite_zurueck, 560, 5.6, "kfgo_anz", "5.60"},
        {"kfgw_sb", Zug::anfang, 0, 0, "kfgw_anz", "0.00"},
        {"kfrn_sb", Zug::seite_vor, 300, 3, "kfrn_anz", "3.00"},
        {"kfrs_sb", Zug::rechts, 75, 0.75, "kfrs_anz", "0.75"},
        {"kfro_sb", Zug::vor, 355, 3.55, "kfro_anz", "3.55"},
        {"kfrw_sb", Zug::zurueck, 145, 1.45, "kfrw_anz", "1.45"},
        {"gfn_sb", Zug::zurueck, 75, 0.75, "gfn_anz", "0.75"},
        {"gfs_sb", Zug::seite_vor, 71, 0.71, "gfs_anz", "0.71"},
        {"gfo_sb", Zug::rechts, 97, 0.97, "gfo_anz", "0.97"},
        {"gfw_sb", Zug::seite_zurueck, 32, 0.32, "gfw_anz", "0.32"},
        {"ran_sb", Zug::seite_vor, 40, 0.4, "ran_anz", "40"},
        {"ras_sb", Zug::anfang, 0, 0, "ras_anz", "0"},
        {"rao_sb", Zug::zurueck, 15, 0.15, "rao_anz", "15"},
        {"raw_sb", Zug::vor, 25, 0.25, "raw_anz", "25"},
        {"verschn_sb", Zug::rechts, 25, 0.25, "verschn_anz", "25"},
        {"verschs_sb", Zug::seite_vor, 40, 0.4, "verschs_anz", "40"},
        {"verscho_sb", Zug::anfang, 0, 0, "verscho_anz", "0"},
        {"verschw_sb", Zug::zurueck, 15, 0.15, "verschw_anz", "15"},
    };
    for (std::size_t i = 0; i < seiten.size(); ++i) {
        klicke(such<QAbstractButton>("E_Fenster", seiten[i].reiter));
        const std::string typ = "fenster" + seiten[i].buchstabe + "_typ";
        waehle(typ.c_str(), seiten[i].typ);
        EXPECT_EQ(wert(typ), seiten[i].typ);
        for (std::size_t zeile = i; zeile < faelle.size(); zeile += seiten.size()) {
            schieber({faelle[zeile]});
            EXPECT_EQ(wert(typ), 7) << "moved by hand, first of all right after the list had dropped down";
        }
    }
    EXPECT_NEAR(p().kfn, 3.03, 1e-6);  // 0.6 x 3.05 + 0.4 x 3
    EXPECT_NEAR(p().kfs, 0.45, 1e-6);
    EXPECT_NEAR(p().kfo, 5.2925, 1e-6);  // 0.85 x 5.6 + 0.15 x 3.55
    EXPECT_NEAR(p().kfw, 0.3625, 1e-6);  // 0.25 x 1.45
    hake("Option10");
    EXPECT_NEAR(p().kfw, 0.45, 1e-6) << "all follow the south";
    EXPECT_FALSE(such("E_Fenster", "Command_HR0").isVisible());
}

TEST_F(EingabenTest, KlimaMitOptionenListenKarteUndPostleitzahl) {
    for (const char* station : {"bremen.met", "hamburg.met", "passau.met"})
        ordner.schreibe(std::string("klima/") + station, test::stationsbytes(station));
    ordner.schreibe("klima/plz.txt", "542;04\r\n940;11\r\n");
    starte("d");
    ebene("Klima", "E_Klima");
    hake("Option1");
    EXPECT_EQ(p().Klimaauswahl, 1);
    EXPECT_EQ(p().Geaendert, 0) << "the region of the station is only marked";
    waehle("Klimaregionwahl", 2);
    EXPECT_EQ(p().Klimadatei, "hamburg.met");
    auto& karte = such<Bildflaeche>("E_Klima", "Picture1");
    QTest::mouseClick(&karte, Qt::LeftButton, {}, QPoint(112, 22));
    EXPECT_EQ(p().Klimadatei, "bremen.met");
    auto& plz = such<QLineEdit>("E_Klima", "plz");
    plz.setFocus();
    QTest::keyClicks(&plz, "94032");
    QTest::keyClick(&plz, Qt::Key_Return);
    EXPECT_EQ(p().Klimadatei, "passau.met");
    EXPECT_EQ(such<QComboBox>("E_Klima", "Klimaregionwahl").currentIndex(), 10);
    QTest::mouseClick(&karte, Qt::LeftButton, {}, QPoint(112, 22));
    EXPECT_EQ(plz.text(), "") << "a click on the map clears the post code";
    QTest::keyClicks(&plz, "54290");
    klicke(such<QAbstractButton>("E_Klima", "PLZsuchen"));
    EXPECT_EQ(p().Klimadatei, "trier.met");

    hake("Option2");
    EXPECT_EQ(p().Klimaauswahl, 2);
    waehle("Klimaregionwahl2", 0);
    EXPECT_EQ(p().Klimadatei, "fern.met");
    hake("Option3");
    EXPECT_EQ(p().Klimaauswahl, 3);
    auto& rolle = such<Scrollleiste>("E_Klima", "HScroll1");
    QTest::keyClick(&rolle, Qt::Key_Home);
    EXPECT_EQ(such("E_Klima", "Picture3").x(), 0);
    ziehe("HScroll1", Zug::vor);
    EXPECT_EQ(such("E_Klima", "Picture3").x(), -10);
    klicke(such<QAbstractButton>("E_Klima", "Image1"));
    auto& zoom = such("Haupt", "E_Zoom_Klima");
    ASSERT_TRUE(zoom.isVisible());
    ebene_ = "E_Zoom_Klima";
    EXPECT_EQ(such<QComboBox>(ebene_, "Klimaregionwahl2").currentText(), "Fern (Ausland)");
    waehle("Klimaregionwahl2", 2);
    EXPECT_EQ(p().Klimadatei, "fern.met") << "not before it is confirmed";
    klicke(such<QAbstractButton>(ebene_, "Command1"));
    EXPECT_FALSE(zoom.isVisible());
    EXPECT_EQ(p().Klimadatei, "bremen.met");
}

TEST_F(EingabenTest, EnergieMitIhrenDreiListen) {
    starte("e");
    ebene("Energie", "E_Energie");
    struct Wahl {
        const char* knopf;
        const char* eintrag;
        const char* feld;
        const char* text;
        std::int16_t Projekt::*ziel;
        int wert;
    };
    for (const Wahl& wahl :
         {Wahl{"Command1", "Label_Auswahl6", "Label_System",
               "district heat, boiler and distribution inside the thermal zone", &Projekt::Heizsystem, 6},
          {"Command2", "Label_Auswahl2", "Label_Übergabe",
           "underfloor heating (switch difference : 1K), system temperature: 35/28°C", &Projekt::Uebergabe,
           2},
          {"Command3", "Label_Auswahl3", "Label_Energieträger",
           "heat from thermal power station, fossil fuels", &Projekt::Energietraeger, 3}}) {
        klicke(such<QAbstractButton>("E_Energie", wahl.knopf));
        QTest::mouseClick(&such("E_Energie", wahl.eintrag), Qt::LeftButton);
        EXPECT_EQ(p().*wahl.ziel, wahl.wert);
        EXPECT_EQ(such<QLabel>("E_Energie", wahl.feld).text().toStdString(), wahl.text);
    }
    EXPECT_EQ(p().Geaendert, 0) << "the heat supply alone is no change of the project";
    EXPECT_EQ(such<QLabel>("E_Energie", "anz_Primärenergiefaktor_Energieträger").text(), "1.3");
    EXPECT_EQ(such<QLabel>("E_Energie", "Label8").text(), "heating energy demand (district heat):");
    klicke(such<QAbstractButton>("E_Energie", "Command1"));
    QTest::mouseClick(&such("E_Energie", "Frame_Auswahl"), Qt::LeftButton, {}, QPoint(2, 2));
    EXPECT_FALSE(such("E_Energie", "Frame_Auswahl").isVisible()) << "a click beside the entries";
    EXPECT_EQ(p().Heizsystem, 6);
}

}  // namespace
}  // namespace velmaris
