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
        std::string alle;
        for (const std::string* text : {&t.txt_Aenderung_Titel, &t.txt_Klima_Titel, &t.txt_Ueberwaermung,
                                        &t.txt_Monat, &t.txt_Jahresbilanz, &t.txt_Raumluft, &t.txt_Aussenluft,
                                        &t.txt_Aenderung, &t.txt_Ersetzen, &t.txt_Klima_fehlt})
            alle += text->substr(0, text->find_first_of("\r\n")) + "|";
        for (int m = 1; m <= monate; ++m)
            alle += p->Monat(m).Name + "=" + monatskuerzel(*p)[static_cast<std::size_t>(m - 1)] + " ";
        return alle;
    };
    EXPECT_EQ(kurze("d"),
              "Änderungen speichern ?|Klimadatensatz nicht vorhanden|Überwärmung|Monat|Jahresbilanz|"
              "Raumlufttemperatur|Außenlufttemperatur|          Ihr Projekt wurde geändert.|"
              "Diese Datei ist bereits vorhanden.|   Klimadatensatz nicht gefunden!|"
              "Januar=Jan. Februar=Feb. März=Mär. April=Apr. Mai=Mai Juni=Jun. Juli=Jul. August=Aug. "
              "September=Sep. Oktober=Okt. November=Nov. Dezember=Dez. ");
    EXPECT_EQ(kurze("e").find("Save changes ?|Climatic data not found!|overheating|month|yearly balance|"),
              0U);
    EXPECT_EQ(kurze("E"), "||||||||||= = = = = = = = = = = = ") << "a foreign letter";
}

TEST(Sprachdatei, WirdGelesenErfragtUndBeimBenutzerGemerkt) {
    const Testordner ordner;
    const auto p = projekt("");
    p->AppPfad = ordner.pfad();
    std::optional<std::string> wahl;
    std::string gefragt;
    const auto fenster = [&] {
        gefragt += wahl.value_or("-");
        return wahl;
    };
    EXPECT_THROW(schreibe_sprache(*p, "d"), Dateifehler) << "there is no folder";
    std::filesystem::create_directories(ordner / "klima");
    sprache_lesen(*p, fenster);
    EXPECT_FALSE(datei_da(ordner / "klima/typ.dat") || datei_da(ordner / "klima"));
    wahl = "e";
    sprache_lesen(*p, fenster);
    EXPECT_EQ(p->Sprache, "e");
    EXPECT_EQ(inhalt(ordner / "klima/typ.dat"), "e\r\n");
    for (const auto& [bytes, sprache] :
         {std::pair{"e\r\n", "e"}, {" e, d\n", "e"}, {"fr\r\ne\r\n", "fr"}, {"", ""}, {"d", "d"}}) {
        ordner.schreibe("klima/typ.dat", bytes);
        sprache_lesen(*p, fenster);
        EXPECT_EQ(p->Sprache, sprache);
    }
    EXPECT_EQ(gefragt, "-e");
    p->Datenordner = ordner / "eigen/Velmaris";
    sprachtexte_setzen(*p);
    Testplattform plattform;
    sprache_merken(*p, plattform, "e");
    EXPECT_TRUE(plattform.meldungen.at(0).text.starts_with("Sprache wird beim nächsten Start"));
    EXPECT_EQ(p->Sprache, "d") << "until the next start";
    sprache_lesen(*p, fenster);
    EXPECT_EQ(p->Sprache, "e");
    EXPECT_EQ(inhalt(ordner / "eigen/Velmaris/klima/typ.dat"), "e\r\n");
    EXPECT_EQ(inhalt(ordner / "klima/typ.dat"), "d");
}

}  // namespace
}  // namespace velmaris
