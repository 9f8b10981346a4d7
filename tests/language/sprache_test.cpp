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

TEST(Sprachtexte, DeutschUndEnglisch) {
    struct Fall {
        std::string Texte::*feld;
        std::string de;
        std::string en;
    };
    const std::vector<Fall> faelle{
        {&Texte::txt_Aenderung,
         std::string(10, ' ') + "Ihr Projekt wurde geändert." + "\n\n" +
             "Möchten Sie die Änderungen speichern?",
         std::string(8, ' ') + "The project has been changed." + "\n\n" + "Do you want to save the changes?"},
        {&Texte::txt_Aenderung_Titel, "Änderungen speichern ?", "Save changes ?"},
        {&Texte::txt_Ersetzen, "Diese Datei ist bereits vorhanden.\n\nVorhandene Datei ersetzen?",
         "This file already exists.\n\n" + std::string(6, ' ') + "Overwrite it?"},
        {&Texte::txt_Klima_fehlt,
         std::string(3, ' ') + "Klimadatensatz nicht gefunden!" + "\r" +
             "Default-Klimadatensatz wird geladen!",
         std::string(5, ' ') + "Climatic data not found!" + "\r" + "Default climatic data will be loaded!"},
        {&Texte::txt_Klima_Titel, "Klimadatensatz nicht vorhanden", "Climatic data not found!"},
        {&Texte::txt_Ueberwaermung, "Überwärmung", "overheating"},
        {&Texte::txt_Monat, "Monat", "month"},
        {&Texte::txt_Jahresbilanz, "Jahresbilanz", "yearly balance"},
        {&Texte::txt_Raumluft, "Raumlufttemperatur", "room air temperature"},
        {&Texte::txt_Aussenluft, "Außenlufttemperatur", "outdoor air temperature"},
    };
    const auto deutsch = projekt("d");
    const auto englisch = projekt("e");
    sprachtexte_setzen(*deutsch);
    sprachtexte_setzen(*englisch);
    for (const Fall& fall : faelle) {
        EXPECT_EQ(deutsch->texte.*fall.feld, fall.de);
        EXPECT_EQ(englisch->texte.*fall.feld, fall.en);
    }
    EXPECT_EQ(deutsch->texte.txt_Sprache, englisch->texte.txt_Sprache);
    EXPECT_EQ(
        deutsch->texte.txt_Sprache,
        "Sprache wird beim nächsten Start des Programms geändert!\r\rLanguage will be changed after the "
        "next start of the program!");
}

TEST(Sprachtexte, Monatsnamen) {
    const auto namen = [](const std::string& sprache) {
        const auto p = projekt(sprache);
        sprachtexte_setzen(*p);
        std::string alle;
        for (const Monatswerte& monat : p->Monat)
            alle += monat.Name + "=" + monat.Kurz + " ";
        return alle;
    };
    EXPECT_EQ(namen("d"),
              "Januar=Jan. Februar=Feb. März=Mär. April=Apr. Mai=Mai Juni=Jun. Juli=Jul. August=Aug. "
              "September=Sep. Oktober=Okt. November=Nov. Dezember=Dez. ");
    EXPECT_EQ(namen("e"),
              "January=Jan. February=Feb. March=Mar. April=Apr. May=May June=Jun. July=Jul. August=Aug. "
              "September=Sep. October=Oct. November=Nov. December=Dec. ");
    EXPECT_EQ(namen("x"), "= = = = = = = = = = = = ");
}

TEST(Sprachtexte, FremderBuchstabeSetztKeineSprache) {
    const auto p = projekt("E");
    sprachtexte_setzen(*p);
    EXPECT_EQ(p->texte.txt_Monat, "");
    EXPECT_EQ(p->texte.txt_Aenderung, "");
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
    std::filesystem::create_directories(ordner / "klima");
    sprache_lesen(*p, fenster);
    EXPECT_EQ(gefragt, 1);
    EXPECT_EQ(p->Sprache, "");
    EXPECT_FALSE(datei_da(ordner / "klima/typ.dat"));
    wahl = "e";
    sprache_lesen(*p, fenster);
    sprache_lesen(*p, fenster);
    EXPECT_EQ(gefragt, 2);
    EXPECT_EQ(p->Sprache, "e");
    EXPECT_EQ(inhalt(ordner / "klima/typ.dat"), "e\r\n");
}

TEST_F(Sprachdatei, MerkenGiltErstBeimNaechstenStart) {
    ordner.schreibe("klima/typ.dat", "d\r\n");
    p->Sprache = "d";
    sprachtexte_setzen(*p);
    Testplattform plattform;
    sprache_merken(*p, plattform, "e");
    ASSERT_EQ(plattform.meldungen.size(), 1U);
    EXPECT_EQ(plattform.meldungen[0].titel, "Velmaris");
    EXPECT_EQ(plattform.meldungen[0].text, p->texte.txt_Sprache);
    EXPECT_EQ(plattform.meldungen[0].symbol, Symbol::information);
    EXPECT_EQ(p->Sprache, "d");
    EXPECT_EQ(p->texte.txt_Monat, "Monat");
    EXPECT_EQ(inhalt(ordner / "klima/typ.dat"), "e\r\n");
}

TEST_F(Sprachdatei, SchreibenOhneOrdnerScheitert) {
    EXPECT_THROW(schreibe_sprache(*p, "d"), Dateifehler);
    EXPECT_EQ(p->Sprache, "");
}

TEST_F(Sprachdatei, LiegtBeimBenutzerWoDerProgrammordnerNichtBeschriebenWird) {
    ordner.schreibe("klima/typ.dat", "d\r\n");
    p->Datenordner = ordner / "eigen/Velmaris";
    sprache_lesen(*p, fenster);
    EXPECT_EQ(p->Sprache, "d");
    Testplattform plattform;
    sprache_merken(*p, plattform, "e");
    sprache_lesen(*p, fenster);
    EXPECT_EQ(p->Sprache, "e");
    EXPECT_EQ(inhalt(ordner / "eigen/Velmaris/klima/typ.dat"), "e\r\n");
    EXPECT_EQ(inhalt(ordner / "klima/typ.dat"), "d\r\n");
}

TEST_F(Sprachdatei, DateiDaKenntKeineOrdner) {
    ordner.schreibe("klima/typ.dat", "d");
    EXPECT_TRUE(datei_da(ordner / "klima/typ.dat"));
    EXPECT_FALSE(datei_da(ordner / "klima"));
    EXPECT_FALSE(datei_da(ordner / "nichts/typ.dat"));
}

}  // namespace
}  // namespace velmaris
