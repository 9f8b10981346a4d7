#include "project/FILEIO.h"

#include "project/projektdatei.h"
#include "tests/project/projektlauf.h"
#include "toolkit/fehler.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmaris {
namespace {

using test::projektzeilen;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

class Fileio : public testing::Test, public test::Projektlauf {};

TEST_F(Fileio, StartIstEinUnbenanntesProjekt) {
    EXPECT_EQ(plattform().titel, "Velmaris - [unbenannt]");
    EXPECT_EQ(test::Testprogramm("e").plattform.titel, "Velmaris - [no name]");
    EXPECT_EQ(p().Datei, "default.vel");
    EXPECT_EQ(p().Datei_offen, 0);
    EXPECT_EQ(p().Geaendert, 0);
    EXPECT_EQ(p().FormLoadGuard, 0);
    EXPECT_GT(p().qh, 0);
}

TEST_F(Fileio, OeffnenRechnetUndSetztDenTitel) {
    const float vorher = p().qh;
    programm.haupt->e_menue.klicke("Energie");
    oeffne(haus);
    EXPECT_EQ(p().l, 12);
    EXPECT_NE(p().qh, vorher);
    EXPECT_EQ(p().Datei_offen, 1);
    EXPECT_EQ(p().Geaendert, 0);
    EXPECT_EQ(plattform().titel, "Velmaris - HAUS.VEL");
    EXPECT_TRUE(plattform().meldungen.empty());
    EXPECT_FALSE(plattform().sanduhren.back());
    EXPECT_TRUE(programm.haupt->e_geometrie.ebene.sichtbar());
}

TEST_F(Fileio, FalscheVersionLaesstDasProjektUndRechnetWeiter) {
    oeffne(haus);
    oeffne(programm.ordner.schreibe("alt.vel", "Velmaris Version 2.0\r\n 99\r\n"));
    ASSERT_EQ(plattform().meldungen.size(), 1U);
    EXPECT_EQ(meldung().titel, "Fehler");
    EXPECT_EQ(meldung().text,
              "Dies ist keine gültige Velmaris-Datendatei.\r\n\r\nDaten konnten nicht geladen werden!");
    EXPECT_THAT(meldung().hinweis, EndsWith("alt.vel"));
    EXPECT_EQ(p().l, 12);
    EXPECT_EQ(p().Datei, "default.vel");
    EXPECT_EQ(p().Datei_offen, 1);
    EXPECT_EQ(p().FormLoadGuard, 0);
    EXPECT_EQ(plattform().titel, "Velmaris - [unbenannt]");
}

TEST_F(Fileio, DerFehlerSagtWennNichtsMehrBerechnetWird) {
    const auto weit = schreibe("weit.vel", 2, " 60");
    const auto fremd = programm.ordner.schreibe("fremd.vel", "nichts");
    const auto nirgends = programm.ordner / "nirgends.vel";
    std::string voll = test::inhalt(haus);
    voll.resize(hoechste_projektgroesse, '\n');
    const auto genug = programm.ordner.schreibe("genug.vel", voll);
    const auto gross = programm.ordner.schreibe("gross.vel", voll + '\n');
    // How the hint of the message begins; whether nothing is calculated afterwards, and that is said.
    const auto scheitert = [this](const std::filesystem::path& was, const std::string& hinweis, bool steht,
                                  bool gesagt, std::int16_t geaendert = 0) {
        p().Geaendert = geaendert;
        oeffne(was, Antwort::abbrechen);
        EXPECT_EQ(meldung().text, "Dateifehler!") << was;
        EXPECT_THAT(meldung().hinweis, StartsWith(hinweis));
        EXPECT_EQ(p().FormLoadGuard, steht ? -1 : 0) << was;
        EXPECT_EQ(meldung().hinweis.find("Datei > Neu") != std::string::npos, gesagt) << meldung().hinweis;
    };
    scheitert(nirgends, pfadtext(nirgends), false, false);
    scheitert(gross, pfadtext(gross) + ": die Datei ist größer als 1 MB", false, false);
    scheitert(weit, pfadtext(weit), true, true);
    scheitert(nirgends, pfadtext(nirgends), true, true);
    scheitert("", "", true, false);
    scheitert(fremd, "l: Wert außerhalb", true, true);
    scheitert(haus, "", true, false, 1);
    programm.haupt->sitzung.alles_berechnen = [this] {
        if (p().FormLoadGuard == 0) throw Laufzeitfehler({"Division durch 0", "division by 0"});
    };
    scheitert(haus, pfadtext(haus), true, true);
    programm.haupt->sitzung.alles_berechnen = [this] { programm.haupt->alles_berechnen(); };
    EXPECT_EQ(plattform().dialoge.back().filter, "Alle Dateien (*.*)|*.*|VELM Dateien (*.vel)|*.vel");
    EXPECT_EQ(plattform().dialoge.back().filterindex, 2);
    p().Geaendert = 1;
    oeffne(programm.ordner.schreibe("kurz.vel", test::inhalt(haus).substr(0, 60)));
    EXPECT_EQ(p().Geaendert, 0) << "the changes of the former project are given up";
    oeffne(weit);
    plattform().dateien = {programm.ordner / "mischung.vel"};
    EXPECT_THROW(datei().datei_speichern(), Dateifehler) << "told, and the program goes on";
    EXPECT_EQ(plattform().titel, "Velmaris - MISCHUNG.VEL");
    oeffne(genug);
    EXPECT_EQ(plattform().titel, "Velmaris - GENUG.VEL");
    EXPECT_EQ(p().FormLoadGuard, 0);
}

TEST_F(Fileio, StellungenAusserhalbNennenZeileWertUndBereich) {
    struct Fall {
        int zeile;
        std::string inhalt, meldung;
    };
    for (const Fall& fall : {Fall{2, " 60", "(l): Wert außerhalb des Bereichs: 60 (2.0 .. 50.0)"},
                             {12, " 5", "(awn): Stellung außerhalb des Bereichs: 5 (0 .. 1)"},
                             {28, " 4", "(Dachraum_typ): "},
                             {31, " 2", "(cbk_hDach): Stellung außerhalb des Bereichs: 2 (0 .. 1)"},
                             {36, " 1.5", "(verschn): "},
                             {57, " 3", "(Innenwandart): "},
                             {61, "-3", "(hd): Wert außerhalb des Bereichs: -3 (0.0 .. 5.0)"},
                             {65, " 10", "(Heizsystem): "},
                             {67, " 3", "(Energietraeger): "}}) {
        oeffne(schreibe("fall.vel", fall.zeile, fall.inhalt));
        EXPECT_THAT(meldung().hinweis,
                    HasSubstr("fall.vel, Zeile " + std::to_string(fall.zeile) + " " + fall.meldung));
        p().Geaendert = 0;
        datei().datei_neu();
    }
}

TEST_F(Fileio, EineUnbrauchbareStationWirdErsetztUndDasProjektGiltAlsGeaendert) {
    programm.ordner.schreibe("klima/kurz.met", test::stationsbytes("Kurz").substr(0, 70000));
    programm.ordner.schreibe("klima/ordner.met/x", "");
    p().Klimaauswahl = 3;
    plattform().zufallszahl = 0.4;
    for (const char* fehler : {"nirgends.met: Datei nicht gefunden", "kurz.met: .* von 8766 Zeilen",
                               "ordner.met: .*ist ein Ordner"}) {
        const std::string station(fehler, std::string_view(fehler).find(':'));
        oeffne(schreibe("ort.vel", 56, station));
        EXPECT_EQ(meldung().text, p().texte.txt_Klima_fehlt);
        EXPECT_EQ(meldung().titel, p().texte.txt_Klima_Titel);
        EXPECT_THAT(meldung().hinweis, testing::ContainsRegex(fehler));
        EXPECT_EQ(p().Klimadatei, "fern.met");
        EXPECT_EQ(p().FormLoadGuard, 0);
        EXPECT_EQ(p().Geaendert, 1);
        EXPECT_EQ(plattform().titel, "Velmaris - ORT.VEL");
        datei().datei_speichern();
        EXPECT_EQ(projektzeilen(p())[55], "fern.met");
        EXPECT_EQ(p().Geaendert, 0);
    }
}

TEST_F(Fileio, NeuLaesstDasProjektGanzWennSeineStationFehlt) {
    oeffne(haus);
    laenge(15);
    const auto vorher = std::make_unique<Projekt>(p());
    std::filesystem::remove(programm.ordner / "klima/trier.met");
    plattform().antworten = {Antwort::nein};
    datei().datei_neu();
    EXPECT_THAT(meldung().hinweis, HasSubstr("trier.met: "));
    EXPECT_EQ(projektzeilen(p()), projektzeilen(*vorher));
    EXPECT_EQ(p().qh, vorher->qh);
    EXPECT_EQ(p().Datei, pfadtext(haus));
    EXPECT_EQ(p().Geaendert, 1);
    EXPECT_EQ(p().FormLoadGuard, 0);
    laenge(16);
    EXPECT_NE(p().qh, vorher->qh);
    datei().datei_speichern();
    EXPECT_EQ(laenge_in(haus), 16);
}

TEST_F(Fileio, NeuFragtNurNachAenderungen) {
    oeffne(haus);
    laenge(13);
    plattform().antworten = {Antwort::abbrechen};
    datei().datei_neu();
    EXPECT_EQ(p().l, 13);
    EXPECT_EQ(meldung().text,
              "          Ihr Projekt wurde geändert.\n\nMöchten Sie die Änderungen speichern?");
    plattform().antworten = {Antwort::ja};
    datei().datei_neu();
    EXPECT_EQ(p().l, 10);
    EXPECT_EQ(p().Datei_offen, 0);
    EXPECT_EQ(laenge_in(haus), 13);
    EXPECT_TRUE(plattform().dialoge.empty());
    const std::size_t fragen = plattform().meldungen.size();
    datei().datei_neu();
    EXPECT_EQ(plattform().meldungen.size(), fragen);
}

TEST_F(Fileio, SpeichernUnterErgaenztDieEndungUndFragtVorDemErsetzen) {
    const auto ordner = haus.parent_path();
    plattform().dateien = {ordner / "haus", ordner / "mein haus"};
    plattform().antworten = {Antwort::nein};
    p().Geaendert = 1;
    datei().datei_speichern();
    ASSERT_EQ(plattform().meldungen.size(), 1U);
    EXPECT_EQ(meldung().text,
              pfadtext(haus) + "\nDiese Datei ist bereits vorhanden.\n\nVorhandene Datei ersetzen?");
    EXPECT_EQ(meldung().hinweis, "");
    EXPECT_EQ(meldung().vorgabe, Antwort::nein);
    EXPECT_EQ(p().Datei, pfadtext(ordner / "mein haus.vel"));
    EXPECT_EQ(plattform().titel, "Velmaris - MEIN HAUS.VEL");
    EXPECT_EQ(p().Geaendert, 0);
    EXPECT_EQ(p().Datei_offen, 1);
    EXPECT_EQ(laenge_in(haus), 12);
    speichere_unter(ordner / "haus.alt");
    EXPECT_EQ(p().Datei, pfadtext(ordner / "haus.alt"));
}

TEST_F(Fileio, BeendenFragtNachEinemNamenUndStelltDenDruckerZurueck) {
    oeffne(haus);
    plattform().drucker = {"eins", "zwei"};
    p().Druckerindex = 1;
    p().Geaendert = 1;
    plattform().antworten = {Antwort::abbrechen, Antwort::ja};
    datei().programm_beenden();
    EXPECT_FALSE(plattform().beendet);
    EXPECT_EQ(plattform().druckername, "");
    datei().programm_beenden();
    EXPECT_EQ(plattform().dialoge.size(), 1U);
    EXPECT_TRUE(plattform().beendet);
    EXPECT_EQ(plattform().druckername, "zwei");
    for (const int keiner : {-1, 2}) {
        p().Druckerindex = static_cast<std::int16_t>(keiner);
        datei().programm_beenden();
        EXPECT_EQ(plattform().druckername, "zwei");
    }
}

TEST_F(Fileio, SchliessenStelltDenDruckerNurZurueckWennEsAbgebrochenWird) {
    p().Geaendert = 1;
    plattform().drucker = {"eins", "zwei"};
    for (const auto& [antwort, drucker] : {std::pair{Antwort::abbrechen, "eins"}, {Antwort::nein, "zwei"}}) {
        plattform().druckername = "zwei";
        plattform().antworten = {antwort};
        datei().fenster_schliessen();
        EXPECT_EQ(plattform().beendet, antwort == Antwort::nein);
        EXPECT_EQ(plattform().druckername, drucker);
    }
}

TEST_F(Fileio, EinVorbereitetesProjektIstUnveraendert) {
    laenge(15);
    datei().projekt_vorbereiten();
    EXPECT_EQ(p().l, 10);
    EXPECT_EQ(p().FormLoadGuard, 0);
    EXPECT_EQ(p().Geaendert, 0);
}

}  // namespace
}  // namespace velmaris
