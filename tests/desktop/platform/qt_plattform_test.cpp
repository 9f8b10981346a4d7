#include "desktop/platform/qt_plattform.h"

#include "desktop/platform/dateifilter.h"
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

/// The buttons of a message, the one that Enter presses, a key and the answer.
struct Antwortfall {
    Knoepfe knoepfe;
    std::optional<Antwort> vorgabe;
    QKeyCombination taste;
    Antwort antwort;
};

TEST_F(QtPlattformTest, MeldungGibtDenGedruecktenKnopf) {
    const QKeyCombination zu = Qt::Key_Escape, ein = Qt::Key_Return, j = Qt::ALT | Qt::Key_J;
    const Knoepfe ja_nein = Knoepfe::ja_nein, alle = Knoepfe::ja_nein_abbrechen;
    for (const Antwortfall& fall : {Antwortfall{Knoepfe::ok, {}, ein, Antwort::ok},
                                    {Knoepfe::ok, {}, zu, Antwort::ok},
                                    {ja_nein, {}, ein, Antwort::ja},
                                    {ja_nein, Antwort::nein, ein, Antwort::nein},
                                    {ja_nein, Antwort::nein, j, Antwort::ja},
                                    {ja_nein, {}, zu, Antwort::nein},
                                    {alle, {}, ein, Antwort::ja},
                                    {alle, Antwort::nein, zu, Antwort::abbrechen}}) {
        am_naechsten_dialog<QMessageBox>([&](QMessageBox& box) {
            QTest::keyClick(&box, fall.taste.key(), fall.taste.keyboardModifiers());
        });
        EXPECT_EQ(plattform.melde({.text = "?", .knoepfe = fall.knoepfe, .vorgabe = fall.vorgabe}),
                  fall.antwort)
            << static_cast<int>(fall.knoepfe) << " " << fall.taste.toCombined();
    }
}

TEST_F(QtPlattformTest, MeldungZeigtTexteInDerSpracheUndKeineSanduhr) {
    const QStringList deutsch{"&Ja", "&Nein", "Abbrechen"}, englisch{"&Yes", "&No", "Cancel"};
    plattform.sanduhr(true);
    plattform.sanduhr(true);
    for (const auto& [buchstabe, knoepfe] : {std::pair{"d", deutsch}, {"e", englisch}}) {
        sprache = buchstabe;
        am_naechsten_dialog<QMessageBox>([&, texte = knoepfe](QMessageBox& box) {
            EXPECT_EQ(box.text(), "erste\nzweite <i>");
            EXPECT_EQ(box.windowTitle(), QString::fromUtf8("Änderungen speichern ?"));
            EXPECT_EQ(box.informativeText(), "rescue.vel");
            EXPECT_EQ(box.icon(), QMessageBox::Warning);
            EXPECT_EQ(box.textFormat(), Qt::PlainText);
            QStringList gezeigt;
            for (const auto knopf : {QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel})
                gezeigt << box.button(knopf)->text();
            EXPECT_EQ(gezeigt, texte);
            EXPECT_EQ(QApplication::overrideCursor(), nullptr);
            QTest::mouseClick(box.button(QMessageBox::Cancel), Qt::LeftButton);
        });
        EXPECT_EQ(plattform.melde({.text = "erste\rzweite <i>",
                                   .titel = "Änderungen speichern ?",
                                   .symbol = Symbol::ausrufezeichen,
                                   .knoepfe = Knoepfe::ja_nein_abbrechen,
                                   .hinweis = "rescue.vel"}),
                  Antwort::abbrechen);
        ASSERT_NE(QApplication::overrideCursor(), nullptr) << "the work goes on after the message";
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    }
    for (int i = 0; i < 2; ++i) {
        plattform.sanduhr(false);
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    }
    am_naechsten_dialog<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.icon(), QMessageBox::Information);
        EXPECT_EQ(box.button(QMessageBox::Ok)->text(), "OK");
        box.accept();
    });
    plattform.melde({.text = "?", .symbol = Symbol::information});
}

