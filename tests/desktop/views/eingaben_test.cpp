#include "desktop/widgets/bildflaeche.h"
#include "project/feldtabelle.h"
#include "tests/desktop/programmprobe.h"
#include "tests/testprogramm.h"

#include <QRadioButton>
#include <QRegularExpression>

namespace velmaris {
namespace {

/// The controls of the input planes, worked through their widgets.
class EingabenTest : public test::Programmprobe {
  protected:
    [[nodiscard]] std::vector<std::string> projekt() { return test::projektzeilen(p()); }

    /// What the project file holds for a quantity, whatever the case of its name; empty without one.
    std::string stand(const QString& groesse) {
        for (const Feldzeile& zeile : felder()) {
            const QString name =
                QString::fromUtf8(zeile.name.data(), static_cast<qsizetype>(zeile.name.size()));
            if (zeile.zeile > 0 && name.compare(groesse, Qt::CaseInsensitive) == 0)
                return projekt().at(static_cast<std::size_t>(zeile.zeile - 1));
        }
        return {};
    }

    /// Moves a scroll field by one key: one small step, told to its quantity and to its display, and no
    /// other number of the project. What the display showed before, typed into it, leads back.
    void pruefe_schieber(QWidget& ebene, Scrollleiste& leiste) {
        const QString name = leiste.objectName().chopped(3);
        const QRegularExpression muster("^" + name + "_anz$", QRegularExpression::CaseInsensitiveOption);
        auto* anzeige = ebene.findChildren<QLabel*>(muster).value(0);
        ASSERT_NE(anzeige, nullptr) << name.toStdString();
        const QString text = anzeige->text();
        const std::string vorher = stand(name);
        const int stellung = leiste.value();
        p().Geaendert = 0;
        leiste.setFocus();
        const bool senkrecht = leiste.orientation() == Qt::Vertical;
        QTest::keyClick(&leiste, senkrecht ? Qt::Key_Up : Qt::Key_Right);
        EXPECT_EQ(leiste.value(), stellung + (senkrecht ? -1 : 1) * leiste.singleStep())
            << name.toStdString();
        EXPECT_NE(stand(name), vorher) << name.toStdString();
        EXPECT_NE(anzeige->text(), text) << name.toStdString();
        EXPECT_EQ(p().Geaendert, 1) << name.toStdString();
        QTest::mouseDClick(anzeige, Qt::LeftButton);
        dynamic_cast<QLineEdit&>(*QApplication::focusWidget()).setText(text);
        taste(Qt::Key_Return);
        EXPECT_EQ(fokus(), leiste.objectName().toStdString());
        EXPECT_EQ(leiste.value(), stellung) << name.toStdString();
        EXPECT_EQ(stand(name), vorher) << name.toStdString();
    }

