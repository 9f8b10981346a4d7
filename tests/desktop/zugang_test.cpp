#include "desktop/widgets/zugang.h"

#include "desktop/platform/qt_text.h"
#include "desktop/widgets/bildflaeche.h"
#include "planes/scrolltabelle.h"
#include "tests/desktop/programmprobe.h"

#include <QAccessible>
#include <QDialog>
#include <QGroupBox>
#include <QRegularExpression>
#include <set>

namespace velmaris {
namespace {

/// What screen readers are told.
class ZugangTest : public test::Programmprobe {
  protected:
    static QAccessibleInterface& zugang(QWidget& ding) {
        return *QAccessible::queryAccessibleInterface(&ding);
    }

    /// Whether a user has to do with it by itself, as opposed to what the toolkit puts into its widgets.
    static bool zaehlt(const QWidget& ding) {
        const bool rahmen = qobject_cast<const QGroupBox*>(&ding) != nullptr;
        const bool bild = qobject_cast<const Bildflaeche*>(&ding) != nullptr;
        const bool innen = ding.objectName().startsWith(QLatin1String("qt_")) || ding.objectName().isEmpty();
        return !innen && (rahmen || bild || ding.isWindow() || (ding.focusPolicy() & Qt::TabFocus) != 0);
    }
};

/// Planes and windows, shown or not: each thing has a name of the language and says what kind of thing it is.
TEST_F(ZugangTest, AllesHatEinenNamenUndEineRolle) {
    const QRegularExpression kennung(QStringLiteral("^[A-Za-z]\\w*(_\\w*|\\d)$"));
    for (const char* sprache : {"d", "e"}) {
        starte(sprache);
        fuer_jede_ebene([](QWidget&) {});
        std::size_t zahl = 0;
        for (QWidget* ding : programm->fenster().findChildren<QWidget*>()) {
            if (!zaehlt(*ding)) continue;
            ++zahl;
            const std::string wo = sprache + (" " + ding->window()->objectName().toStdString()) + "." +
                                   ding->objectName().toStdString();
            const QString name = zugang(*ding).text(QAccessible::Name);
            EXPECT_FALSE(name.trimmed().isEmpty()) << wo;
            EXPECT_FALSE(kennung.match(name).hasMatch()) << wo << ": " << utf8(name);
            EXPECT_NE(zugang(*ding).role(), QAccessible::NoRole) << wo;
            EXPECT_NE(zugang(*ding).role(), QAccessible::Client) << wo;
        }
        EXPECT_GT(zahl, 150U);
    }
}

/// A slider tells value and range in the unit of its display, and takes them.
TEST_F(ZugangTest, ReglerSagenWasIhreAnzeigeSagt) {
    starte("d");
    std::size_t zahl = 0;
    for (auto* leiste : programm->fenster().findChildren<Scrollleiste*>()) {
        const Scrollzeile* zeile = scrollzeile(utf8(leiste->objectName()));
        if (zeile == nullptr) continue;
        ++zahl;
        const QAccessibleInterface& regler = zugang(*leiste);
        EXPECT_EQ(regler.role(), QAccessible::Slider);
        const QString groesse = leiste->objectName().section(u'_', 0, 0);
        const QString wert = regler.text(QAccessible::Value);
        const QRegularExpression anzeige(u'^' + groesse + QStringLiteral("_anz$"),
                                         QRegularExpression::CaseInsensitiveOption);
        const auto schilder = programm->fenster().findChildren<QLabel*>(anzeige);
        ASSERT_EQ(schilder.size(), 1) << utf8(groesse);
        EXPECT_TRUE(schilder[0]->text().contains(wert.section(u' ', 0, 0).remove(u'°')))
            << utf8(groesse) << " " << utf8(schilder[0]->text()) << ", " << utf8(wert);
    }
    EXPECT_EQ(zahl, scrollzeilen().size());

    struct Fall {
        const char* leiste;
        double wert, kleinster, groesster, schritt;
        int stellung;
        const char* text;
    };
    for (const Fall& fall : {Fall{"l_sb", 12.34, 2, 50, 1, 123, "12.3 m"},
                             {"h_sb", 6, 2, 50, 0.2, -60, "6.0 m"},
                             {"ag_sb", 3, 1, 20, 1, -3, "3"},
                             {"orient_sb", 20, -45, 45, 5, -20, "20°"},
                             {"ran_sb", 25, 0, 100, 5, 25, "25 %"},
                             {"intg_sb", 20.4, 0, 400, 5, 41, "20.5 kWh/(m² a)"}}) {
        auto& leiste = *programm->fenster().findChild<Scrollleiste*>(QLatin1String(fall.leiste));
        QAccessibleValueInterface& regler = *zugang(leiste).valueInterface();
        regler.setCurrentValue(fall.wert);
        EXPECT_EQ(leiste.value(), fall.stellung) << fall.leiste;
        EXPECT_EQ(zugang(leiste).text(QAccessible::Value), fall.text);
        EXPECT_NEAR(regler.currentValue().toDouble(), fall.wert, 0.11);
        EXPECT_DOUBLE_EQ(regler.minimumValue().toDouble(), fall.kleinster);
        EXPECT_DOUBLE_EQ(regler.maximumValue().toDouble(), fall.groesster);
        EXPECT_DOUBLE_EQ(regler.minimumStepSize().toDouble(), fall.schritt);
    }
}

TEST_F(ZugangTest, ListenDerEnergieebeneHabenEintraegeUndSagenWasGewaehltIst) {
    starte("e");
    klicke("E_Menue", "Energie");
    auto& knopf = such<QAbstractButton>("E_Energie", "Command1");
    const auto beschreibung = [&knopf] {
        return zugang(knopf).text(QAccessible::Description).section(u'\n', -1);
    };
    const QString gewaehlt = such<QLabel>("E_Energie", "Label_System").text();
    EXPECT_EQ(beschreibung(), gewaehlt);
    klicke(knopf);
    QWidget& eintrag = *QApplication::focusWidget();
    EXPECT_EQ(zugang(eintrag).role(), QAccessible::ListItem);
    EXPECT_EQ(zugang(eintrag).text(QAccessible::Name), gewaehlt);
    EXPECT_EQ(zugang(such("E_Energie", "Frame_Auswahl")).role(), QAccessible::List);
    taste(Qt::Key_Down);
    taste(Qt::Key_Return);
    EXPECT_EQ(beschreibung(), such<QLabel>("E_Energie", "Label_System").text());
    EXPECT_NE(beschreibung(), gewaehlt);
}

}  // namespace
}  // namespace velmaris
