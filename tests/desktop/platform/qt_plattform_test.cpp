#include "desktop/platform/qt_plattform.h"

#include "desktop/platform/qt_text.h"
#include "tests/desktop/bedienung.h"
#include "tests/hilfen.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QUrl>
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
    const QKeyCombination zu = Qt::Key_Escape, ein = Qt::Key_Return, j = Qt::ALT | Qt::Key_J;
    const Knoepfe ja_nein = Knoepfe::ja_nein, alle = Knoepfe::ja_nein_abbrechen;
    using Fall = std::tuple<Knoepfe, std::optional<Antwort>, QKeyCombination, Antwort>;
    for (const auto& [knoepfe, vorgabe, taste, antwort] : {Fall{Knoepfe::ok, {}, ein, Antwort::ok},
                                                           {ja_nein, {}, ein, Antwort::ja},
                                                           {ja_nein, Antwort::nein, ein, Antwort::nein},
                                                           {ja_nein, Antwort::nein, j, Antwort::ja},
                                                           {ja_nein, {}, zu, Antwort::nein},
                                                           {alle, Antwort::nein, zu, Antwort::abbrechen}}) {
        am_naechsten_dialog<QMessageBox>([keys = taste](QMessageBox& box) {
            QTest::keyClick(&box, keys.key(), keys.keyboardModifiers());
        });
        EXPECT_EQ(plattform.melde({.text = "?", .knoepfe = knoepfe, .vorgabe = vorgabe}), antwort)
            << static_cast<int>(knoepfe) << " " << taste.toCombined();
    }
}

