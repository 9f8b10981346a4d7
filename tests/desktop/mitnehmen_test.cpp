#include "desktop/platform/qt_text.h"
#include "desktop/platform/stil.h"
#include "desktop/widgets/bildflaeche.h"
#include "tests/desktop/programmprobe.h"
#include "toolkit/bildmitnahme.h"
#include "toolkit/text.h"

#include <QAccessible>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGroupBox>
#include <QMenu>
#include <QMimeData>

namespace velmaris {
namespace {

using test::waehle_datei;

/// What leaves the windows by the menus of pictures and frames.
class MitnehmenTest : public test::Programmprobe {
  protected:
    /// The menu of a widget as the menu key brings it up, a bar between its entries.
    static std::string oeffne_menue(QWidget& fenster) {
        QContextMenuEvent wunsch(QContextMenuEvent::Keyboard, QPoint(1, 1),
                                 fenster.mapToGlobal(QPoint(1, 1)));
        QApplication::sendEvent(&fenster, &wunsch);
        const auto* menue = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QStringList texte;
        for (const QAction* eintrag : menue != nullptr ? menue->actions() : QList<QAction*>())
            texte << eintrag->text();
        return utf8(texte.join('|'));
    }

    /// Chooses an entry (from 0) of the menu that is up.
    void waehle(int eintrag) const {
        auto& menue = dynamic_cast<QMenu&>(*QApplication::activePopupWidget());
        QAction* gewaehlt = menue.actions().at(eintrag);
        menue.hide();
        programm->fenster().activateWindow();
        gewaehlt->trigger();
    }

