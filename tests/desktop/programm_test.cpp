#include "desktop/programm.h"

#include "tests/desktop/programmprobe.h"
#include "tests/testprogramm.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QTest>
#include <QUrl>

namespace velmaris {
namespace {

using test::am_naechsten_dialog;
using test::antworte;
using test::laufe_bis_zum_ende;
using test::waehle_datei;

using ProgrammTest = test::Programmprobe;

TEST_F(ProgrammTest, KommtInBeidenSprachenHoch) {
    struct Fall {
        const char* sprache;
        const char* titel;
        const char* datei;
        const char* energie;
        const char* gewinne;
        const char* haekchen;
    };
    for (const Fall& fall :
         {Fall{"d", "Velmaris - [unbenannt]", "&Datei", "Energie", "Interne Gewinne", "mnuSpracheDeutsch"},
          Fall{"e", "Velmaris - [no name]", "File", "Energy", "internal gains", "mnuSpracheEnglisch"}}) {
        starte(fall.sprache);
        EXPECT_TRUE(programm->fenster().isVisible());
        EXPECT_EQ(programm->fenster().windowTitle(), fall.titel);
        EXPECT_EQ(menue("mnuFile").text(), fall.datei);
        EXPECT_EQ(such<QAbstractButton>("E_Menue", "Energie").text(), fall.energie);
        EXPECT_EQ(such("E_Gebaeude", "Frame2").property("title").toString(), fall.gewinne);
        for (const char* eintrag : {"mnuSpracheDeutsch", "mnuSpracheEnglisch"})
            EXPECT_EQ(menue(eintrag).isChecked(), std::string(eintrag) == fall.haekchen) << eintrag;
        EXPECT_TRUE(such("Haupt", "E_Geometrie").isVisible());
        EXPECT_TRUE(such("Haupt", "A_Uebersicht").isVisible());
        EXPECT_EQ(p().Geaendert, 0);
    }
}

TEST_F(ProgrammTest, EbenenWechselnMitKnoepfenUndMenue) {
    starte("d");
    struct Fall {
        const char* leiste;
        const char* knopf;
        const char* ebene;
        const char* eintrag;
    };
    for (const Fall& fall : {Fall{"E_Menue", "Fenster", "E_Fenster", "mnuWinFens"},
                             {"E_Menue", "Daemmung", "E_Daemmung", "mnuWinDaem"},
                             {"E_Menue", "Gebaeude", "E_Gebaeude", "mnuWinGeb"},
                             {"E_Menue", "Klima", "E_Klima", "mnuWinKlima"},
                             {"E_Menue", "Energie", "E_Energie", "mnuWinEnerg"},
                             {"E_Menue", "Geometrie", "E_Geometrie", "mnuWinGeo"},
                             {"A_Menue", "Klima", "A_Klima", nullptr},
                             {"A_Menue", "Heizen", "A_Heizen", nullptr},
                             {"A_Menue", "Kuehlen", "A_Kuehlen", nullptr},
                             {"A_Menue", "Sankey", "A_Sankey", nullptr},
                             {"A_Menue", "Uebersicht", "A_Uebersicht", nullptr}}) {
        auto& knopf = such<QAbstractButton>(fall.leiste, fall.knopf);
        klicke(knopf);
        EXPECT_TRUE(such("Haupt", fall.ebene).isVisible()) << fall.ebene;
        EXPECT_FALSE(knopf.isEnabled()) << "marks the plane on show";
        if (fall.eintrag == nullptr) continue;
        menue(fall.eintrag).trigger();
        EXPECT_TRUE(such("Haupt", fall.ebene).isVisible()) << fall.eintrag;
        int sichtbare = 0;
        for (const QWidget* ebene : programm->fenster().centralWidget()->findChildren<QWidget*>(
                 QRegularExpression("^E_[A-Z].*"), Qt::FindDirectChildrenOnly))
            sichtbare += ebene->isVisible() && ebene->objectName() != "E_Menue" ? 1 : 0;
        EXPECT_EQ(sichtbare, 1) << fall.eintrag;
    }
}

TEST_F(ProgrammTest, SpeichertUnterNamenUndOeffnetWieder) {
    starte("d");
    auto& laenge = such<Scrollleiste>("E_Geometrie", "l_sb");
    laenge.setFocus();
    QTest::keyClick(&laenge, Qt::Key_Right);
    ASSERT_EQ(p().l, 11.0F);
    EXPECT_EQ(p().Geaendert, 1);
    waehle_datei(ordner / "mein haus");
    menue("mnuFileunter").trigger();
    EXPECT_TRUE(std::filesystem::exists(ordner / "mein haus.vel"));
    EXPECT_EQ(programm->fenster().windowTitle(), "Velmaris - MEIN HAUS.VEL");
    EXPECT_EQ(p().Geaendert, 0);

    menue("mnuFileNeu").trigger();
    EXPECT_EQ(laenge.value(), 100);
    klicke(such<QAbstractButton>("E_Menue", "Klima"));
    waehle_datei(ordner / "mein haus.vel");
    menue("mnuFileOeffnen").trigger();
    EXPECT_EQ(laenge.value(), 110);
    EXPECT_EQ(programm->fenster().windowTitle(), "Velmaris - MEIN HAUS.VEL");
    EXPECT_TRUE(laenge.isVisible()) << "back on the first plane";
}

TEST_F(ProgrammTest, AbgebrochenesOeffnenIstEinDateifehler) {
    starte("e");
    am_naechsten_dialog<QFileDialog>([](QFileDialog& box) {
        QTest::keyClick(&box, Qt::Key_Escape);
        antworte(QMessageBox::Ok, [](QMessageBox& meldung) { EXPECT_EQ(meldung.text(), "Dateifehler!"); });
    });
    menue("mnuFileOeffnen").trigger();
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

/// The entries of the context menu of a text field are the toolkit's own texts.
TEST_F(ProgrammTest, EigeneTexteVonQtFolgenDerSprache) {
    const QString verzeichnis = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    const bool vorhanden = QFileInfo::exists(verzeichnis + "/qtbase_de.qm");
    for (const auto& [sprache, erwartet] :
         {std::pair{"d", vorhanden ? "Alles auswählen" : "Select All"}, {"e", "Select All"}}) {
        starte(sprache);
        QLineEdit zeile;
        const std::unique_ptr<QMenu> menue(zeile.createStandardContextMenu());
        const QString letzter = menue->actions().last()->text().section(u'\t', 0, 0).remove(u'&');
        EXPECT_EQ(letzter, QString::fromUtf8(erwartet)) << sprache;
    }
}

TEST_F(ProgrammTest, NimmtEineFallengelasseneDatei) {
    starte("d");
    waehle_datei(ordner / "a.vel");
    menue("mnuFileunter").trigger();
    menue("mnuFileNeu").trigger();
    QMimeData ding;
    ding.setUrls({QUrl::fromLocalFile(QString::fromStdString((ordner / "a.vel").string()))});
    QDragEnterEvent kommt(QPoint(9, 9), Qt::CopyAction, &ding, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&programm->fenster(), &kommt);
    EXPECT_TRUE(kommt.isAccepted());
    QDropEvent faellt(QPointF(9, 9), Qt::CopyAction, &ding, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&programm->fenster(), &faellt);
    EXPECT_EQ(programm->fenster().windowTitle(), "Velmaris - A.VEL");

    ding.setUrls({QUrl::fromLocalFile(QStringLiteral("/tmp/bild.png"))});
    QDragEnterEvent fremd(QPoint(9, 9), Qt::CopyAction, &ding, Qt::LeftButton, Qt::NoModifier);
    fremd.ignore();
    QApplication::sendEvent(&programm->fenster(), &fremd);
    EXPECT_FALSE(fremd.isAccepted());
}

TEST_F(ProgrammTest, SchliessenFragtNachAenderungen) {
    starte("d");
    p().Geaendert = 1;
    antworte(QMessageBox::Cancel, [](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), QString::fromUtf8("Änderungen speichern ?"));
        EXPECT_EQ(box.text(), QString::fromUtf8("          Ihr Projekt wurde geändert.\n\n"
                                                "Möchten Sie die Änderungen speichern?"));
    });
    EXPECT_FALSE(programm->fenster().close());
    EXPECT_TRUE(programm->fenster().isVisible());
    antworte(QMessageBox::No);
    QTimer::singleShot(0, &programm->fenster(), &QWidget::close);
    EXPECT_EQ(laufe_bis_zum_ende(), 0) << "ends without saving";
}

TEST_F(ProgrammTest, FehlerInDateienBeendenNichtAndereSchon) {
    starte("e");
    programm->haupt().e_geometrie.l_sb.geaendert = [] { throw Dateifehler("x.bmp", {"fehlt", "missing"}); };
    auto& laenge = such<Scrollleiste>("E_Geometrie", "l_sb");
    antworte(QMessageBox::Ok, [](QMessageBox& box) { EXPECT_TRUE(box.text().contains("x.bmp")); });
    QTest::keyClick(&laenge, Qt::Key_Right);

    programm->haupt().e_geometrie.l_sb.geaendert = [] {
        throw Laufzeitfehler({"Überlauf", "overflow"}, "qh");
    };
    p().l = 0;  // never to be seen again
    QString rettung;
    antworte(QMessageBox::Ok, [&](QMessageBox& box) {
        EXPECT_TRUE(box.text().contains("overflow"));
        EXPECT_TRUE(box.informativeText().startsWith("The program ends."))
            << box.informativeText().toStdString();
        rettung = box.informativeText();
    });
    QTimer::singleShot(0, &laenge, [&] { QTest::keyClick(&laenge, Qt::Key_Right); });
    EXPECT_EQ(laufe_bis_zum_ende(), 1);
    const std::filesystem::path datei = rettung.section(u'\n', 1).toStdString();
    EXPECT_EQ(test::aus_rettung(datei)->p().l, 10.0F) << rettung.toStdString();
}

/// Notes the names of the windows that come up.
class Fensterzaehler : public QObject {
  public:
    Fensterzaehler() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* ding, QEvent* ereignis) override {
        const auto* fenster = qobject_cast<const QWidget*>(ding);
        if (ereignis->type() == QEvent::Show && fenster != nullptr && fenster->isWindow())
            namen.append(fenster->objectName());
        return false;
    }