TEST_F(QtPlattformTest, MeldungBrichtPfadeErstAmZeilenende) {
    std::string ordner = "/home/anna";
    while (ordner.size() < 250)
        ordner += "/Projekte/Umbau/altes_haus/Varianten";
    for (const std::string& pfad :
         {std::string("/home/haus.vel"), ordner, std::string(250, 'm') + ".vel: i"}) {
        am_naechsten_dialog<QMessageBox>([&](QMessageBox& box) {
            const auto* schild = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_informativelabel"));
            const QFontMetrics schrift = schild->fontMetrics();
            const QRect bild =
                schrift.boundingRect(0, 0, schild->width(), 9999, Qt::TextWordWrap, schild->text());
            EXPECT_LE(bild.width(), schild->width()) << pfad;
            EXPECT_LE(bild.height(), schild->height()) << pfad;
            EXPECT_TRUE(box.rect().contains(schild->geometry())) << pfad;
            const int breite = schrift.horizontalAdvance(qtext(pfad));
            EXPECT_LE(bild.height() / schrift.height(),
                      1 + breite * 5 / (2 * box.screen()->availableSize().width()))
                << pfad;
            QTest::keyClick(&box, Qt::Key_Escape);
        });
        plattform.melde({.text = "?", .hinweis = pfad});
    }
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

/// Types a name into a file dialog and confirms it.
void bestaetige(QFileDialog& box, const char* text = nullptr) {
    auto* name = box.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    if (text != nullptr) name->setText(QString::fromUtf8(text));
    QTest::keyClick(name, Qt::Key_Return);
}

TEST_F(QtPlattformTest, DateidialogOeffnetUndBrichtAb) {
    const Testordner ordner;
    const std::filesystem::path datei = ordner.schreibe("häuschen mit garten.vel", "x");
    Dateidialog dialog{.filter = "Alle Dateien (*.*)|*.*|VELM Dateien (*.vel)|*.vel",
                       .filterindex = 2,
                       .ordner = ordner.pfad()};
    am_naechsten_dialog<QFileDialog>([&](QFileDialog& box) {
        EXPECT_EQ(box.acceptMode(), QFileDialog::AcceptOpen);
        EXPECT_EQ(box.windowTitle(), QString::fromUtf8("Öffnen"));
        QStringList texte;
        for (const auto stelle : {QFileDialog::Accept, QFileDialog::Reject, QFileDialog::LookIn,
                                  QFileDialog::FileName, QFileDialog::FileType})
            texte << box.labelText(stelle);
        EXPECT_EQ(texte.join('|'), QString::fromUtf8("Ö&ffnen|Abbrechen|Suchen in:|Datei&name:|Dateityp:"));
        EXPECT_EQ(box.directory().absolutePath(), QDir(ordner.pfad()).absolutePath());
        const auto* typen = box.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
        EXPECT_EQ(typen->itemText(0), "Alle Dateien (*.*)");
        EXPECT_EQ(typen->currentText(), "VELM Dateien (*.vel)");
        bestaetige(box, "häuschen mit garten.vel");
    });
    EXPECT_EQ(plattform.dateidialog(dialog), datei);
    dialog.filterindex = 3;
    dialog.ordner = "/no/such/folder";
    am_naechsten_dialog<QFileDialog>([&](QFileDialog& box) {
        EXPECT_EQ(box.directory().absolutePath(), QDir::homePath());
        QTest::keyClick(&box, Qt::Key_Escape);
    });
    EXPECT_EQ(plattform.dateidialog(dialog), std::nullopt);
    dialog.ordner = ordner.pfad();
    am_naechsten_dialog<QFileDialog>([&](QFileDialog& box) { bestaetige(box, "gibt es nicht.vel"); });
    EXPECT_EQ(plattform.dateidialog(dialog), ordner / "gibt es nicht.vel") << "the caller judges the name";
}

TEST_F(QtPlattformTest, SpeichernSchlaegtVorUndHaengtDieEndungAn) {
    const Testordner ordner;
    const std::filesystem::path datei = ordner.schreibe("alt.vel", "x");
    const Dateidialog dialog{.art = Dateidialog::Art::speichern,
                             .filter = "VELM Dateien (*.vel)|*.vel",
                             .ordner = ordner.pfad(),
                             .dateiname = "alt.vel",
                             .endung = ".vel"};
    sprache = "e";
    am_naechsten_dialog<QFileDialog>([](QFileDialog& box) {
        EXPECT_EQ(box.acceptMode(), QFileDialog::AcceptSave);
        EXPECT_EQ(box.windowTitle(), "Save as");
        EXPECT_EQ(box.labelText(QFileDialog::Accept), "&Save");
        bestaetige(box);
    });
    EXPECT_EQ(plattform.dateidialog(dialog), datei);
    am_naechsten_dialog<QFileDialog>([](QFileDialog& box) { bestaetige(box, "neu"); });
    EXPECT_EQ(plattform.dateidialog(dialog), ordner / "neu.vel");
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

    for (const char* drucker : {"gibt es nicht mehr", ""}) {
        plattform.drucker_waehlen(drucker);
        EXPECT_EQ(plattform.aktueller_drucker(), drucker);
    }

    plattform.beenden();
    EXPECT_EQ(test::laufe_bis_zum_ende(), 0);
}

}  // namespace
}  // namespace velmaris
