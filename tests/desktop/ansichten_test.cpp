#include "desktop/bildflaeche.h"
#include "programmprobe.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>

namespace velmaris {
namespace {

/// Views of the planes in the whole program.
class AnsichtenTest : public test::Programmprobe {
  protected:
    /// Shows each plane once and looks at it.
    void fuer_jede_ebene(const std::function<void(QWidget& ebene)>& tu) {
        for (Ebenenleiste* leiste : {&programm->haupt().e_menue, &programm->haupt().a_menue}) {
            for (const Ebenenleiste::Eintrag& eintrag : leiste->eintraege()) {
                leiste->klicke(eintrag.knopf->name);
                QApplication::processEvents();
                tu(such("Haupt", eintrag.ebene->name.c_str()));
            }
        }
    }
};

/// The width that the text of a control needs, 0 for what has none or wraps.
int noetige_breite(const QWidget& fenster) {
    if (const auto* schild = qobject_cast<const QLabel*>(&fenster))
        return schild->wordWrap() || !schild->pixmap().isNull() ? 0 : schild->sizeHint().width();
    if (const auto* rahmen = qobject_cast<const QGroupBox*>(&fenster))
        return rahmen->fontMetrics().horizontalAdvance(rahmen->title()) + 10;
    if (const auto* knopf = qobject_cast<const QPushButton*>(&fenster))
        return knopf->fontMetrics().horizontalAdvance(knopf->text()) + 2;
    if (qobject_cast<const QCheckBox*>(&fenster) != nullptr ||
        qobject_cast<const QRadioButton*>(&fenster) != nullptr)
        return fenster.sizeHint().width() - 4;
    return 0;
}

TEST_F(AnsichtenTest, KeinTextIstAbgeschnittenUndNichtsRagtHinaus) {
    for (const char* sprache : {"d", "e"}) {
        starte(sprache);
        programm->haupt().e_geometrie.Check_Dachgeschoss.setze(1);
        programm->haupt().e_fenster.Option1.setze(1);
        fuer_jede_ebene([&](QWidget& ebene) {
            for (const QWidget* teil : ebene.findChildren<QWidget*>()) {
                if (!teil->isVisible()) continue;
                const std::string name = std::string(sprache) + " " + ebene.objectName().toStdString() + "." +
                                         teil->objectName().toStdString();
                EXPECT_LE(noetige_breite(*teil), teil->width()) << name;
                const QRect platz(teil->mapTo(&ebene, QPoint(0, 0)), teil->size());
                const bool karte = teil->objectName() == "Picture3";  // moves behind its frame
                EXPECT_TRUE(karte || ebene.rect().adjusted(-10, 0, 0, 0).contains(platz)) << name;
            }
        });
    }
}

/// Each plane shows something of its own. The pictures are kept in the folder that VELMARIS_BILDER names,
/// to be looked at.
TEST_F(AnsichtenTest, JedeEbeneHatIhrEigenesBild) {
    const QTemporaryDir fluechtig;
    const QString zielordner = qEnvironmentVariable("VELMARIS_BILDER", fluechtig.path());
    for (const char* sprache : {"d", "e"}) {
        starte(sprache);
        QImage vorher;
        fuer_jede_ebene([&](QWidget& ebene) {
            const QImage bild = ebene.grab().toImage();
            EXPECT_TRUE(bild != vorher) << ebene.objectName().toStdString();
            const QString datei = ebene.objectName() + QLatin1Char('_') + QLatin1String(sprache) + ".png";
            EXPECT_TRUE(programm->fenster().grab().save(zielordner + QLatin1Char('/') + datei));
            vorher = bild;
        });
    }
}

TEST_F(AnsichtenTest, AllesZuBedienendeHatNamenUndFokus) {
    starte("e");
    programm->haupt().e_geometrie.Check_Dachgeschoss.setze(1);
    fuer_jede_ebene([&](QWidget& ebene) {
        for (QWidget* teil : ebene.findChildren<QWidget*>()) {
            const auto* knopf = qobject_cast<QAbstractButton*>(teil);
            const bool bedienbar = qobject_cast<Scrollleiste*>(teil) != nullptr ||
                                   qobject_cast<QComboBox*>(teil) != nullptr || knopf != nullptr ||
                                   qobject_cast<Bildflaeche*>(teil) != nullptr;
            if (!bedienbar || teil->objectName().startsWith("qt_")) continue;
            const QString name =
                teil->accessibleName().isEmpty() && knopf != nullptr ? knopf->text() : teil->accessibleName();
            EXPECT_FALSE(name.isEmpty()) << teil->objectName().toStdString();
        }
    });
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

TEST_F(AnsichtenTest, AuswahlDerHeizungOeffnetWaehltUndSchliesst) {
    starte("d");
    klicke(such<QAbstractButton>("E_Menue", "Energie"));
    auto& liste = such("E_Energie", "Frame_Auswahl");
    EXPECT_FALSE(liste.isVisible());
    klicke(such<QAbstractButton>("E_Energie", "Command1"));
    ASSERT_TRUE(liste.isVisible());
    auto& feld = such<QLabel>("E_Energie", "Label_System");
    EXPECT_EQ(liste.y(), feld.geometry().bottom() + feld.parentWidget()->y() + 1);
    QTest::mouseClick(&such("E_Energie", "Label_Auswahl8"), Qt::LeftButton);
    EXPECT_EQ(p().Heizsystem, 8);
    EXPECT_FALSE(liste.isVisible());
    EXPECT_EQ(feld.text(), such<QLabel>("E_Energie", "Label_Auswahl8").text());
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