TEST_F(QtPlattformTest, MeldungZeigtTexteInDerSpracheUndKeineSanduhr) {
    plattform.sanduhr(true);
    for (const auto& [buchstabe, knopf] : {std::pair{"d", "&Ja"}, {"e", "&Yes"}}) {
        sprache = buchstabe;
        am_naechsten_dialog<QMessageBox>([&, soll = knopf](QMessageBox& box) {
            EXPECT_EQ(box.text(), "erste\nzweite <i>");
            EXPECT_EQ(box.textFormat(), Qt::PlainText);
            EXPECT_EQ(box.windowTitle(), QString::fromUtf8("Änderungen speichern ?"));
            EXPECT_EQ(box.icon(), QMessageBox::Warning);
            EXPECT_EQ(box.button(QMessageBox::Yes)->text(), soll);
            EXPECT_EQ(QApplication::overrideCursor(), nullptr);
            QTest::mouseClick(box.button(QMessageBox::Cancel), Qt::LeftButton);
        });
        EXPECT_EQ(plattform.melde({.text = "erste\rzweite <i>",
                                   .titel = "Änderungen speichern ?",
                                   .symbol = Symbol::ausrufezeichen,
                                   .knoepfe = Knoepfe::ja_nein_abbrechen}),
                  Antwort::abbrechen);
        ASSERT_NE(QApplication::overrideCursor(), nullptr) << "the work goes on after the message";
    }
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

TEST_F(QtPlattformTest, DateidialogOeffnetUndBrichtAb) {
    const Testordner ordner;
    const std::filesystem::path datei = ordner.schreibe("häuschen mit garten.vel", "x");
    Dateidialog dialog{.filter = "Alle Dateien (*.*)|*.*|VELM Dateien|*.vel;*.velm",
                       .filterindex = 2,
                       .ordner = ordner.pfad()};
    test::waehle_datei("häuschen mit garten.vel", [&](QFileDialog& box) {
        EXPECT_EQ(box.acceptMode(), QFileDialog::AcceptOpen);
        QStringList texte{box.windowTitle()};
        for (const auto stelle : {QFileDialog::Accept, QFileDialog::Reject, QFileDialog::LookIn,
                                  QFileDialog::FileName, QFileDialog::FileType})
            texte << box.labelText(stelle);
        EXPECT_EQ(utf8(texte.join('|')), "Öffnen|Ö&ffnen|Abbrechen|Suchen in:|Datei&name:|Dateityp:");
        EXPECT_EQ(box.directory().absolutePath(), QDir(ordner.pfad()).absolutePath());
        EXPECT_EQ(box.nameFilters(), (QStringList{"Alle Dateien (*.*) (*)", "VELM Dateien (*.vel *.velm)"}));
        EXPECT_TRUE(box.selectedNameFilter().startsWith("VELM"));
    });
    EXPECT_EQ(plattform.dateidialog(dialog), datei);
    dialog.ordner = "/no/such/folder";
    am_naechsten_dialog<QFileDialog>([&](QFileDialog& box) {
        EXPECT_EQ(box.directory().absolutePath(), QDir::homePath());
        QTest::keyClick(&box, Qt::Key_Escape);
    });
    EXPECT_EQ(plattform.dateidialog(dialog), std::nullopt);
}

/// The place is offered for this dialog only; a file that is chosen has its line, once the choice rests.
TEST_F(QtPlattformTest, DateidialogBietetEinenOrtAnUndZeigtWasInEinerDateiIst) {
    const Testordner ordner;
    ordner.schreibe("orte/haus.vel", "x");
    const QUrl ort = QUrl::fromLocalFile(QFileInfo(ordner / "orte").absoluteFilePath());
    std::vector<std::string> gelesen;
    const Dateidialog dialog{.filter = "VELM Dateien|*.vel",
                             .ordner = ordner / "orte",
                             .ort = ordner / "orte",
                             .vorschau = [&](const std::filesystem::path& datei) {
                                 gelesen.push_back(datei.filename().string());
                                 return std::string("10 m & 2 Geschosse");
                             }};
    am_naechsten_dialog<QFileDialog>([&](QFileDialog& box) {
        EXPECT_EQ(box.sidebarUrls().last(), ort);
        auto* liste = box.findChild<QAbstractItemView*>(QStringLiteral("treeView"));
        ASSERT_TRUE(QTest::qWaitFor([&] { return liste->model()->rowCount(liste->rootIndex()) > 0; }));
        QTest::keyClick(liste, Qt::Key_Down);
        const auto* zeile = box.findChild<QLabel*>(QStringLiteral("Vorschau"));
        EXPECT_EQ(zeile->text(), "");
        EXPECT_TRUE(QTest::qWaitFor([&] { return zeile->text() == "10 m & 2 Geschosse"; }));
        QTest::keyClick(&box, Qt::Key_Escape);
    });
    EXPECT_EQ(plattform.dateidialog(dialog), std::nullopt);
    EXPECT_EQ(gelesen, std::vector<std::string>{"haus.vel"});
    EXPECT_FALSE(QFileDialog().sidebarUrls().contains(ort));
}

TEST_F(QtPlattformTest, SpeichernSchlaegtVorUndHaengtDieEndungAn) {
    const Testordner ordner;
    const Dateidialog dialog{.art = Dateidialog::Art::speichern,
                             .filter = "VELM Dateien (*.vel)|*.vel",
                             .ordner = ordner.pfad(),
                             .dateiname = "alt.vel",
                             .endung = ".vel"};
    am_naechsten_dialog<QFileDialog>([](QFileDialog& box) {
        EXPECT_EQ(box.acceptMode(), QFileDialog::AcceptSave);
        EXPECT_EQ(box.labelText(QFileDialog::Accept), "&Speichern");
        QTest::keyClick(box.findChild<QLineEdit*>(QStringLiteral("fileNameEdit")), Qt::Key_Return);
    });
    EXPECT_EQ(plattform.dateidialog(dialog), ordner / "alt.vel");
    test::waehle_datei("neu");
    EXPECT_EQ(plattform.dateidialog(dialog), ordner / "neu.vel");
}

TEST_F(QtPlattformTest, ZeitgeberLaeuftEinmalUndLaesstSichNeuStarten) {
    std::vector<std::string> ereignisse;
    plattform.zeitgeber_starten("a", 10'000, [&] { ereignisse.emplace_back("too early"); });
    plattform.zeitgeber_starten("a", 5, [&] {
        ereignisse.emplace_back("a");
        plattform.zeitgeber_starten("a", 5, [&] { ereignisse.emplace_back("a again"); });
    });
    plattform.zeitgeber_starten("b", 1, [&] { ereignisse.emplace_back("stopped"); });
    plattform.zeitgeber_stoppen("b");
    EXPECT_TRUE(QTest::qWaitFor([&] { return ereignisse.size() >= 2; }));
    QTest::qWait(30);
    EXPECT_EQ(ereignisse, (std::vector<std::string>{"a", "a again"}));

    plattform.zeitgeber_starten("c", 1, [] { throw Laufzeitfehler({"Fehler", "fault"}); });
    EXPECT_TRUE(QTest::qWaitFor([&] { return !fehlertexte.empty(); }));
    EXPECT_EQ(fehlertexte, std::vector<std::string>{"Fehler"});
}

TEST_F(QtPlattformTest, TitelZeigerDruckerUndEnde) {
    QtPlattform andere(wache, [] { return std::string("d"); });
    andere.fenstertitel("Velmaris - [unbenannt]");
    QWidget spaeter;
    andere.hauptfenster(&spaeter);
    EXPECT_EQ(spaeter.windowTitle(), "Velmaris - [unbenannt]");
    andere.fenstertitel("Velmaris - HAUS.VEL");
    EXPECT_EQ(spaeter.windowTitle(), "Velmaris - HAUS.VEL");
    QCursor::setPos(123, 45);
    EXPECT_EQ(plattform.zeiger(), (Bildschirmpunkt{123, 45}));
    plattform.drucker_waehlen("gibt es nicht mehr");
    EXPECT_EQ(plattform.aktueller_drucker(), "gibt es nicht mehr");
    plattform.beenden();
    EXPECT_EQ(test::laufe_bis_zum_ende(), 0);
}

}  // namespace
}  // namespace velmaris
