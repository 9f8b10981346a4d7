#include "desktop/widgets/bildflaeche.h"
#include "tests/desktop/programmprobe.h"
#include "tests/textlage.h"

#include <QCheckBox>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <QTest>
#include <gmock/gmock.h>
#include <set>

namespace velmaris {
namespace {

/// Views of the planes in the whole program.
class AnsichtenTest : public test::Programmprobe {
  protected:
    /// Moves every scroll field of the input planes to one of its ends, the horizontal ones and the vertical
    /// ones each to theirs, and calculates the house that comes of it.
    void an_die_enden(bool waagrecht_groesste, bool senkrecht_groesste) {
        Haupt& haupt = programm->haupt();
        p().FormLoadGuard = 1;
        haupt.e_geometrie.Check_Dachgeschoss.setze(1);
        haupt.e_geometrie.Option_Dachfirst.setze(senkrecht_groesste ? 2 : 1);
        haupt.e_fenster.Option1.setze(1);
        for (const char* ebene : {"E_Geometrie", "E_Fenster", "E_Daemmung", "E_Gebaeude"}) {
            for (auto* leiste : such("Haupt", ebene).findChildren<Scrollleiste*>()) {
                const bool senkrecht = leiste->orientation() == Qt::Vertical;
                // Vertical fields grow upward, through negative positions.
                const bool oberstes = senkrecht ? !senkrecht_groesste : waagrecht_groesste;
                leiste->setValue(oberstes ? leiste->maximum() : leiste->minimum());
            }
        }
        // Without any losses, or cooled without any gains, nothing can be calculated.
        p().infiltration = std::max(p().infiltration, 0.2F);
        p().intg = std::max(p().intg, 1.0F);
        p().FormLoadGuard = 0;
        haupt.alles_berechnen();
    }