    static const QMimeData& ablage() { return *QGuiApplication::clipboard()->mimeData(); }
};

TEST_F(MitnehmenTest, JedesBildHatEinMenueFuerDieZwischenablage) {
    for (const auto& [sprache, bild, werte] :
         {std::tuple{"d", "Bild &kopieren|Bild &speichern unter ...", "|&Werte kopieren"},
          {"e", "&Copy picture|&Save picture as ...", "|Copy &values"}}) {
        starte(sprache);
        int bilder = 0, tafeln = 0;
        fuer_jede_ebene([&, bild = bild, werte = werte](QWidget& ebene) {
            for (auto* flaeche : ebene.findChildren<Bildflaeche*>()) {
                if (!flaeche->isVisible()) continue;
                const Bildfeld& feld = flaeche->feld();
                const std::string wo = ebene.objectName().toStdString() + "." + feld.name;
                ASSERT_EQ(oeffne_menue(*flaeche), std::string(bild) + (feld.werte ? werte : "")) << wo;
                waehle(0);
                const auto image = ablage().imageData().value<QImage>();
                const Einzelbild mass = einzelbild(feld);
                EXPECT_FALSE(bildname(feld).empty()) << wo;
                EXPECT_EQ(image.size(), QSizeF(2 * mass.breite, 2 * mass.hoehe).toSize()) << wo;
                EXPECT_EQ(ablage().hasFormat("image/svg+xml"), als_svg_moeglich(feld)) << wo;
                const QRgb grund = image.pixel(0, 0);
                bool bemalt = false;
                for (int y = 0; y < image.height() && !bemalt; ++y)
                    for (int x = 0; x < image.width(); ++x)
                        bemalt |= image.pixel(x, y) != grund;
                EXPECT_TRUE(bemalt) << wo;
                ++bilder;
                if (!feld.werte) continue;
                oeffne_menue(*flaeche);
                waehle(2);
                EXPECT_EQ(utf8(ablage().text()), tabulatortext(feld.werte())) << wo;
                ++tafeln;
            }
        });
        EXPECT_EQ(bilder, 29 + 4) << "house, plan, weight and one map besides those with values";
        EXPECT_EQ(tafeln, 29);
    }
}

TEST_F(MitnehmenTest, RahmenGebenIhreFigurenUndSindMitDerTasteErreichbar) {
    starte("e");
    for (const auto& [leiste, ebene, rahmen, anfang] :
         {std::tuple{"A_Menue", "A_Klima", "Frame1",
                     "quantity\tvalue\tunit\nMaximum temperature of the year\t"},
          {"A_Menue", "A_Klima", "Frame2", "quantity\tvalue\tunit\nMean U-value\t"},
          {"E_Menue", "E_Klima", "Frame_Klimadaten", "quantity\tvalue\tunit\nmean temperature of the year\t"},
          {"E_Menue", "E_Energie", "Frame1", "quantity\tvalue\tunit\nheat energy demand\t"},
          {"E_Menue", "E_Energie", "Frame8", "quantity\tvalue\nfuel oil\t"}}) {
        klicke(leiste, ebene + 2);
        QWidget& gruppe = such(ebene, rahmen);
        gruppe.setFocus(Qt::TabFocusReason);
        EXPECT_EQ(gruppe.grab().toImage().pixel(1, 20), stilfarben::betonung) << "shows the focus";
        EXPECT_TRUE(gruppe.accessibleDescription().contains(": ")) << rahmen;
        taste(Qt::Key_F10, Qt::ShiftModifier);
        waehle(0);
        EXPECT_EQ(utf8(ablage().text()).substr(0, std::string(anfang).size()), anfang);
    }
}

TEST_F(MitnehmenTest, GespeichertWirdAlsSvgOderPngUndEinAltesBildBleibtGanz) {
    starte("d");
    klicke("A_Menue", "Heizen");
    QWidget& chart = such("A_Heizen", "Heizbilanz");
    const auto speichere = [&](const std::filesystem::path& datei, const auto& pruefe) {
        oeffne_menue(chart);
        waehle_datei(datei, pruefe);
        waehle(1);
    };
    speichere(ordner / "bilanz", [](QFileDialog& box) {
        EXPECT_EQ(utf8(box.findChild<QLineEdit*>("fileNameEdit")->text()), "Wärmebilanz pro Monat");
        EXPECT_EQ(box.nameFilters().size(), 2);
    });
    EXPECT_EQ(test::inhalt(ordner / "bilanz.svg"), svg_bild(haupt().a_heizen.Heizbilanz));
    speichere(ordner / "bilanz", [](QFileDialog& box) { box.selectNameFilter(box.nameFilters().at(1)); });
    EXPECT_EQ(QImage(qtext(pfadtext(ordner / "bilanz.png"))).size(), QSize(660, 280));
    test::antworte(QMessageBox::Ok, [](QMessageBox& box) {
        EXPECT_TRUE(box.text().contains("/dev/null/velmaris.svg")) << utf8(box.text());
    });
    speichere("/dev/null/velmaris", [](QFileDialog&) {});
}

TEST_F(MitnehmenTest, VorlesendeErfahrenWasEinDiagrammZeigt) {
    starte("e");
    const auto vorgelesen = [&](const char* ebene, const char* bild, QAccessible::Text was) {
        return utf8(QAccessible::queryAccessibleInterface(&such(ebene, bild))->text(was));
    };
    haupt().p.Monat(1).Kuehlbedarf = haupt().p.f_nutz;
    EXPECT_EQ(vorgelesen("A_Kuehlen", "KuehlbedarfMonat", QAccessible::Name), "Cooling demand per month");
    EXPECT_EQ(vorgelesen("A_Kuehlen", "KuehlbedarfMonat", QAccessible::Description).substr(0, 56),
              "Cooling demand per month: January 1.0, February 0, March");
    EXPECT_EQ(vorgelesen("A_Uebersicht", "Temperaturen", QAccessible::Name), "Enlarge the temperature chart");
    EXPECT_TRUE(vorgelesen("A_Uebersicht", "Temperaturen", QAccessible::Description)
                    .starts_with("Temperatures in July: outdoor air temperature from "));
    EXPECT_EQ(vorgelesen("E_Geometrie", "Picture1", QAccessible::Name), "orientation");
}

}  // namespace
}  // namespace velmaris
