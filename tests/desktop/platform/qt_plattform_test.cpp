#include "desktop/platform/qt_plattform.h"

#include "desktop/platform/dateifilter.h"
#include "desktop/platform/dateisymbole.h"
#include "desktop/platform/qt_text.h"
#include "tests/desktop/bedienung.h"
#include "tests/hilfen.h"
#include "toolkit/text.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmaris {
namespace {

using test::am_naechsten_dialog;
using test::Testfenster;
using test::Testordner;

class QtPlattformTest : public testing::Test {
  protected:
    QtPlattformTest() {
        wache.fehler_behandeln = [this](const Laufzeitfehler& fehler) {
            fehlertexte.push_back(fehler.text("d"));
        };
        plattform.hauptfenster(&fenster);
    }

    std::vector<std::string> fehlertexte;
    Fehlerwache wache;
    std::string sprache = "d";
    Testfenster fenster;
    QtPlattform plattform{wache, [this] { return sprache; }};
};

TEST_F(QtPlattformTest, MeldungGibtDenGedruecktenKnopf) {
    struct Fall {
        Knoepfe knoepfe;
        std::optional<Antwort> vorgabe;
        Qt::Key taste;
        Antwort antwort;
    };
    const Fall faelle[] = {
        {Knoepfe::ok, std::nullopt, Qt::Key_Return, Antwort::ok},
        {Knoepfe::ok, std::nullopt, Qt::Key_Escape, Antwort::ok},
        {Knoepfe::ja_nein, std::nullopt, Qt::Key_Return, Antwort::ja},
        {Knoepfe::ja_nein, Antwort::nein, Qt::Key_Return, Antwort::nein},
        {Knoepfe::ja_nein, Antwort::nein, Qt::Key_J, Antwort::ja},
        {Knoepfe::ja_nein, std::nullopt, Qt::Key_Escape, Antwort::nein},
        {Knoepfe::ja_nein_abbrechen, std::nullopt, Qt::Key_Return, Antwort::ja},
        {Knoepfe::ja_nein_abbrechen, std::nullopt, Qt::Key_N, Antwort::nein},
        {Knoepfe::ja_nein_abbrechen, Antwort::nein, Qt::Key_Escape, Antwort::abbrechen},
    };
    for (const Fall& fall : faelle) {
        am_naechsten_dialog<QMessageBox>([&](QMessageBox& box) {
            const bool buchstabe = fall.taste == Qt::Key_J || fall.taste == Qt::Key_N;
            QTest::keyClick(&box, fall.taste, buchstabe ? Qt::AltModifier : Qt::NoModifier);
        });
        EXPECT_EQ(
            plattform.melde({.text = "?", .titel = "t", .knoepfe = fall.knoepfe, .vorgabe = fall.vorgabe}),
            fall.antwort)
            << static_cast<int>(fall.knoepfe) << " " << fall.taste;
    }
}

TEST_F(QtPlattformTest, MeldungZeigtTexteInDerSpracheUndKeineSanduhr) {
    const auto zeige = [&](const std::string& buchstabe, const std::function<void(QMessageBox&)>& pruefe) {
        sprache = buchstabe;
        am_naechsten_dialog<QMessageBox>([&](QMessageBox& box) {
            pruefe(box);
            QTest::mouseClick(box.button(QMessageBox::Cancel), Qt::LeftButton);
        });
        EXPECT_EQ(plattform.melde({.text = "erste\rzweite <i>",
                                   .titel = "Änderungen speichern ?",
                                   .symbol = Symbol::ausrufezeichen,
                                   .knoepfe = Knoepfe::ja_nein_abbrechen,
                                   .hinweis = "rescue.vel"}),
                  Antwort::abbrechen);
    };
    plattform.sanduhr(true);
    zeige("d", [](QMessageBox& box) {
        EXPECT_EQ(box.text(), "erste\nzweite <i>");
        EXPECT_EQ(box.windowTitle(), QString::fromUtf8("Änderungen speichern ?"));
        EXPECT_EQ(box.informativeText(), "rescue.vel");
        EXPECT_EQ(box.icon(), QMessageBox::Warning);
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.button(QMessageBox::Yes)->text(), "&Ja");
        EXPECT_EQ(box.button(QMessageBox::No)->text(), "&Nein");
        EXPECT_EQ(box.button(QMessageBox::Cancel)->text(), "Abbrechen");
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    });
    EXPECT_NE(QApplication::overrideCursor(), nullptr) << "the work goes on after the message";
    zeige("e", [](QMessageBox& box) {
        EXPECT_EQ(box.button(QMessageBox::Yes)->text(), "&Yes");
        EXPECT_EQ(box.button(QMessageBox::No)->text(), "&No");
        EXPECT_EQ(box.button(QMessageBox::Cancel)->text(), "Cancel");
    });
    plattform.sanduhr(false);
}