    /// Looks at the texts of all charts in the letters of the screen.
    void pruefe_diagramme(const std::string& wo) {
        QtFlaeche masse(QSize(1, 1), 1, farben::weiss);
        for (const test::Diagramm& diagramm : test::diagramme(programm->haupt()))
            EXPECT_THAT(test::textfehler(diagramm, masse), testing::IsEmpty()) << wo;
    }
};

TEST_F(AnsichtenTest, KeinTextIstAbgeschnittenUndNichtsRagtHinaus) {
    for (const char* sprache : {"d", "e"}) {
        for (const bool waagrecht : {false, true}) {
            for (const bool senkrecht : {false, true}) {
                starte(sprache);
                an_die_enden(waagrecht, senkrecht);
                const std::string wo =
                    std::string(sprache) + (waagrecht ? " long" : " short") + (senkrecht ? " high" : " low");
                fuer_jede_ebene([&](QWidget& ebene) { test::pruefe_platz(ebene, wo); });
                for (std::int16_t system = 1; system <= 9; ++system) {
                    p().Heizsystem = system;
                    programm->haupt().alles_berechnen();
                    pruefe_diagramme(wo);
                    test::pruefe_platz(such("Haupt", "E_Energie"), wo + " " + std::to_string(system));
                }
            }
        }
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
    klicke(such<QAbstractButton>("E_Menue", "Fenster"));
    const auto farben = [&] {
        const QWidget* tafel = anteil.parentWidget();
        const QImage bild = such("Haupt", "E_Fenster").grab().toImage();
        const double fein = bild.devicePixelRatio();
        const QPointF ecke = QPointF(tafel->mapTo(&such("Haupt", "E_Fenster"), anteil.pos())) * fein;
        std::set<QRgb> alle;
        for (int y = 0; y < anteil.height() * fein; ++y) {
            for (int x = 0; x < anteil.width() * fein; ++x)
                alle.insert(bild.pixel(ecke.toPoint() + QPoint(x, y)));
        }
        return alle.size();
    };
    EXPECT_EQ(farben(), 1U) << "nothing can be told from its ground";
    programm->haupt().e_gebaeude.aws_cb.setze(0);
    EXPECT_GT(farben(), 1U);
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

/// However the pointer goes, or the plane, no tooltip stays behind; on each plane that has one.
TEST_F(AnsichtenTest, TooltipBleibtNichtStehen) {
    starte("e");
    Haupt& h = programm->haupt();
    struct Fall {
        Ebenenleiste& leiste;
        const char* knopf;
        const char* anderer;
        const Feld& ebene;
        const Bildfeld& bild;
        int fuss;
    };
    const std::vector<Fall> faelle{
        {h.a_menue, "Uebersicht", "Klima", h.a_uebersicht.ebene, h.a_uebersicht.UeberGrafik, 114},
        {h.a_menue, "Heizen", "Klima", h.a_heizen.ebene, h.a_heizen.Heizbilanz, 114},
        {h.e_menue, "Energie", "Klima", h.e_energie.ebene, h.e_energie.Monatsübersicht_Energieträger, 94}};
    for (const Fall& fall : faelle) {
        fall.leiste.klicke(fall.knopf);
        QApplication::processEvents();
        auto& bild = such<Bildflaeche>(fall.ebene.name.c_str(), fall.bild.name.c_str());
        auto& tip = such(fall.ebene.name.c_str(), "Frame_ToolTip");
        auto& text = such<QLabel>(fall.ebene.name.c_str(), "Label_Tooltip");
        const auto zeigen = [&] {
            const QPointF ort(38, fall.fuss);
            QMouseEvent zug(QEvent::MouseMove, ort, bild.mapToGlobal(ort), Qt::NoButton, Qt::NoButton, {});
            QApplication::sendEvent(&bild, &zug);
            return QTest::qWaitFor([&] { return tip.isVisible(); }, 3000);
        };
        ASSERT_TRUE(zeigen()) << fall.knopf;
        p().Monat(1).Name = "a month of a name that takes more room than any other";
        h.alles_berechnen();
        EXPECT_TRUE(text.text().contains("takes more room"));
        test::pruefe_platz(tip, fall.knopf);
        EXPECT_TRUE(tip.parentWidget()->rect().contains(tip.geometry()));
        QEvent verlassen(QEvent::Leave);
        QApplication::sendEvent(&tip, &verlassen);
        EXPECT_FALSE(tip.isVisible()) << fall.knopf << ", left over the panel";

        ASSERT_TRUE(zeigen()) << fall.knopf;
        fall.leiste.klicke(fall.anderer);
        fall.leiste.klicke(fall.knopf);
        EXPECT_FALSE(tip.isVisible()) << fall.knopf << ", plane switched and back";

        ASSERT_TRUE(zeigen()) << fall.knopf;
        QCursor::setPos(programm->fenster().mapToGlobal(QPoint(-50, -50)));
        QApplication::sendEvent(&bild, &verlassen);
        EXPECT_FALSE(tip.isVisible()) << fall.knopf << ", left by a jump";
    }
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
    programm->haupt().e_klima.Option.setze(nummer(Klimabereich::deutschland));
    auto& plz = such<QLineEdit>("E_Klima", "plz");
    plz.setFocus();
    QTest::keyClicks(&plz, "1a2b3456");
    EXPECT_EQ(plz.text(), "12345");
    EXPECT_EQ(programm->haupt().e_klima.kartenfarbe(programm->haupt().e_klima.Picture1, 110, 20),
              such<Bildflaeche>("E_Klima", "Picture1").flaeche().lies_punkt(110, 20));
    programm->haupt().e_klima.Option.setze(nummer(Klimabereich::welt));
    EXPECT_TRUE(such("E_Klima", "picture3f").isVisible());
    const int links = such("E_Klima", "Picture3").x();
    QTest::keyClick(&such("E_Klima", "HScroll1"), Qt::Key_Left);
    EXPECT_GT(such("E_Klima", "Picture3").x(), links);
}

}  // namespace
}  // namespace velmaris
