#include "project/bild_speichern.h"

#include "tests/hilfen.h"
#include "tests/testplattform.h"
#include "tests/volle_festplatte.h"
#include "toolkit/fehler.h"

#include <gtest/gtest.h>
#include <memory>

namespace velmaris {
namespace {

class BildSpeichern : public testing::Test {
  protected:
    BildSpeichern() {
        sitzung.projektdatei = ordner / "Haus v2.vel";
        bild.titel = "A/V: Vergleich";
        bild.lege({0, 0, 30, 20});
        bild.zeichnen = [](Zeichenflaeche& flaeche) { flaeche.flaeche(1, 2, 3, 4, farben::rot); };
    }

    /// Saves under that name; the bytes of the file.
    std::string speichere(const char* name, const char* geschrieben) {
        plattform.dateien = {ordner / name};
        bild_speichern(sitzung, bild, [] { return "PNG-Bytes"; });
        return test::inhalt(ordner / geschrieben);
    }

    test::Testordner ordner;
    test::Testplattform plattform;
    std::unique_ptr<Projekt> p = std::make_unique<Projekt>();
    Sitzung sitzung{*p, plattform, [] {}};
    Bildfeld bild{"Picture"};
};

TEST_F(BildSpeichern, DieEndungWaehltDieArt) {
    EXPECT_TRUE(speichere("a", "a.svg").starts_with("<svg"));
    EXPECT_EQ(plattform.dialoge.back().dateiname, "Haus v2 A-V- Vergleich");
    EXPECT_EQ(plattform.dialoge.back().filter, "SVG-Bild|*.svg|PNG-Bild|*.png");
    EXPECT_EQ(speichere("b.PNG", "b.PNG"), "PNG-Bytes");
    EXPECT_TRUE(speichere("c.v2", "c.v2.svg").starts_with("<svg"));
    plattform.filterwahl = 2;
    EXPECT_EQ(speichere("d", "d.png"), "PNG-Bytes");
    EXPECT_TRUE(speichere("e.svg", "e.svg").starts_with("<svg"));
    bild.lade("karte.bmp");
    EXPECT_EQ(speichere("f.svg", "f.svg.png"), "PNG-Bytes") << "a picture of pixels";
    EXPECT_EQ(plattform.dialoge.back().filter, "PNG-Bild|*.png");
    sitzung.projektdatei.clear();
    bild_speichern(sitzung, bild, [] { return ""; });
    EXPECT_EQ(plattform.dialoge.back().dateiname, "A-V- Vergleich");
}

TEST_F(BildSpeichern, EinAltesBildBleibtGanz) {
    ordner.schreibe("a.svg", "alt");
    plattform.antworten = {Antwort::nein};
    EXPECT_EQ(speichere("a.svg", "a.svg"), "alt") << "not to be replaced";
    const test::VolleFestplatte voll(10);
    plattform.antworten = {Antwort::ja};
    EXPECT_THROW((void)speichere("a.svg", "a.svg"), Dateifehler);
    EXPECT_EQ(test::inhalt(ordner / "a.svg"), "alt");
    plattform.dateien = {ordner / "b.png"};
    EXPECT_THROW(bild_speichern(sitzung, bild, [] { return ""; }), Dateifehler) << "no memory";
    EXPECT_FALSE(std::filesystem::exists(ordner / "b.png"));
}

}  // namespace
}  // namespace velmaris