TEST_F(QtPlattformTest, MeldungBrichtPfadeErstAmZeilenende) {
    std::string ordner = "/home/anna";
    while (ordner.size() < 250)
        ordner += "/Projekte/Umbau/altes_haus/Varianten";
    for (const std::string& pfad :
         {std::string("/home/haus.vel"), ordner.substr(0, 80), ordner.substr(0, 250),
          "/" + std::string(250, 'w'), std::string(250, 'm') + ".vel: i"}) {
        for (const bool oben : {true, false}) {
            am_naechsten_dialog<QMessageBox>([&](QMessageBox& box) {
                const auto* schild = box.findChild<QLabel*>(
                    oben ? QStringLiteral("qt_msgbox_label") : QStringLiteral("qt_msgbox_informativelabel"));
                const QFontMetrics schrift = schild->fontMetrics();
                const QRect bild =
                    schrift.boundingRect(0, 0, schild->width(), 9999, Qt::TextWordWrap, schild->text());
                EXPECT_LE(bild.width(), schild->width()) << pfad;
                EXPECT_LE(bild.height(), schild->height()) << pfad;
                EXPECT_TRUE(box.rect().contains(schild->geometry())) << pfad;
                const int zeilen = bild.height() / schrift.height();
                const int breite = schrift.horizontalAdvance(qtext(pfad));
                EXPECT_LE(zeilen, 1 + breite * 5 / (2 * box.screen()->availableSize().width())) << pfad;
                QTest::keyClick(&box, Qt::Key_Escape);
            });
            plattform.melde({.text = oben ? pfad : "?", .hinweis = oben ? "" : pfad});
        }
    }
}

