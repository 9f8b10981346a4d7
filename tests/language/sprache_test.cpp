#include "language/c_Sprache.h"
#include "tests/hilfen.h"
#include "tests/testplattform.h"
#include "toolkit/fehler.h"

#include <gtest/gtest.h>
#include <memory>

namespace velmaris {
namespace {

using test::inhalt;
using test::Testordner;
using test::Testplattform;

std::unique_ptr<Projekt> projekt(const std::string& sprache) {
    auto p = std::make_unique<Projekt>();
    p->Sprache = sprache;
    return p;
}

TEST(Sprachtexte, StehenInDerSpracheDesProjekts) {
    const auto kurze = [](const std::string& sprache) {
        const auto p = projekt(sprache);
        sprachtexte_setzen(*p);
        const Texte& t = p->texte;
        EXPECT_EQ(
            t.txt_Sprache,
            "Sprache wird beim nächsten Start des Programms geändert!\r\rLanguage will be changed after "
            "the next start of the program!");
        std::string alle = t.txt_Aenderung_Titel + "|" + t.txt_Klima_Titel + "|" + t.txt_Ueberwaermung + "|" +
                           t.txt_Monat + "|" + t.txt_Jahresbilanz + "|" + t.txt_Raumluft + "|" +
                           t.txt_Aussenluft + "|";
        for (const std::string* lang : {&t.txt_Aenderung, &t.txt_Ersetzen, &t.txt_Klima_fehlt})
            alle += lang->substr(0, lang->find_first_of("\r\n")) + "|";
        const auto kuerzel = monatskuerzel(*p);
        for (int m = 1; m <= monate; ++m)
            alle += p->Monat(m).Name + "=" + kuerzel[static_cast<std::size_t>(m - 1)] + " ";
        return alle;
    };
    EXPECT_EQ(kurze("d"),
              "Änderungen speichern ?|Klimadatensatz nicht vorhanden|Überwärmung|Monat|Jahresbilanz|"
              "Raumlufttemperatur|Außenlufttemperatur|          Ihr Projekt wurde geändert.|"
              "Diese Datei ist bereits vorhanden.|   Klimadatensatz nicht gefunden!|"
              "Januar=Jan. Februar=Feb. März=Mär. April=Apr. Mai=Mai Juni=Jun. Juli=Jul. August=Aug. "
              "September=Sep. Oktober=Okt. November=Nov. Dezember=Dez. ");
    EXPECT_EQ(kurze("e"),
              "Save changes ?|Climatic data not found!|overheating|month|yearly balance|"
              "room air temperature|outdoor air temperature|        The project has been changed.|"
              "This file already exists.|     Climatic data not found!|"
              "January=Jan. February=Feb. March=Mar. April=Apr. May=May June=Jun. July=Jul. August=Aug. "
              "September=Sep. October=Oct. November=Nov. December=Dec. ");
    EXPECT_EQ(kurze("E"), "||||||||||= = = = = = = = = = = = ") << "a foreign letter";
}

class Sprachdatei : public testing::Test {
  protected:
    Sprachdatei() { p->AppPfad = ordner.pfad(); }

    Testordner ordner;
    std::unique_ptr<Projekt> p = projekt("");
    int gefragt = 0;
    std::optional<std::string> wahl;
    Sprachfenster fenster = [this] {
        ++gefragt;
        return wahl;
    };
};

TEST_F(Sprachdatei, WirdGelesenWieSieIst) {
    for (const auto& [bytes, sprache] : std::vector<std::pair<std::string, std::string>>{
             {"e\r\n", "e"}, {"d", "d"}, {" e, d\n", "e"}, {"fr\r\ne\r\n", "fr"}, {"", ""}}) {
        ordner.schreibe("klima/typ.dat", bytes);
        sprache_lesen(*p, fenster);
        EXPECT_EQ(p->Sprache, sprache);
    }
    EXPECT_EQ(gefragt, 0);
}

TEST_F(Sprachdatei, FehltUndDieWahlWirdGemerkt) {
    EXPECT_THROW(schreibe_sprache(*p, "d"), Dateifehler) << "there is no folder";
    std::filesystem::create_directories(ordner / "klima");
    sprache_lesen(*p, fenster);
    EXPECT_EQ(gefragt, 1);
    EXPECT_EQ(p->Sprache, "");
    EXPECT_TRUE(!datei_da(ordner / "klima/typ.dat") && !datei_da(ordner / "klima"));
    wahl = "e";
    sprache_lesen(*p, fenster);
    sprache_lesen(*p, fenster);
    EXPECT_EQ(gefragt, 2);
    EXPECT_EQ(p->Sprache, "e");
    EXPECT_EQ(inhalt(ordner / "klima/typ.dat"), "e\r\n");
}

TEST_F(Sprachdatei, EineNeueWahlGiltBeimNaechstenStartUndLiegtBeimBenutzer) {
    ordner.schreibe("klima/typ.dat", "d\r\n");
    p->Datenordner = ordner / "eigen/Velmaris";
    sprache_lesen(*p, fenster);
    sprachtexte_setzen(*p);
    Testplattform plattform;
    sprache_merken(*p, plattform, "e");
    ASSERT_EQ(plattform.meldungen.size(), 1U);
    EXPECT_EQ(plattform.meldungen[0].text, p->texte.txt_Sprache);
    EXPECT_EQ(p->Sprache, "d");
    sprache_lesen(*p, fenster);
    EXPECT_EQ(p->Sprache, "e");
    EXPECT_EQ(inhalt(ordner / "eigen/Velmaris/klima/typ.dat"), "e\r\n");
    EXPECT_EQ(inhalt(ordner / "klima/typ.dat"), "d\r\n");
}

}  // namespace
}  // namespace velmaris
