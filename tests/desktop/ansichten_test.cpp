#include "desktop/bildflaeche.h"
#include "programmprobe.h"

#include <QCheckBox>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>

namespace velmaris {
namespace {

/// Views of the planes in the whole program.
class AnsichtenTest : public test::Programmprobe {};

TEST_F(AnsichtenTest, KeinTextIstAbgeschnittenUndNichtsRagtHinaus) {
    for (const char* sprache : {"d", "e"}) {
        starte(sprache);
        programm->haupt().e_geometrie.Check_Dachgeschoss.setze(1);
        programm->haupt().e_fenster.Option1.setze(1);
        fuer_jede_ebene([&](QWidget& ebene) { test::pruefe_platz(ebene, sprache); });
    }
}

/// The folder that VELMARIS_BILDER names, for pictures to be looked at; a passing one otherwise.
QString bilderordner() {
    static const QTemporaryDir fluechtig;
    return qEnvironmentVariable("VELMARIS_BILDER", fluechtig.path()) + QLatin1Char('/');
}

/// Each plane shows something of its own.
TEST_F(AnsichtenTest, JedeEbeneHatIhrEigenesBild) {
    for (const char* sprache : {"d", "e"}) {
        starte(sprache);
        QImage vorher;
        fuer_jede_ebene([&](QWidget& ebene) {
            const QImage bild = ebene.grab().toImage();
            EXPECT_TRUE(bild != vorher) << ebene.objectName().toStdString();
            const QString datei = ebene.objectName() + QLatin1Char('_') + QLatin1String(sprache) + ".png";
            EXPECT_TRUE(programm->fenster().grab().save(bilderordner() + datei));
            vorher = bild;
        });
    }
}

TEST_F(AnsichtenTest, FensterDerDokumenteZeigenAllesGanz) {
    struct Fall {
        const char* name;
        std::function<void(Haupt&)> oeffnen;
        const Feld& (*fenster)(Haupt&);
    };
    const std::vector<Fall> faelle{
        {"Report", [](Haupt& h) { h.a_report.report_zeigen(); },
         [](Haupt& h) -> const Feld& { return h.a_report.fenster; }},
        {"Temperaturen", [](Haupt& h) { h.a_report.temperaturverlauf_zeigen(); },
         [](Haupt& h) -> const Feld& { return h.a_report.fenster; }},
        {"Drucken", [](Haupt& h) { h.drucken.oeffnen(); },
         [](Haupt& h) -> const Feld& { return h.drucken.fenster; }},
        {"Druckerwahl", [](Haupt& h) { h.drucken.wahl.oeffnen(); },
         [](Haupt& h) -> const Feld& { return h.drucken.wahl.fenster; }},
    };
    for (const char* sprache : {"d", "e"}) {
        starte(sprache);
        for (const Fall& fall : faelle) {
            fall.oeffnen(programm->haupt());
            QApplication::processEvents();
            QWidget& fenster = such("Haupt", fall.fenster(programm->haupt()).name.c_str());
            test::pruefe_platz(fenster, sprache);
            const QString datei =
                QLatin1String(fall.name) + QLatin1Char('_') + QLatin1String(sprache) + ".png";
            EXPECT_TRUE(fenster.grab().save(bilderordner() + datei));
        }
    }
}

TEST_F(AnsichtenTest, GlaswertVonHandWirdSonstiges) {
    starte("d");
    klicke(such<QAbstractButton>("E_Menue", "Fenster"));
    auto& glas = such<Scrollleiste>("E_Fenster", "kfgs_sb");
    QTest::mouseClick(&glas, Qt::LeftButton, {}, test::teil(glas, QStyle::SC_ScrollBarAddLine));
    EXPECT_EQ(such<QComboBox>("E_Fenster", "fensters_typ").currentText(), "Sonstiges");
    EXPECT_EQ(p().fenstern_typ, 7) << "the other facades follow";
    EXPECT_FALSE(such("E_Fenster", "Frame_Ost").isVisible());
    klicke(such<QAbstractButton>("E_Fenster", "Option11"));
    klicke(such<QAbstractButton>("E_Fenster", "Command_HR2"));
    EXPECT_TRUE(such("E_Fenster", "Frame_Ost").isVisible());
    EXPECT_FALSE(such("E_Fenster", "Frame_Sued").isVisible());
}

TEST_F(AnsichtenTest, NachbarwandVerbirgtDenFensteranteil) {
    starte("d");
    klicke(such<QAbstractButton>("E_Menue", "Gebaeude"));
    auto& nachbar = such<QCheckBox>("E_Gebaeude", "aws_cb");
    QTest::mouseClick(&nachbar, Qt::LeftButton, {}, QPoint(8, nachbar.height() / 2));
    EXPECT_EQ(p().aws, 0);
    EXPECT_FALSE(such("E_Fenster", "fs_sb").isEnabled());
    const auto& anteil = such<QLabel>("E_Fenster", "fs_anz");
    EXPECT_EQ(anteil.text(), "40");
    EXPECT_EQ(anteil.palette().color(anteil.foregroundRole()),
              anteil.palette().color(anteil.backgroundRole()));
}

TEST_F(AnsichtenTest, TooltipKommtWennDerZeigerRuht) {
    starte("d");
    auto& bild = such<Bildflaeche>("A_Uebersicht", "Monatsbilanz");
    auto& tip = such("A_Uebersicht", "Frame_ToolTip");
    QTest::mouseMove(&bild, QPoint(37, 112));  // foot of January's heat demand
    EXPECT_FALSE(tip.isVisible());
    ASSERT_TRUE(QTest::qWaitFor([&] { return tip.isVisible(); }, 3000));
    const QString text = such<QLabel>("A_Uebersicht", "Label_Tooltip").text();
    EXPECT_TRUE(text.startsWith("Monat: Januar\n Heizwärmebedarf: ")) << text.toStdString();
    EXPECT_TRUE(tip.parentWidget()->rect().contains(tip.geometry()));
    QTest::mouseMove(&bild, QPoint(200, 3));  // background
    EXPECT_FALSE(tip.isVisible());
}

TEST_F(AnsichtenTest, ZoomZeigtDenMonatDerUebersicht) {
    starte("d");
    klicke(such<QAbstractButton>("A_Uebersicht", "Monatsbutton2"));
    EXPECT_EQ(p().Monat_Uebersicht, 2);
    EXPECT_EQ(such("A_Uebersicht", "AktiverMonat").geometry(),
              such("A_Uebersicht", "Monatsbutton2").geometry());
    QTest::mouseClick(&such("A_Uebersicht", "Temperaturen"), Qt::LeftButton);
    auto& zoom = such("Haupt", "A_Zoom");
    ASSERT_TRUE(zoom.isVisible());
    zoom.resize(1000, 600);
    QApplication::processEvents();
    EXPECT_EQ(such("A_Zoom", "Temperaturen").size(), QSize(984, 544));
    EXPECT_EQ(such<QLabel>("A_Zoom", "AktiverMonat1").text(), "Feb.");
    QTest::keyClick(&zoom, Qt::Key_Escape);
    EXPECT_FALSE(zoom.isVisible());
}

TEST_F(AnsichtenTest, KarteWaehltStationUndPostleitzahl) {
    starte("d");
    klicke(such<QAbstractButton>("E_Menue", "Klima"));
    programm->haupt().e_klima.Option.setze(E_Klima::deutschland);
    auto& plz = such<QLineEdit>("E_Klima", "plz");
    plz.setFocus();
    QTest::keyClicks(&plz, "1a2b3456");
    EXPECT_EQ(plz.text(), "12345");
    EXPECT_EQ(programm->haupt().e_klima.kartenfarbe(programm->haupt().e_klima.Picture1, 110, 20),
              such<Bildflaeche>("E_Klima", "Picture1").flaeche().lies_punkt(110, 20));
    programm->haupt().e_klima.Option.setze(E_Klima::welt);
    EXPECT_TRUE(such("E_Klima", "picture3f").isVisible());
    const int links = such("E_Klima", "Picture3").x();
    QTest::keyClick(&such("E_Klima", "HScroll1"), Qt::Key_Left);
    EXPECT_GT(such("E_Klima", "Picture3").x(), links);
}

}  // namespace
}  // namespace velmaris