    QStringList namen;
};

TEST_F(ProgrammTest, SchnellerStartZeigtNurDasHauptfenster) {
    const Fensterzaehler zaehler;
    starte("d");
    EXPECT_EQ(zaehler.namen, QStringList{"Haupt"});
}

TEST_F(ProgrammTest, OhneStationKommtDasHauptfensterDochUndRechnetNachDerWahl) {
    const auto klima = ordner / "klima";
    std::filesystem::rename(klima, ordner / "weg");
    antworte(QMessageBox::Ok,
             [](QMessageBox& box) { EXPECT_TRUE(box.informativeText().contains("trier.met")); });
    programm = std::make_unique<Programm>(ordner.pfad(), "d", Befehlszeile("d"));
    programm->starten();
    ASSERT_EQ(QApplication::activeModalWidget(), nullptr);
    ASSERT_TRUE(programm->fenster().isVisible());
    fuer_jede_ebene([](QWidget& ebene) { EXPECT_FALSE(ebene.grab().isNull()); });
    QTest::keyClick(&such<Scrollleiste>("E_Geometrie", "l_sb"), Qt::Key_Right);
    EXPECT_GT(p().l, 10.0F);
    EXPECT_EQ(p().qh, 0);
    std::filesystem::rename(ordner / "weg", klima);
    programm->haupt().e_klima.Option.setze(nummer(Klimabereich::deutschland));
    programm->haupt().e_klima.Klimaregionwahl.setze(3);
    EXPECT_GT(p().qh, 0);
}

