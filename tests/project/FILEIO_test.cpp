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

TEST_F(Fileio, OeffnenRechnetUndSetztDenTitel) {
    EXPECT_EQ(plattform().titel, "Velmaris - [unbenannt]");
    EXPECT_EQ(p().Datei_offen, 0);
    const float vorher = p().qh;
    programm.haupt->e_menue.klicke("Energie");
    p().Geaendert = 1;
    oeffne(haus);
    EXPECT_EQ(p().l, 12);
    EXPECT_NE(p().qh, vorher);
    EXPECT_EQ(p().Datei_offen, 1);
    EXPECT_EQ(p().Geaendert, 0);
    EXPECT_EQ(plattform().titel, "Velmaris - HAUS.VEL");
    EXPECT_EQ(plattform().meldungen.size(), 1U) << "the question about the changes";
    EXPECT_FALSE(plattform().sanduhren.back());
    EXPECT_TRUE(programm.haupt->e_geometrie.ebene.sichtbar());
}

TEST_F(Fileio, FalscheVersionLaesstDasProjektUndRechnetWeiter) {
    oeffne(haus);
    oeffne(programm.ordner.schreibe("alt.vel", "Velmaris Version 2.0\r\n 99\r\n"));
    ASSERT_EQ(plattform().meldungen.size(), 1U);
    EXPECT_EQ(meldung().text,
              "Dies ist keine gültige Velmaris-Datendatei.\r\n\r\nDaten konnten nicht geladen werden!");
    EXPECT_THAT(meldung().hinweis, EndsWith("alt.vel"));
    EXPECT_EQ(p().l, 12);
    EXPECT_EQ(p().Datei, "default.vel");
    EXPECT_EQ(p().FormLoadGuard, 0);
    EXPECT_EQ(plattform().titel, "Velmaris - [unbenannt]");
}

TEST_F(Fileio, DerFehlerSagtWennNichtsMehrBerechnetWird) {
    const auto weit = schreibe("weit.vel", 2, " 60");
    const auto fremd = programm.ordner.schreibe("fremd.vel", "nichts");
    const auto nirgends = programm.ordner / "nirgends.vel";
    const auto schalter = schreibe("schalter.vel", 12, " 5");
    const auto gross = programm.ordner.schreibe("gross.vel", std::string(hoechste_projektgroesse + 1, ' '));
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
    scheitert(schalter, pfadtext(schalter) + ", Zeile 12 (awn): Stellung außerhalb", true, true);
    scheitert(weit, pfadtext(weit) + ", Zeile 2 (l): Wert außerhalb des Bereichs: 60 (2.0 .. 50.0)", true,
              true);
    scheitert(nirgends, pfadtext(nirgends), true, true);
    scheitert("", "", true, false);
    scheitert(fremd, "l: Wert außerhalb", true, true);
    scheitert(haus, "", true, false, 1);
    programm.haupt->sitzung.alles_berechnen = [this] {
        if (p().FormLoadGuard == 0) throw Laufzeitfehler({"Division durch 0", "division by 0"});
    };
    scheitert(haus, pfadtext(haus), true, true);
    programm.haupt->sitzung.alles_berechnen = [this] { programm.haupt->alles_berechnen(); };
    oeffne(weit);
    plattform().dateien = {programm.ordner / "mischung.vel"};
    EXPECT_THROW(datei().datei_speichern(), Dateifehler) << "told, and the program goes on";
    EXPECT_EQ(plattform().titel, "Velmaris - MISCHUNG.VEL");
    oeffne(haus);
    EXPECT_EQ(plattform().titel, "Velmaris - HAUS.VEL");
    EXPECT_EQ(p().FormLoadGuard, 0);
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
        EXPECT_THAT(meldung().hinweis, testing::ContainsRegex(fehler));
        EXPECT_EQ(p().Klimadatei, "fern.met");
        EXPECT_EQ(p().Geaendert, 1);
        EXPECT_EQ(plattform().titel, "Velmaris - ORT.VEL");
        datei().datei_speichern();
        EXPECT_EQ(p().Geaendert, 0);
    }
}

TEST_F(Fileio, NeuLaesstDasProjektGanzWennSeineStationFehlt) {
    oeffne(haus);
    laenge(15);
    const auto vorher = projektzeilen(p());
    std::filesystem::remove(programm.ordner / "klima/trier.met");
    plattform().antworten = {Antwort::nein};
    datei().datei_neu();
    EXPECT_THAT(meldung().hinweis, HasSubstr("trier.met: "));
    EXPECT_EQ(projektzeilen(p()), vorher);
    EXPECT_EQ(p().Geaendert, 1);
    laenge(16);
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
}

TEST_F(Fileio, SpeichernUnterErgaenztDieEndungUndFragtVorDemErsetzen) {
    const auto ordner = haus.parent_path();
    plattform().dateien = {ordner / "haus", ordner / "mein haus"};
    plattform().antworten = {Antwort::nein};
    p().Geaendert = 1;
    datei().datei_speichern();
    EXPECT_EQ(meldung().text,
              pfadtext(haus) + "\nDiese Datei ist bereits vorhanden.\n\nVorhandene Datei ersetzen?");
    EXPECT_EQ(meldung().vorgabe, Antwort::nein);
    EXPECT_EQ(plattform().dialoge.at(1).ordner, ordner) << "a new choice begins at the first";
    EXPECT_EQ(plattform().dialoge.at(1).dateiname, "haus.vel");
    EXPECT_EQ(p().Datei, pfadtext(ordner / "mein haus.vel"));
    EXPECT_EQ(plattform().titel, "Velmaris - MEIN HAUS.VEL");
    EXPECT_EQ(p().Geaendert, 0);
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
    p().Druckerindex = 2;
    datei().programm_beenden();
    EXPECT_EQ(plattform().druckername, "zwei") << "there is no third one";
    p().Druckerindex = 0;
    p().Geaendert = 1;
    for (const auto& [antwort, drucker] : {std::pair{Antwort::nein, "zwei"}, {Antwort::abbrechen, "eins"}}) {
        plattform().beendet = false;
        plattform().antworten = {antwort};
        datei().fenster_schliessen();
        EXPECT_EQ(plattform().beendet, antwort == Antwort::nein);
        EXPECT_EQ(plattform().druckername, drucker) << "of the closed window";
    }
}

}  // namespace
}  // namespace velmaris
