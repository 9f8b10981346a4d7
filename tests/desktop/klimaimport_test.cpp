#include "climate/E_Klimaimport.h"
#include "desktop/qt_text.h"
#include "programmprobe.h"
#include "tests/climate/importprobe.h"
#include "toolkit/text.h"

#include <QComboBox>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>
#include <gmock/gmock.h>

namespace velmaris {
namespace {

using test::am_naechsten_dialog;
using test::antworte;
using test::Quellbau;
using testing::ElementsAre;

constexpr const char* ebene = "E_Klimaimport";

/// The import window in the whole program.
class KlimaimportTest : public test::Programmprobe {
  protected:
    void oeffne_fenster(const std::string& sprache) {
        starte(sprache);
        menue("mnuKlimaImportieren").trigger();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&such("Haupt", ebene)));
    }

    /// Picks a source in the file dialog, by the mouse and the keyboard.
    void waehle_quelle(const std::string& name, const std::string& bytes) {
        test::waehle_datei(ordner.schreibe(name, bytes));
        klicke(such<QAbstractButton>(ebene, "Command1"));
        QApplication::processEvents();
    }

    void tippe(const char* feld, const char* text) {
        auto& zeile = such<QLineEdit>(ebene, feld);
        QTest::mouseClick(&zeile, Qt::LeftButton);
        zeile.selectAll();
        QTest::keyClicks(&zeile, QString::fromUtf8(text));
    }

    void waehle(const char* liste, int zeile) { test::waehle_zeile(such<QComboBox>(ebene, liste), zeile); }

    /// Presses the start button; the input box gets that name.
    void starte_import(const QString& name) {
        am_naechsten_dialog<QInputDialog>([=](QInputDialog& box) {
            box.setTextValue(name);
            QTest::keyClick(box.findChild<QLineEdit*>(), Qt::Key_Return);
        });
        klicke(such<QAbstractButton>(ebene, "Command2"));
    }

    [[nodiscard]] E_Klimaimport& e() { return programm->haupt().e_klimaimport; }

    [[nodiscard]] std::string station(const std::string& name) const {
        const auto datei = ordner / ("klima/" + name + ".met");
        return std::filesystem::exists(datei) ? test::inhalt(datei) : std::string();
    }
};

/// Columns with tabs between them: temperature, something else, total, diffuse.
std::string tabelle() {
    return "Kopf\n" + Quellbau{}.reihen([](const test::Quellwerte& w) {
        return test::dezimal(w.Ta) + "\tx\t" + std::to_string(w.G_Gh) + "\t" + std::to_string(w.G_Dh) +
               "\t5\t6\t7\t8";
    });
}

/// Columns with blanks between them, right-aligned.
std::string spaltendatei() {
    return "  Ta   Gh   Dh\n" + Quellbau{}.reihen([](const test::Quellwerte& w) {
        std::string zeile;
        for (const std::string& text : {test::dezimal(w.Ta), std::to_string(w.G_Gh), std::to_string(w.G_Dh)})
            zeile += std::string(6 - text.size(), ' ') + text;
        return zeile;
    });
}

/// The pictures are kept in the folder that VELMARIS_BILDER names, to be looked at.
TEST_F(KlimaimportTest, NichtsIstAbgeschnitten) {
    const QTemporaryDir fluechtig;
    const QString zielordner = qEnvironmentVariable("VELMARIS_BILDER", fluechtig.path());
    struct Fall {
        const char* bild;
        std::string quelle;
        const char* ort;
        int spalte;
    };
    const std::vector<Fall> faelle{{"leer", "", "", 1},
                                   {"tabulator", tabelle(), "Łódź, Zoo", 1},
                                   {"spalten", spaltendatei(), "", 1},
                                   {"meteonorm", Quellbau{}.meteonorm(), "", 1},
                                   {"epw", Quellbau{}.epw(), "", 13}};
    for (const char* sprache : {"d", "e"}) {
        oeffne_fenster(sprache);
        QWidget& fenster = such("Haupt", ebene);
        for (const Fall& fall : faelle) {
            if (!fall.quelle.empty()) waehle_quelle("quelle.txt", fall.quelle);
            if (fall.bild == std::string("spalten")) e().Datentrennung.setze(2);
            if (e().Kopfzeilen.text().empty()) e().Kopfzeilen.tippe("1");
            if (*fall.ort != '\0') e().Standortname.schreibe(fall.ort);
            e().AlleEingabenTesten();
            e().HScroll1.bewege(fall.spalte);
            e().Fortschritt.zeige(fall.spalte > 1);
            QTest::qWait(50);
            EXPECT_EQ(fenster.width(), 1010) << fall.bild;
            EXPECT_LE(fenster.height(), 666) << fall.bild;
            test::pruefe_platz(fenster, std::string(sprache) + " " + fall.bild);
            const QString datei =
                QStringLiteral("import_%1_%2.png").arg(QLatin1String(fall.bild), QLatin1String(sprache));
            EXPECT_TRUE(fenster.grab().save(zielordner + QLatin1Char('/') + datei));
        }
        test::pruefe_namen(fenster);
    }
}

}  // namespace
}  // namespace velmaris
