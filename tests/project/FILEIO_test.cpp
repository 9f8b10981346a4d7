#include "project/FILEIO.h"

#include "tests/testprogramm.h"
#include "toolkit/fehler.h"
#include "toolkit/text.h"

#include <gtest/gtest.h>

namespace velmaris {
namespace {

using test::inhalt;
using test::projekttext;
using test::projektzeilen;
using test::Testprogramm;

/// A program with a project file "haus.vel" of a house 12 m long.
class Fileio : public testing::Test {
  protected:
    Fileio() {
        auto zeilen = projektzeilen(programm.p());
        zeilen[1] = " 12";
        haus = pfadtext(programm.ordner.schreibe("haus.vel", projekttext(zeilen)));
    }

    FILEIO& datei() { return programm.haupt->datei; }
    Projekt& p() { return programm.p(); }
    test::Testplattform& plattform() { return programm.plattform; }

    Testprogramm programm;
    std::string haus;
};

TEST_F(Fileio, StartIstEinUnbenanntesProjekt) {
    EXPECT_EQ(plattform().titel, "Velmaris - [unbenannt]");
    EXPECT_EQ(Testprogramm("e").plattform.titel, "Velmaris - [no name]");
    EXPECT_EQ(p().Datei, "default.vel");
    EXPECT_EQ(p().Datei_offen, 0);
    EXPECT_EQ(p().Geaendert, 0);
    EXPECT_EQ(p().FormLoadGuard, 0);
    EXPECT_GT(p().qh, 0);
}

TEST_F(Fileio, OeffnenRechnetUndSetztDenTitel) {
    const float vorher = p().qh;
    datei().datei_oeffnen(haus);
    EXPECT_EQ(p().l, 12);
    EXPECT_NE(p().qh, vorher);
    EXPECT_EQ(p().Datei_offen, 1);
    EXPECT_EQ(p().Geaendert, 0);
    EXPECT_EQ(plattform().titel, "Velmaris - HAUS.VEL");
    EXPECT_TRUE(plattform().meldungen.empty());
    EXPECT_FALSE(plattform().sanduhren.back());
}

TEST_F(Fileio, AbbruchDesDialogsIstEinDateifehler) {
    datei().datei_oeffnen("");
    ASSERT_EQ(plattform().meldungen.size(), 1U);
    EXPECT_EQ(plattform().meldungen[0].text, "Dateifehler!");
    EXPECT_EQ(plattform().dialoge[0].filter, "Alle Dateien (*.*)|*.*|VELM Dateien (*.vel)|*.vel");
    EXPECT_EQ(plattform().dialoge[0].filterindex, 2);
    EXPECT_EQ(p().Datei, "default.vel");
}

TEST_F(Fileio, FalscheVersionLaesstDasProjektUndRechnetWeiter) {
    const auto falsch = pfadtext(programm.ordner.schreibe("alt.vel", "Velmaris Version 2.0\r\n 99\r\n"));
    datei().datei_oeffnen(haus);
    datei().datei_oeffnen(falsch);
    ASSERT_EQ(plattform().meldungen.size(), 1U);
    EXPECT_EQ(plattform().meldungen[0].titel, "Fehler");
    EXPECT_EQ(plattform().meldungen[0].text,
              "Dies ist keine gültige Velmaris-Datendatei.\r\n\r\nDaten konnten nicht geladen werden!");
    EXPECT_EQ(p().l, 12);
    EXPECT_EQ(p().Datei, "default.vel");
    EXPECT_EQ(p().Datei_offen, 1);
    EXPECT_EQ(p().FormLoadGuard, 0);
    EXPECT_EQ(plattform().titel, "Velmaris - [unbenannt]");
}

TEST_F(Fileio, LesefehlerLaesstDenWaechterStehenBisZumNaechstenGutenOeffnen) {
    auto zeilen = projektzeilen(p());
    zeilen[1] = " 33";
    zeilen.resize(20);
    const auto kurz = pfadtext(programm.ordner.schreibe("kurz.vel", projekttext(zeilen)));
    datei().datei_oeffnen(kurz);
    ASSERT_EQ(plattform().meldungen.size(), 1U);
    EXPECT_EQ(plattform().meldungen[0].text, "Dateifehler!");
    EXPECT_NE(plattform().meldungen[0].hinweis.find("Zeile 21 (kws)"), std::string::npos);
    EXPECT_EQ(p().FormLoadGuard, -1);
    EXPECT_EQ(p().l, 33);
    datei().datei_oeffnen(haus);
    EXPECT_EQ(p().FormLoadGuard, 0);
}

TEST_F(Fileio, EineZuGrosseDateiWirdNichtGelesen) {
    const std::string text = inhalt(pfad(haus));
    const std::string gut = text + std::string(hoechste_projektgroesse - text.size(), '\n');
    datei().datei_oeffnen(pfadtext(programm.ordner.schreibe("gut.vel", gut)));
    EXPECT_TRUE(plattform().meldungen.empty());
    datei().datei_oeffnen(pfadtext(programm.ordner.schreibe("gross.vel", gut + '\n')));
    ASSERT_EQ(plattform().meldungen.size(), 1U);
    EXPECT_NE(plattform().meldungen[0].hinweis.find("gross.vel: die Datei ist größer als 1 MB"),
              std::string::npos);
}

TEST_F(Fileio, DerFehlerSagtWennNichtsMehrBerechnetWird) {
    auto zeilen = projektzeilen(p());
    zeilen[1] = " 60";
    const auto weit = pfadtext(programm.ordner.schreibe("weit.vel", projekttext(zeilen)));
    const auto fremd = pfadtext(programm.ordner.schreibe("fremd.vel", "nichts"));
    const auto nirgends = pfadtext(programm.ordner / "nirgends.vel");
    bool rechnet = true;
    programm.haupt->sitzung.alles_berechnen = [&] {
        if (!rechnet) throw Laufzeitfehler({"Division durch 0", "division by 0"});
        programm.haupt->alles_berechnen();
    };
    struct Fall {
        std::string datei;
        bool rechnet, geaendert;
        std::string hinweis;  ///< what the message says below its text, to begin with
        bool steht;           ///< nothing is calculated afterwards
        bool gesagt;
    };
    for (const Fall& fall : {Fall{nirgends, true, false, nirgends, false, false},
                             {weit, true, false, weit, true, true},
                             {nirgends, true, false, nirgends, true, true},
                             {"", true, false, "", true, false},
                             {haus, true, true, "", true, false},
                             {fremd, true, false, "l: Wert außerhalb", true, true},
                             {haus, false, false, haus, true, true}}) {
        rechnet = fall.rechnet;
        p().Geaendert = fall.geaendert ? 1 : 0;
        plattform().antworten = {Antwort::abbrechen};
        datei().datei_oeffnen(fall.datei);
        const Meldung& meldung = plattform().meldungen.back();
        EXPECT_EQ(meldung.text, "Dateifehler!") << fall.datei;
        EXPECT_TRUE(meldung.hinweis.starts_with(fall.hinweis)) << meldung.hinweis;
        EXPECT_EQ(p().FormLoadGuard, fall.steht ? -1 : 0) << meldung.hinweis;
        EXPECT_EQ(meldung.hinweis.find("Datei > Neu") != std::string::npos, fall.gesagt) << meldung.hinweis;
    }
    rechnet = true;
    datei().datei_neu();
    EXPECT_EQ(p().FormLoadGuard, 0);
}

TEST_F(Fileio, EineMischungLaesstSichSichernOhneDasProgrammZuBeenden) {
    auto zeilen = projektzeilen(p());
    zeilen[1] = " 60";
    datei().datei_oeffnen(pfadtext(programm.ordner.schreibe("weit.vel", projekttext(zeilen))));
    plattform().dateien = {programm.ordner / "mischung.vel"};
    EXPECT_THROW(datei().datei_speichern(), Dateifehler);
    EXPECT_EQ(plattform().titel, "Velmaris - MISCHUNG.VEL");
}

TEST_F(Fileio, StellungenAusserhalbNennenDieZeileDerDatei) {
    struct Fall {
        int zeile;
        std::string inhalt;
        std::string feld;
    };
    const std::vector<Fall> faelle{{2, " 60", "l"},
                                   {8, "-50", "orient"},
                                   {16, " 9", "fenstern_typ"},
                                   {12, " 5", "awn"},
                                   {28, " 4", "Dachraum_typ"},
                                   {29, " 7", "ugd_typ"},
                                   {57, " 3", "Innenwandart"},
                                   {65, " 10", "Heizsystem"},
                                   {67, " 3", "Energietraeger"},
                                   {59, " 2", "Check_Dachgeschoss"},
                                   {36, " 1.5", "verschn"},
                                   {63, " 9", "Klimaeffizienz"}};
    for (const Fall& fall : faelle) {
        auto zeilen = projektzeilen(p());
        zeilen[static_cast<std::size_t>(fall.zeile - 1)] = fall.inhalt;
        const auto name = pfadtext(programm.ordner.schreibe("fall.vel", projekttext(zeilen)));
        const Testprogramm frisch;
        try {
            frisch.haupt->datei.projekt_laden(name);
            FAIL() << fall.feld;
        } catch (const Dateifehler& fehler) {
            EXPECT_EQ(fehler.feld(), fall.feld);
            EXPECT_EQ(fehler.zeile(), fall.zeile);
        }
    }
}

TEST_F(Fileio, DerFehlerNenntDenWertDerDateiUndSeinenBereich) {
    struct Fall {
        int zeile;
        std::string inhalt, grund;
    };
    for (const Fall& fall : {Fall{2, " 60", "Bereichs: 60 (2.0 .. 50.0)"},
                             {61, "-3", "Bereichs: -3 (0.0 .. 5.0)"},
                             {12, " 5", "Bereichs: 5 (0 .. 1)"},
                             {31, " 2", "Bereichs: 2 (0 .. 1)"}}) {
        p().Geaendert = 0;
        datei().datei_neu();
        auto zeilen = projektzeilen(p());
        zeilen[static_cast<std::size_t>(fall.zeile - 1)] = fall.inhalt;
        datei().datei_oeffnen(pfadtext(programm.ordner.schreibe("fall.vel", projekttext(zeilen))));
        EXPECT_NE(plattform().meldungen.back().hinweis.find(fall.grund), std::string::npos)
            << plattform().meldungen.back().hinweis;
    }
}

TEST_F(Fileio, EineUnbrauchbareStationWirdErsetztUndDasProjektGiltAlsGeaendert) {
    struct Fall {
        std::string station, grund;
        int bereich;
        double los;
        std::string ersatz;
    };
    for (const Fall& fall : {Fall{"nirgends.met", "Datei nicht gefunden", 1, 0.9, "trier.met"},
                             {"nirgends.met", "Datei nicht gefunden", 2, 0, "fern.met"},
                             {"kurz.met", " von 8766 Zeilen", 3, 0.4, "fern.met"},
                             {"leer.met", "endet nach 0 von", 1, 0, "trier.met"},
                             {"ordner.met", "ist ein Ordner", 3, 0.99, "trier.met"}}) {
        Testprogramm frisch;
        frisch.ordner.schreibe("klima/kurz.met", test::stationsbytes("Kurz").substr(0, 70000));
        frisch.ordner.schreibe("klima/leer.met", "");
        frisch.ordner.schreibe("klima/ordner.met/x", "");
        auto zeilen = projektzeilen(frisch.p());
        zeilen[1] = " 14";
        zeilen[55] = fall.station;
        zeilen[63] = " " + std::to_string(fall.bereich);
        frisch.plattform.zufallszahl = fall.los;
        frisch.haupt->datei.datei_oeffnen(pfadtext(frisch.ordner.schreibe("ort.vel", projekttext(zeilen))));
        const Projekt& q = frisch.p();
        ASSERT_EQ(frisch.plattform.meldungen.size(), 1U) << fall.station;
        const Meldung& meldung = frisch.plattform.meldungen[0];
        EXPECT_EQ(meldung.text, q.texte.txt_Klima_fehlt);
        EXPECT_EQ(meldung.titel, q.texte.txt_Klima_Titel);
        EXPECT_NE(meldung.hinweis.find(fall.station + ": "), std::string::npos) << meldung.hinweis;
        EXPECT_NE(meldung.hinweis.find(fall.grund), std::string::npos) << meldung.hinweis;
        EXPECT_EQ(q.Klimadatei, fall.ersatz);
        EXPECT_EQ(q.Klimaauswahl, fall.bereich);
        EXPECT_EQ(q.l, 14);
        EXPECT_EQ(q.FormLoadGuard, 0);
        EXPECT_EQ(q.Geaendert, 1);
        EXPECT_EQ(q.Datei_offen, 1);
        EXPECT_EQ(frisch.plattform.titel, "Velmaris - ORT.VEL");
        frisch.haupt->datei.datei_speichern();
        EXPECT_EQ(projektzeilen(q)[55], fall.ersatz);
        EXPECT_EQ(q.Geaendert, 0);
        const float gerechnet = q.qh;
        frisch.haupt->alles_berechnen();
        EXPECT_EQ(q.qh, gerechnet) << "calculated with the station in use";
    }
}

TEST_F(Fileio, NeuLaesstDasProjektGanzWennSeineStationFehlt) {
    datei().datei_oeffnen(haus);
    programm.haupt->e_geometrie.l_sb.setze(150);
    const auto vorher = std::make_unique<Projekt>(p());
    const std::string ganz = inhalt(programm.ordner / "klima/trier.met");
    for (const std::string& bytes : {std::string(), ganz.substr(0, 100000)}) {
        programm.ordner.schreibe("klima/trier.met", bytes);
        if (bytes.empty()) std::filesystem::remove(programm.ordner / "klima/trier.met");
        plattform().antworten = {Antwort::nein};
        datei().datei_neu();
        EXPECT_NE(plattform().meldungen.back().hinweis.find("trier.met: "), std::string::npos);
        EXPECT_EQ(projekttext(projektzeilen(p())), projekttext(projektzeilen(*vorher)));
        EXPECT_EQ(p().qh, vorher->qh);
        EXPECT_EQ(p().Datei, haus);
        EXPECT_EQ(p().Datei_offen, 1);
        EXPECT_EQ(p().Geaendert, 1);
        EXPECT_EQ(p().FormLoadGuard, 0);
        EXPECT_EQ(plattform().titel, "Velmaris - HAUS.VEL");
    }
    programm.haupt->e_geometrie.l_sb.setze(160);
    EXPECT_NE(p().qh, vorher->qh);
    datei().datei_speichern();
    EXPECT_NE(inhalt(pfad(haus)).find("Version 3.2\r\n 16\r\n"), std::string::npos);
    EXPECT_EQ(p().Geaendert, 0);
}

TEST_F(Fileio, NeuFragtNurNachAenderungen) {
    datei().datei_oeffnen(haus);
    p().Geaendert = 1;
    plattform().antworten = {Antwort::abbrechen};
    datei().datei_neu();
    EXPECT_EQ(p().l, 12);
    EXPECT_EQ(plattform().meldungen.back().text,
              "          Ihr Projekt wurde geändert.\n\nMöchten Sie die Änderungen speichern?");
    plattform().antworten = {Antwort::nein};
    datei().datei_neu();
    EXPECT_EQ(p().l, 10);
    EXPECT_EQ(p().Datei_offen, 0);
    const std::size_t fragen = plattform().meldungen.size();
    datei().datei_neu();
    EXPECT_EQ(plattform().meldungen.size(), fragen);
}

TEST_F(Fileio, DasJaBeimNeuenProjektSpeichertUnterDemNamen) {
    datei().datei_oeffnen(haus);
    programm.haupt->e_geometrie.l_sb.setze(150);
    EXPECT_EQ(p().Geaendert, 1);
    plattform().antworten = {Antwort::ja};
    datei().datei_neu();
    EXPECT_TRUE(plattform().dialoge.empty());
    EXPECT_NE(inhalt(pfad(haus)).find("Version 3.2\r\n 15\r\n"), std::string::npos);
}

TEST_F(Fileio, SpeichernUnterErgaenztDieEndungUndFragtVorDemErsetzen) {
    plattform().dateien = {programm.ordner / "haus", programm.ordner / "mein haus"};
    plattform().antworten = {Antwort::nein};
    p().Geaendert = 1;
    datei().datei_speichern();
    ASSERT_EQ(plattform().meldungen.size(), 1U);
    EXPECT_EQ(plattform().meldungen[0].text,
              haus + "\nDiese Datei ist bereits vorhanden.\n\nVorhandene Datei ersetzen?");
    EXPECT_EQ(plattform().meldungen[0].vorgabe, Antwort::nein);
    EXPECT_EQ(p().Datei, pfadtext(programm.ordner / "mein haus.vel"));
    EXPECT_EQ(plattform().titel, "Velmaris - MEIN HAUS.VEL");
    EXPECT_EQ(p().Geaendert, 0);
    EXPECT_EQ(p().Datei_offen, 1);
    EXPECT_NE(inhalt(pfad(haus)).find("Version 3.2\r\n 12\r\n"), std::string::npos);
}

TEST_F(Fileio, EinNameMitPunktBleibt) {
    plattform().dateien = {programm.ordner / "haus.alt"};
    datei().datei_speichern_unter();
    EXPECT_EQ(p().Datei, pfadtext(programm.ordner / "haus.alt"));
}

TEST_F(Fileio, SpeichernDasMisslingtSagtEsUndBehaeltDieAenderung) {
    datei().datei_oeffnen(haus);
    const std::string vorher = inhalt(pfad(haus));
    std::filesystem::permissions(pfad(haus), std::filesystem::perms::owner_read);
    p().Geaendert = 1;
    datei().datei_speichern();
    ASSERT_EQ(plattform().meldungen.size(), 1U);
    EXPECT_NE(plattform().meldungen[0].text.find("haus.vel"), std::string::npos);
    EXPECT_EQ(p().Geaendert, 1);
    EXPECT_EQ(inhalt(pfad(haus)), vorher);
    plattform().antworten = {Antwort::ja};
    datei().datei_neu();
    EXPECT_EQ(p().l, 12);
}

TEST_F(Fileio, BeendenFragtImmerNachEinemNamen) {
    datei().datei_oeffnen(haus);
    p().Geaendert = 1;
    plattform().drucker = {"eins", "zwei"};
    p().Druckerindex = 1;
    plattform().antworten = {Antwort::abbrechen, Antwort::ja};
    datei().programm_beenden();
    EXPECT_FALSE(plattform().beendet);
    datei().programm_beenden();
    EXPECT_EQ(plattform().dialoge.size(), 1U);
    EXPECT_TRUE(plattform().beendet);
    EXPECT_EQ(plattform().druckername, "zwei");
}

TEST_F(Fileio, SchliessenDesFensters) {
    EXPECT_EQ(datei().aenderung_abfragen(), 0);
    EXPECT_TRUE(plattform().meldungen.empty());
    p().Geaendert = 1;
    plattform().drucker = {"eins", "zwei"};
    plattform().antworten = {Antwort::abbrechen, Antwort::nein};
    datei().fenster_schliessen();
    EXPECT_FALSE(plattform().beendet);
    EXPECT_EQ(plattform().druckername, "eins") << "the printer of the start, after a cancelled closing only";
    plattform().druckername = "zwei";
    datei().fenster_schliessen();
    EXPECT_TRUE(plattform().beendet);
    EXPECT_EQ(plattform().druckername, "zwei");
}

}  // namespace
}  // namespace velmaris