TEST_F(QtPlattformTest, SanduhrIstNachEinemAusWeg) {
    plattform.sanduhr(true);
    plattform.sanduhr(true);
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    plattform.sanduhr(false);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    plattform.sanduhr(false);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(QtPlattformTest, EingabeGibtDenTextOderNichts) {
    am_naechsten_dialog<QInputDialog>([](QInputDialog& box) {
        EXPECT_EQ(box.windowTitle(), "Titel");
        EXPECT_EQ(box.labelText(), "Stadt && Land:") << "no access key";
        EXPECT_EQ(box.textValue(), "alt");
        QTest::keyClicks(box.findChild<QLineEdit*>(), "neu");
        QTest::keyClick(&box, Qt::Key_Return);
    });
    EXPECT_EQ(plattform.eingabe("Stadt & Land:", "Titel", "alt"), "neu") << "the old text is selected";
    am_naechsten_dialog<QInputDialog>([](QInputDialog& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_EQ(plattform.eingabe("Name:", "Titel", "alt"), std::nullopt);
}

TEST(Dateifilter, WirdAusPaarenVonTextUndMuster) {
    const std::vector<std::pair<const char*, QStringList>> faelle{
        {"Alle Dateien (*.*)|*.*|VELM Dateien (*.vel)|*.vel",
         {"Alle Dateien (*.*) (*)", "VELM Dateien (*.vel) (*.vel)"}},
        {"Wetter|*.met;*.txt", {"Wetter (*.met *.txt)"}},
        {"ohne Muster", {}},
        {"", {}},
    };
    for (const auto& [filter, zeilen] : faelle)
        EXPECT_EQ(dateifilter(filter), zeilen) << filter;
}

TEST_F(QtPlattformTest, DateilistenOeffnenKeineDatei) {
    const Testordner ordner;
    const Dateisymbole symbole;
    const auto art = [&](const char* name, const char* inhalt) {
        return symbole.type(QFileInfo(ordner.schreibe(name, inhalt)));
    };
    EXPECT_EQ(art("eins", "%PDF-1.4"), art("zwei", "Text"));
    EXPECT_NE(art("eins.pdf", "Text"), art("eins", "Text"));
}

TEST_F(QtPlattformTest, DateidialogOeffnetUndBrichtAb) {
    const Testordner ordner;
    const std::filesystem::path datei = ordner.schreibe("häuschen mit garten.vel", "x");
    const Dateidialog dialog{.filter = "Alle Dateien (*.*)|*.*|VELM Dateien (*.vel)|*.vel",
                             .filterindex = 2,
                             .ordner = ordner.pfad()};
    am_naechsten_dialog<QFileDialog>([&](QFileDialog& box) {
        EXPECT_EQ(box.acceptMode(), QFileDialog::AcceptOpen);
        EXPECT_EQ(box.labelText(QFileDialog::Reject), "Abbrechen");
        EXPECT_EQ(box.labelText(QFileDialog::Accept), QString::fromUtf8("Ö&ffnen"))
            << "not the desktop's own";
        EXPECT_EQ(box.directory().absolutePath(), QDir(ordner.pfad()).absolutePath());
        const auto* typen = box.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
        EXPECT_EQ(typen->itemText(0), "Alle Dateien (*.*)");
        EXPECT_EQ(typen->currentText(), "VELM Dateien (*.vel)");
        auto* name = box.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        name->setText(QString::fromUtf8("häuschen mit garten.vel"));
        QTest::keyClick(name, Qt::Key_Return);
    });
    EXPECT_EQ(plattform.dateidialog(dialog), datei);

    am_naechsten_dialog<QFileDialog>([&](QFileDialog& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_EQ(plattform.dateidialog(dialog), std::nullopt);

    am_naechsten_dialog<QFileDialog>([&](QFileDialog& box) {
        auto* name = box.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        name->setText(QStringLiteral("gibt es nicht.vel"));
        QTest::keyClick(name, Qt::Key_Return);
    });
    EXPECT_EQ(plattform.dateidialog(dialog), ordner / "gibt es nicht.vel") << "the caller judges the name";
}

TEST_F(QtPlattformTest, SpeichernFragtNichtNachDemErsetzen) {
    const Testordner ordner;
    const std::filesystem::path datei = ordner.schreibe("alt.vel", "x");
    const Dateidialog dialog{.art = Dateidialog::Art::speichern,
                             .filter = "VELM Dateien (*.vel)|*.vel",
                             .ordner = ordner.pfad(),
                             .dateiname = "alt.vel"};
    const auto bestaetige = [](QFileDialog& box) {
        EXPECT_EQ(box.acceptMode(), QFileDialog::AcceptSave);
        QTest::keyClick(box.findChild<QLineEdit*>(QStringLiteral("fileNameEdit")), Qt::Key_Return);
    };
    am_naechsten_dialog<QFileDialog>(bestaetige);
    EXPECT_EQ(plattform.dateidialog(dialog), datei);
}

TEST_F(QtPlattformTest, ZeitgeberLaeuftEinmalUndLaesstSichNeuStarten) {
    std::vector<std::string> ereignisse;
    const auto warte_auf = [&](std::size_t zahl) {
        return QTest::qWaitFor([&] { return ereignisse.size() >= zahl; });
    };
    plattform.zeitgeber_starten("a", 10'000, [&] { ereignisse.emplace_back("too early"); });
    plattform.zeitgeber_starten("a", 5, [&] {
        ereignisse.emplace_back("a");
        plattform.zeitgeber_starten("a", 5, [&] { ereignisse.emplace_back("a again"); });
    });
    plattform.zeitgeber_starten("b", 1, [&] { ereignisse.emplace_back("stopped"); });
    plattform.zeitgeber_stoppen("b");
    plattform.zeitgeber_stoppen("never started");
    EXPECT_TRUE(warte_auf(2));
    QTest::qWait(30);
    EXPECT_EQ(ereignisse, (std::vector<std::string>{"a", "a again"}));

    plattform.zeitgeber_starten("c", 1, [] { throw Laufzeitfehler({"Fehler", "fault"}); });
    EXPECT_TRUE(QTest::qWaitFor([&] { return !fehlertexte.empty(); }));
    EXPECT_EQ(fehlertexte, std::vector<std::string>{"Fehler"});
}

TEST_F(QtPlattformTest, TitelZeigerZufallUndEnde) {
    QtPlattform andere(wache, [] { return std::string("d"); });
    andere.fenstertitel("Velmaris - [unbenannt]");
    QWidget spaeter;
    andere.hauptfenster(&spaeter);
    EXPECT_EQ(spaeter.windowTitle(), "Velmaris - [unbenannt]");
    andere.fenstertitel("Velmaris - HAUS.VEL");
    EXPECT_EQ(spaeter.windowTitle(), "Velmaris - HAUS.VEL");

    QCursor::setPos(123, 45);
    EXPECT_EQ(plattform.zeiger(), (Bildschirmpunkt{123, 45}));

    plattform.saat(7);
    andere.saat(7);
    for (int i = 0; i < 100; ++i) {
        const double zahl = plattform.zufall();
        EXPECT_GE(zahl, 0);
        EXPECT_LT(zahl, 1);
        EXPECT_EQ(zahl, andere.zufall());
    }

    EXPECT_THAT(plattform.druckerliste(), testing::Not(testing::Contains("")));
    for (const char* drucker : {"gibt es nicht mehr", ""}) {
        plattform.drucker_waehlen(drucker);
        EXPECT_EQ(plattform.aktueller_drucker(), drucker);
    }

    plattform.beenden();
    EXPECT_EQ(test::laufe_bis_zum_ende(), 0);
}

}  // namespace
}  // namespace velmaris
