#include "planes/eingabehinweise.h"
#include "tests/desktop/programmprobe.h"

#include <QHelpEvent>
#include <QRegularExpression>
#include <QToolTip>

namespace velmaris {
namespace {

using EingabetippTest = test::Programmprobe;

/// The tip that comes up where the pointer rests on a widget.
std::string tipp_auf(QWidget& fenster) {
    QToolTip::hideText();
    const QPoint mitte = fenster.rect().center();
    QHelpEvent ruhe(QEvent::ToolTip, mitte, fenster.mapToGlobal(mitte));
    QApplication::sendEvent(&fenster, &ruhe);
    return QToolTip::text().toStdString();
}

TEST_F(EingabetippTest, JedeEingabeSagtWasSieIst) {
    starte("d");
    int eingaben = 0;
    for (const Eingabehinweis& hinweis : eingabehinweise()) {
        const std::string name(hinweis.name.de);
        QWidget& ebene = such("Haupt", std::string(hinweis.ebene).c_str());
        for (const std::string_view feld : hinweis.felder) {
            const QString anfang = QString::fromUtf8(feld.data(), static_cast<qsizetype>(feld.size()));
            for (auto* teil : ebene.findChildren<QWidget*>(QRegularExpression("^" + anfang + "\\d?$"))) {
                if (teil->objectName() != anfang && !teil->inherits("QRadioButton")) continue;
                EXPECT_NE(tipp_auf(*teil).find("<b>" + name + "</b><br>"), std::string::npos) << feld;
                EXPECT_TRUE(teil->accessibleDescription().startsWith(QString::fromUtf8(
                    hinweis.erklaerung.de.data(), static_cast<qsizetype>(hinweis.erklaerung.de.size()))))
                    << feld;
                ++eingaben;
            }
        }
    }
    // 46 scroll fields; 2 + 1 and 4 + 2 choices of geometry and windows; 3 + 1 + 3 of insulation, 4 + 2 of
    // the building; climate 3; energy 3 with their buttons
    EXPECT_EQ(eingaben, 46 + 3 + 6 + 7 + 6 + 3 + 6);
}

TEST_F(EingabetippTest, SchieberAnzeigeUndBeschriftungSagenDasselbe) {
    starte("e");
    const std::string tipp =
        "<p><b>U-values of the walls</b><br>Heat flow through the wall per m² and kelvin, for each "
        "facade.<br>Range: 0.01 to 1.50 W/(m² K)<br>Common: old building 1.40; new building 0.24; passive "
        "house 0.15</p>";
    for (const char* teil : {"kwn_sb", "Label3"})
        EXPECT_EQ(tipp_auf(such("E_Daemmung", teil)), tipp);
    EXPECT_EQ(tipp_auf(such("E_Daemmung", "kwn_anz")), tipp + "<p>Double click or F2: type a value</p>");
    EXPECT_EQ(such("E_Daemmung", "kwn_sb").accessibleDescription().toStdString(),
              "Heat flow through the wall per m² and kelvin, for each facade. Range: 0.01 to 1.50 W/(m² K) "
              "Common: old building 1.40; new building 0.24; passive house 0.15");
    EXPECT_EQ(tipp_auf(such("E_Gebaeude", "Frame3")), tipp_auf(such("E_Gebaeude", "Troom_sb")))
        << "a frame of one input";
    EXPECT_EQ(tipp_auf(such("E_Daemmung", "ugd")),
              "<p>non-heated cellar (with insulation)</p><p><b>lower floor towards</b><br>What lies below "
              "the lower floor.</p>");
}

}  // namespace
}  // namespace velmaris