    /// Works a list, check field or option once, if it can be; the project is another one then.
    bool pruefe_wahl(QWidget& teil) {
        auto* liste = qobject_cast<QComboBox*>(&teil);
        auto* knopf = qobject_cast<QAbstractButton*>(&teil);
        if (!teil.isVisible() || (liste == nullptr && (knopf == nullptr || !knopf->isCheckable())))
            return false;
        // A station alone, or what is chosen already.
        if (liste != nullptr ? liste->count() < 2 : teil.inherits("QRadioButton") && knopf->isChecked())
            return true;
        const std::vector<std::string> vorher = projekt();
        if (liste != nullptr)
            test::waehle_zeile(*liste, liste->currentIndex() == 0 ? 1 : 0);
        else
            klicke(*knopf);
        EXPECT_NE(projekt(), vorher) << teil.objectName().toStdString();
        if (!teil.inherits("QCheckBox")) return true;
        klicke(*knopf);
        EXPECT_EQ(projekt(), vorher) << teil.objectName().toStdString();
        return true;
    }
};

TEST_F(EingabenTest, JedesBedienelementErreichtDasProjekt) {
    starte("d");
    klicke("E_Geometrie", "Check_Dachgeschoss");
    haupt().e_fenster.Option1.setze(1);
    int schieber = 0;
    int wahlen = 0;
    const auto pruefe_alle = [&](QWidget& ebene, const char* namen) {
        for (auto* leiste : ebene.findChildren<Scrollleiste*>(QRegularExpression(namen))) {
            if (!leiste->isVisible()) continue;
            pruefe_schieber(ebene, *leiste);
            ++schieber;
        }
    };
    for (const Ebenenleiste::Eintrag& eintrag : haupt().e_menue.eintraege()) {
        haupt().e_menue.klicke(eintrag.knopf->name);
        QWidget& ebene = such("Haupt", eintrag.ebene->name.c_str());
        pruefe_alle(ebene, "_[Ss]b$");
        for (QWidget* teil :
             ebene.findChildren<QWidget*>(QRegularExpression("^(?!Check_Dach|Option1[01]?$)")))
            wahlen += pruefe_wahl(*teil) ? 1 : 0;
        if (eintrag.ebene->name != "E_Fenster") continue;
        for (const char* reiter : {"Command_HR0", "Command_HR2", "Command_HR3"}) {
            klicke("E_Fenster", reiter);
            EXPECT_FALSE(such("E_Fenster", reiter).isEnabled()) << reiter;
            pruefe_alle(ebene, "^(kf|gf|ra|versch)");
        }
    }
    EXPECT_EQ(schieber, 6 + 4 + 4 * 5 + 9 + 7) << "of geometry, windows, insulation and building";
    EXPECT_EQ(wahlen, 2 + 1 + 6 + 6 + 3) << "of these and of the climate";
}

TEST_F(EingabenTest, KlimaMitOptionenListenKarteUndPostleitzahl) {
    for (const char* station : {"bremen.met", "hamburg.met", "passau.met"})
        ordner.schreibe(std::string("klima/") + station, test::stationsbytes(station));
    ordner.schreibe("klima/plz.txt", "542;04\r\n940;11\r\n");
    starte("d");
    klicke("E_Menue", "Klima");
    klicke("E_Klima", "Option1");
    EXPECT_EQ(p().Geaendert, 0) << "the region of the station is only marked";
    auto& karte = such<Bildflaeche>("E_Klima", "Picture1");
    QTest::mouseClick(&karte, Qt::LeftButton, {}, QPoint(112, 22));
    EXPECT_EQ(p().Klimadatei, "bremen.met");
    auto& plz = such<QLineEdit>("E_Klima", "plz");
    tippe(plz, "9a4b0321");
    EXPECT_EQ(plz.text(), "94032");
    QTest::keyClick(&plz, Qt::Key_Return);
    EXPECT_EQ(p().Klimadatei, "passau.met");
    QTest::mouseClick(&karte, Qt::LeftButton, {}, QPoint(112, 22));
    EXPECT_EQ(plz.text(), "") << "a click on the map clears the post code";
    tippe(plz, "54290");
    klicke("E_Klima", "PLZsuchen");
    EXPECT_EQ(p().Klimadatei, "trier.met");

    klicke("E_Klima", "Option3");
    auto& rolle = such<Scrollleiste>("E_Klima", "HScroll1");
    QTest::keyClick(&rolle, Qt::Key_Home);
    EXPECT_EQ(such("E_Klima", "Picture3").x(), 0);
    QTest::mouseClick(&rolle, Qt::LeftButton, {}, test::teil(rolle, QStyle::SC_ScrollBarAddLine));
    EXPECT_EQ(such("E_Klima", "Picture3").x(), -10);
    for (const auto& [schliesst, datei] :
         {std::pair{"", "trier.met"}, {"Command2", "trier.met"}, {"Command1", "bremen.met"}}) {
        klicke("E_Klima", "Image1");
        test::waehle_zeile(such<QComboBox>("E_Zoom_Klima", "Klimaregionwahl2"), 2);
        EXPECT_EQ(p().Klimadatei, "trier.met") << "not before it is confirmed";
        *schliesst == 0 ? QTest::keyClick(&such("Haupt", "E_Zoom_Klima"), Qt::Key_Escape)
                        : klicke("E_Zoom_Klima", schliesst);
        EXPECT_FALSE(such("Haupt", "E_Zoom_Klima").isVisible());
        EXPECT_EQ(p().Klimadatei, datei);
    }
}

}  // namespace
}  // namespace velmaris
