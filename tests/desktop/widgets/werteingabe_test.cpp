#include "desktop/widgets/schwebeschild.h"
#include "desktop/widgets/scrollleiste.h"
#include "tests/desktop/programmprobe.h"

#include <QAccessible>

namespace velmaris {
namespace {

/// The room temperature, 20 degrees at first, typed in the whole program.
class WerteingabeTest : public test::Programmprobe {
  protected:
    void oeffne_ebene(const std::string& sprache = "d") {
        starte(sprache);
        klicke("E_Menue", "Gebaeude");
    }

    [[nodiscard]] Scrollleiste& leiste() { return such<Scrollleiste>("E_Gebaeude", "Troom_sb"); }
    [[nodiscard]] QLabel& anzeige() { return such<QLabel>("E_Gebaeude", "troom_anz"); }

    /// The line over the display, nothing while none is open.
    [[nodiscard]] QLineEdit* zeile() {
        QLineEdit* offen = nullptr;
        for (auto* eine : such("Haupt", "E_Gebaeude").findChildren<QLineEdit*>("Werteingabe"))
            if (eine->isVisible()) offen = eine;
        return offen;
    }

    /// What an objection says, empty for none.
    [[nodiscard]] std::string einwand() {
        for (auto* schild : such("Haupt", "E_Gebaeude").findChildren<Schwebeschild*>())
            if (schild->isVisible()) return schild->text().toStdString();
        return {};
    }
};

TEST_F(WerteingabeTest, OeffnetUndSchliesstMitMausUndTasten) {
    oeffne_ebene();
    const auto klick = [&] { QTest::mouseDClick(&anzeige(), Qt::LeftButton); };
    const auto tippe = [&](const char* tasten) {
        return [=, this] {
            leiste().setFocus();
            QTest::keyClicks(QApplication::focusWidget(), QString::fromUtf8(tasten).left(1));
            QTest::keyClicks(QApplication::focusWidget(), QString::fromUtf8(tasten).mid(1));
        };
    };
    const auto f2 = [&] { leiste().setFocus(), taste(Qt::Key_F2); };
    const auto druecke = [](Qt::Key key) { return [key] { taste(key); }; };
    const auto gehe_weg = [&] {
        QTest::mouseClick(&such("Haupt", "E_Gebaeude"), Qt::LeftButton, {}, {2, 2});
    };
    const struct {
        std::function<void()> oeffne;
        const char* inhalt;
        const char* dazu;
        std::function<void()> schliesse;
        int stellung;
        const char* fokus;
    } faelle[] = {
        {klick, "20.0", "21", druecke(Qt::Key_Return), 210, "Troom_sb"},
        {f2, "21.0", "-3,45 C", druecke(Qt::Key_Enter), -34, "Troom_sb"},
        {tippe("22"), "22", ",5", druecke(Qt::Key_Return), 225, "Troom_sb"},
        {tippe("-5"), "-5", "", druecke(Qt::Key_Return), -50, "Troom_sb"},
        {tippe(",5"), ",5", "", druecke(Qt::Key_Return), 5, "Troom_sb"},
        {klick, "0.5", "21", druecke(Qt::Key_Escape), 5, "Troom_sb"},
        {klick, "0.5", "21", gehe_weg, 5, "E_Gebaeude"},
        {klick, "0.5", "21", druecke(Qt::Key_Tab), 5, "lw_sb"},
        {klick, "0.5", "21", druecke(Qt::Key_Backtab), 5, "Troom_sb"},
        {klick, "0.5", "21", [&] { klicke("E_Menue", "Klima"), klicke("E_Menue", "Gebaeude"); }, 5,
         "Troom_sb"},
        // As by a drag, the field that moves gives way.
        {klick, "0.5", "30", druecke(Qt::Key_Return), 269, "Troom_sb"},
    };
    for (const auto& fall : faelle) {
        SCOPED_TRACE(testing::Message() << fall.inhalt << " " << fall.dazu << " " << fall.stellung);
        fall.oeffne();
        ASSERT_NE(zeile(), nullptr);
        EXPECT_EQ(zeile()->text(), fall.inhalt);
        EXPECT_TRUE(zeile()->hasFocus());
        EXPECT_TRUE(zeile()->geometry().contains(
            anzeige().mapTo(zeile()->parentWidget(), anzeige().rect().center())));
        QTest::keyClicks(zeile(), QString::fromUtf8(fall.dazu));
        fall.schliesse();
        EXPECT_EQ(zeile(), nullptr);
        EXPECT_EQ(leiste().value(), fall.stellung);
        EXPECT_FLOAT_EQ(p().Troom, static_cast<float>(fall.stellung) / 10);
        EXPECT_EQ(fokus(), fall.fokus);
    }
}

TEST_F(WerteingabeTest, SagtDenBereichUndLaesstDenWert) {
    oeffne_ebene("e");
    leiste().setFocus();
    taste(Qt::Key_F2);
    for (const auto& [text, antwort] : {std::pair{"41 C", "Out of range: -10.0 to 40.0 °C"},
                                        {"warm", "Please type a number: -10.0 to 40.0 °C"}}) {
        QTest::keyClicks(zeile(), QString::fromUtf8(text));
        EXPECT_EQ(einwand(), "");
        taste(Qt::Key_Return);
        ASSERT_NE(zeile(), nullptr);
        EXPECT_EQ(einwand(), antwort);
        const QAccessibleInterface* vorgelesen = QAccessible::queryAccessibleInterface(zeile());
        EXPECT_EQ(vorgelesen->text(QAccessible::Description), antwort);
        EXPECT_EQ(vorgelesen->text(QAccessible::Name), leiste().accessibleName());
        EXPECT_EQ(zeile()->selectedText(), QString::fromUtf8(text)) << "to be typed over";
    }
    EXPECT_EQ(p().Troom, 20);
    taste(Qt::Key_Escape);
    EXPECT_EQ(einwand(), "");
    EXPECT_EQ(p().Geaendert, 0);
}

/// Typed by hand like moved by hand: the type of the window becomes another one, on all facades; and a wall
/// to a neighbour has no window to be typed.
TEST_F(WerteingabeTest, WirktWieEinZug) {
    oeffne_ebene();
    klicke("E_Gebaeude", "aws_cb");
    klicke("E_Menue", "Fenster");
    auto& g = such<Scrollleiste>("E_Fenster", "gfs_sb");
    g.setFocus();
    QTest::keyClicks(&g, "0");
    QTest::keyClicks(QApplication::focusWidget(), ",62");
    taste(Qt::Key_Return);
    EXPECT_FLOAT_EQ(p().gfn, 0.62F);
    EXPECT_EQ(p().fensters_typ, 7);
    const auto offen = [&] {
        return such("Haupt", "E_Fenster").findChildren<QLineEdit*>("Werteingabe").size();
    };
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(offen(), 0);
    QTest::mouseDClick(&such("E_Fenster", "fs_anz"), Qt::LeftButton);
    EXPECT_EQ(offen(), 0);
    QTest::mouseDClick(&such("E_Fenster", "fn_anz"), Qt::LeftButton);
    EXPECT_EQ(offen(), 1);
}

}  // namespace
}  // namespace velmaris