TEST_F(ProgrammTest, StartfensterZuHeisstProgrammZu) {
    programm = std::make_unique<Programm>(ordner.pfad(), "d", Befehlszeile(""));
    programm->starten();
    QTimer::singleShot(0, QApplication::activeModalWidget(), &QWidget::close);
    EXPECT_EQ(laufe_bis_zum_ende(), 0);
    EXPECT_FALSE(programm->fenster().isVisible());
}

TEST_F(ProgrammTest, StartfensterBautAufKnopfdruckAuf) {
    programm = std::make_unique<Programm>(ordner.pfad(), "e", Befehlszeile(""));
    programm->starten();
    QWidget* start = QApplication::activeModalWidget();
    ASSERT_NE(start, nullptr);
    EXPECT_EQ(start->objectName(), "Start");
    EXPECT_FALSE(programm->fenster().isVisible());
    klicke(*start->findChild<QAbstractButton*>(QStringLiteral("OK_Button")));
    EXPECT_FALSE(start->isVisible());
    EXPECT_TRUE(programm->fenster().isVisible());

    menue("mnuQuestInfo").trigger();
    EXPECT_TRUE(start->isVisible()) << "now the about box";
    start->close();
    EXPECT_FALSE(start->isVisible());
    EXPECT_TRUE(programm->fenster().isVisible());
}

}  // namespace
}  // namespace velmaris
