#include "climate/planes/E_Klimaimport.h"

#include "tests/climate/import/importprobe.h"
#include "tests/verderber.h"
#include "tests/volle_festplatte.h"
#include "toolkit/text.h"

#include <algorithm>
#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <initializer_list>

namespace velmaris {
namespace {

using test::Importprobe;
using test::Quellbau;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class Klimaimport : public testing::Test {
  protected:
    /// Texts of a row of labels or lists, with a stroke between them.
    template <class Reihe>
    static std::string texte(const Reihe& felder) {
        std::string alle;
        for (const auto& feld : felder)
            alle += (alle.empty() ? "" : "|") + feld.text();
        return alle;
    }

    /// The head of a source as the fields show it.
    [[nodiscard]] std::string kopf() const {
        std::string alle = e.Erkannt.text();
        for (const Textfeld* feld :
             {&e.Kopfzeilen, &e.Standortname, &e.Land, &e.Breitengrad, &e.Laengengrad, &e.Zeitzone})
            alle += "|" + feld->text();
        return alle;
    }

    Importprobe probe;
    E_Klimaimport& e = *probe.e;
    Importvorschau& v = e.vorschau;
};

TEST_F(Klimaimport, OeffnetLeer) {
    EXPECT_TRUE(e.ebene.sichtbar());
    std::string listen;
    for (const Auswahlliste* liste :
         {&e.Dezimalzeichen, &e.Breitezusatz, &e.Laengezusatz, &e.GMT, &v.Datenreihe[5]}) {
        EXPECT_EQ(liste->index(), 0) << liste->name;
        for (const std::string& eintrag : liste->eintraege())
            listen += "|" + eintrag;
    }
    EXPECT_EQ(listen,
              "|Punkt (.)|Komma (,)|Nord|Süd|Ost|West|GMT + |GMT - |- unbenutzt -|Außenlufttemperatur"
              "|Gesamtstrahlung|Direktstrahlung|Diffusstrahlung");
    for (const Feld* feld : std::initializer_list<const Feld*>{&e.Frame2, &e.Frame3, &e.Frame4, &e.Frame5,
                                                               &v.HScroll1, &v.VScroll1, &e.Fortschritt})
        EXPECT_FALSE(feld->sichtbar()) << feld->name;
    EXPECT_FALSE(e.Command2.aktiv());
}

TEST_F(Klimaimport, EineQuelleWirdGezeigtUndIhrPfadGemerkt) {
    probe.oeffne("Quelle.txt", "Z\xFCrich\n1\t2\t3");
    EXPECT_EQ(probe.p->Datei, pfadtext(probe.ordner / "Quelle.txt"));
    EXPECT_EQ(e.DateinameBox.text(), probe.p->Datei);
    EXPECT_EQ(e.Dateiansicht.text(), "Zürich\r\n1\t2\t3\r\n");
    EXPECT_TRUE(e.Frame5.sichtbar());
    for (const std::string& getippt : {pfadtext(probe.ordner.schreibe("zweite.txt", "2")), std::string()}) {
        e.DateinameBox.tippe(getippt);
        e.DateinameBox.bestaetige();
        EXPECT_EQ(e.Dateiansicht.text(), "2\r\n");
        EXPECT_THAT(probe.plattform.meldungen, IsEmpty());
    }
    for (const auto& [zeilen, bytes] : {std::pair{249U, 499U}, {250, 504}, {300, 504}}) {
        probe.oeffne("Quelle.txt", std::string(zeilen, '\n').insert(0, "z"));
        EXPECT_EQ(e.Dateiansicht.text().size(), bytes) << zeilen;
    }
}

TEST_F(Klimaimport, ErkannteDateienFuellenDieFelder) {
    probe.oeffne("bern.dat", Quellbau{}.meteonorm());
    EXPECT_EQ(kopf(), "Die Datei wurde als Meteonorm-Datei erkannt.|4|Bern||46.95|7.43|1");
    EXPECT_EQ(texte(v.Datenreihe),
              "- unbenutzt -|- unbenutzt -|Außenlufttemperatur|"
              "Gesamtstrahlung|Diffusstrahlung|Direktstrahlung");
    EXPECT_EQ(texte(v.Zeilenzaehler) + " " + texte(v.Zelle[0]), "5|6|7|8|9|10 1|1|-15.0|0|0|0");

    std::string text = Quellbau{}.epw();
    probe.oeffne("bern.epw", text.replace(text.find("46.92,7.50,1.0"), 14, "-46.92,-7.50,-1.0"));
    EXPECT_EQ(kopf(), "Die Datei wurde als EnergyPlus-Wetterdatei (.epw) erkannt.|8|Bern|CHE|46.92|7.50|1.0");
    EXPECT_FALSE(e.Datentrennung.gesetzt().has_value());
    EXPECT_EQ(e.Breitezusatz.text() + e.Laengezusatz.text() + e.GMT.text(), "SüdWestGMT - ");
    EXPECT_EQ(v.HScroll1.position(), 7);
    EXPECT_EQ(v.Datenreihe[0].text() + v.Zelle[0][0].text(), "Außenlufttemperatur-15.0");
    e.Datentrennung.setze(0);
    EXPECT_EQ(e.Erkannt.text(), "") << "with another separation it is any other text";

    probe.oeffne("breit.dat", "Bern\n46,7,5,-1\n\na\tb\tc\td\tTa\tG_Gh\tG_Dh\tx\n1\t2\t3\t4\t5\t6\t7\t8\n");
    EXPECT_EQ(v.HScroll1.position(), 3) << "the last place that fills the grid";

    probe.oeffne("frei.txt", "1\t2\n");
    EXPECT_EQ(kopf(), "||||||");
    EXPECT_TRUE(e.Datentrennung.gesetzt(0));
    EXPECT_EQ(v.HScroll1.position(), 1);
    EXPECT_EQ(v.Spaltenzahl, 0);
    EXPECT_EQ(v.Zelle[0][2].text() + v.Zeilenzaehler[0].text(), "");
    EXPECT_EQ(v.Datenreihe[2].index(), 0);
}

TEST_F(Klimaimport, DieVorschauRolltUeberZeilenUndSpalten) {
    std::string text = "Kopf\n";
    for (int i = 0; i < 72; ++i)
        text += std::to_string(i / 8 * 10 + i % 8 + 11) + (i % 8 < 7 ? "\t" : "\n");
    probe.oeffne("raster.txt", text);
    e.Kopfzeilen.tippe("1x");
    EXPECT_TRUE(v.HScroll1.aktiv());
    EXPECT_EQ(v.HScroll1.maximum(), 3);
    EXPECT_EQ(v.VScroll1.maximum(), 4);
    v.HScroll1.setze(3);
    v.VScroll1.setze(4);
    EXPECT_EQ(texte(v.Spalte) + " " + texte(v.Zeilenzaehler), "3|4|5|6|7|8 5|6|7|8|9|10");
    EXPECT_EQ(texte(v.Zelle[0]) + " " + texte(v.Zelle[5]), "43|44|45|46|47|48 93|94|95|96|97|98");
    v.Datenreihe[5].setze(1);
    EXPECT_EQ(v.Spaltenbelegung(8), 1);
    v.HScroll1.setze(1);
    EXPECT_EQ(v.Datenreihe[5].index(), 0);

    e.Kopfzeilen.tippe("7");
    EXPECT_EQ(v.VScroll1.position(), 1);
    EXPECT_EQ(texte(v.Zelle[2]), "91|92|93|94|95|96");
    EXPECT_EQ(texte(v.Zelle[3]), "xxxxxxxxxx|||||");
    probe.oeffne("lang.txt", std::string(41, 'x'));
    e.Kopfzeilen.tippe("0");
    EXPECT_EQ(v.Zelle[0][0].text(), std::string(40, 'x') + "...");
    probe.oeffne("raster.txt", text);
    e.Kopfzeilen.tippe("99999999999999999999");
    EXPECT_EQ(v.Zelle[0][0].text(), "xxxxxxxxxx");
    EXPECT_FALSE(v.HScroll1.aktiv());
    e.Kopfzeilen.tippe("1");
    e.Datentrennung.setze(1);
    EXPECT_EQ(v.Zelle[0][0].text(), "11\t12\t13\t14\t15\t16\t17\t18");
}

TEST_F(Klimaimport, DerImportWartetAufAlleFelder) {
    probe.oeffne("quelle.txt", "1\t2\t3\n");
    probe.ort_eintippen();
    e.Kopfzeilen.tippe("0");
    for (Textfeld* feld : {&e.DateinameBox, &e.Standortname, &e.Land, &e.Kopfzeilen, &e.Breitengrad,
                           &e.Laengengrad, &e.Zeitzone}) {
        const std::string vorher = feld->text();
        feld->tippe("");
        EXPECT_FALSE(e.Command2.aktiv()) << feld->name;
        feld->tippe(vorher);
        EXPECT_TRUE(e.Command2.aktiv()) << feld->name;
    }
    e.Breitengrad.tippe("4a9,7-5");
    EXPECT_EQ(e.Breitengrad.text(), "49,75");
    EXPECT_TRUE(e.Command2.aktiv());
    e.Breitengrad.tippe("4.9.7");
    EXPECT_FALSE(e.Command2.aktiv());
    e.Standortname.tippe("Bern, Zoo");
    e.Zeitzone.tippe("9,5");
    EXPECT_THAT(e.Ortshinweis.text(), HasSubstr(" Karten. Längengrad und Zeitzone liegen 9.0 Stunden"));
    e.Laengengrad.tippe("140");
    EXPECT_THAT(e.Ortshinweis.text(), testing::EndsWith(" Karten."));
    for (Auswahlliste* zusatz : {&e.Laengezusatz, &e.GMT}) {
        zusatz->setze(1);
        EXPECT_EQ(e.Ortshinweis.text().find("Zeitzone") == std::string::npos, zusatz == &e.GMT);
    }
}

TEST_F(Klimaimport, FehlendeSpaltenWerdenDerReiheNachGemeldet) {
    probe.oeffne("quelle.txt", "1\t2\t3\n");
    probe.ort_eintippen();
    e.Kopfzeilen.tippe("0");
    using Fall = std::pair<std::array<int, 3>, const char*>;
    for (const auto& [groessen, text] :
         {Fall{{0, 0, 4}, "Benötigt werden entweder Daten zur Gestamt- oder zur Direktstrahlung"},
          Fall{{3, 0, 0}, "Keine Temperaturdaten vorhanden!"},
          Fall{{2, 1, 0}, "Keine Daten zur Diffusstrahlung vorhanden!"}}) {
        for (std::size_t j = 0; j < groessen.size(); ++j)
            v.Datenreihe.at(j).setze(groessen.at(j));
        const Meldung meldung = probe.importiere("x");
        EXPECT_EQ(meldung.titel + meldung.hinweis + meldung.text, std::string("Fehlerquelle.txt") + text);
    }
    probe.oeffne("bern.epw", Quellbau{}.epw());
    v.HScroll1.setze(14);
    v.Datenreihe[0].setze(0);
    EXPECT_THAT(probe.importiere("x").text, HasSubstr("senkrecht zur Sonne"));
}

TEST_F(Klimaimport, DerNameWirdErfragtBisErGutUndErlaubtIst) {
    probe.ordner.schreibe("klima/bärn.met", "alt");
    probe.oeffne("bern.epw", Quellbau{}.epw());
    EXPECT_EQ(probe.importiere("   ").text, "");
    EXPECT_EQ(probe.plattform.frage,
              "Klimadatensatz speichern unter ...: Bitte geben Sie einen (beliebigen) Dateinamen ein, unter "
              "dem der neue Klimadatensatz 'Bern (CHE)' gespeichert werden soll:");
    for (const Antwort antwort : {Antwort::nein, Antwort::ja}) {
        EXPECT_TRUE(e.ebene.sichtbar());
        EXPECT_EQ(probe.station("bärn"), "alt");
        probe.plattform.antworten = {Antwort::ok, Antwort::ok, antwort};
        probe.plattform.vorgaben.clear();
        probe.plattform.meldungen.clear();
        probe.plattform.eingaben = {"../bern", "Łódź", "  bärn  "};
        e.Command2.druecke();
        EXPECT_THAT(probe.plattform.vorgaben, ElementsAre("bern", "../bern", "Łódź"));
        ASSERT_EQ(probe.plattform.meldungen.size(), antwort == Antwort::nein ? 3U : 4U);
        EXPECT_THAT(probe.plattform.meldungen[1].text, HasSubstr("eine Projektdatei nicht speichern kann"));
        EXPECT_THAT(probe.plattform.meldungen[2].text, StartsWith("Der angegebene Dateiname wird bereits"));
        EXPECT_EQ(probe.plattform.meldungen[2].knoepfe, Knoepfe::ja_nein);
        EXPECT_EQ(probe.plattform.meldungen[2].vorgabe, Antwort::nein);
    }
    EXPECT_NE(probe.station("bärn"), "alt");
    EXPECT_THAT(probe.dateien(), ElementsAre("bärn.met"));
}

TEST_F(Klimaimport, EinSchreibfehlerLaesstNichtsZurueck) {
    probe.oeffne("bern.epw", Quellbau{}.epw());
    {
        const test::VolleFestplatte voll(100000);
        EXPECT_THAT(probe.importiere("bern").text, HasSubstr("bern.met: Datei kann nicht geschrieben"));
    }
    EXPECT_THAT(probe.dateien(), IsEmpty());
    EXPECT_TRUE(e.Command2.aktiv());
    e.Command3.druecke();
    EXPECT_FALSE(e.ebene.sichtbar());
}

TEST_F(Klimaimport, EineVeraenderteQuelleWirdNeuGezeigt) {
    probe.oeffne("bern.txt", Quellbau{}.meteonorm());
    e.Land.tippe("Schweiz");
    probe.ordner.schreibe("bern.txt", Quellbau{.zeilen = 100}.meteonorm());
    const Meldung meldung = probe.importiere("bern");
    EXPECT_THAT(meldung.text, StartsWith("Die Quelldatei hat sich seit der Vorschau geändert."));
    EXPECT_EQ(meldung.hinweis, "bern.txt: Zeilen vorher: 8764, jetzt: 104");
    EXPECT_EQ(v.VScroll1.maximum(), 95);
    EXPECT_THAT(probe.importiere("bern").text, StartsWith("Fehler! - Zu wenig Daten."));
    std::filesystem::remove(probe.ordner / "bern.txt");
    EXPECT_THAT(probe.importiere("bern").text, HasSubstr("bern.txt: Datei nicht gefunden"));
    probe.plattform.dateien = {probe.ordner / "bern.txt"};
    e.Command1.druecke();
    EXPECT_THAT(probe.plattform.meldungen.back().text, HasSubstr("bern.txt: Datei nicht gefunden"));
}

TEST_F(Klimaimport, ZeigtDenFortschrittUndLaesstSichAbbrechen) {
    probe.oeffne("bern.epw", Quellbau{}.epw());
    // Cancelled by the callback's answer, and by the button meanwhile.
    for (const auto& [grenze, knopf] : {std::pair{0.0, true}, {0.3, false}, {0.8, true}, {1.0, false}}) {
        e.fortschritt = [&, g = grenze, k = knopf](double anteil) {
            if (anteil >= g && k) e.Command3.druecke();
            return anteil < g || k;
        };
        EXPECT_EQ(probe.importiere("bern").text, "") << grenze;
        EXPECT_THAT(probe.dateien(), IsEmpty()) << grenze;
    }
    std::vector<double> anteile;
    e.fortschritt = [&](double anteil) {
        anteile.push_back(anteil);
        EXPECT_TRUE(e.Fortschritt.sichtbar());
        for (const Feld* feld : std::initializer_list<const Feld*>{&e.Frame1, &e.Frame2, &e.Frame3, &e.Frame4,
                                                                   &e.Command1, &e.Command2, &v.VScroll1})
            EXPECT_FALSE(feld->aktiv()) << feld->name;
        e.Command2.druecke();
        return true;
    };
    probe.importiere("bern");
    EXPECT_FALSE(e.Fortschritt.sichtbar());
    EXPECT_TRUE(std::is_sorted(anteile.begin(), anteile.end()));
    EXPECT_GT(anteile.size(), 50U);
    EXPECT_EQ(anteile.front(), 0);
    EXPECT_EQ(anteile.back(), 1);
}

// An import ends either with a whole station or with a message and no file at all.
TEST_F(Klimaimport, VerdorbeneQuellenSchadenNicht) {
    test::Verderber zufall(20240229);
    const std::string lang(1U << 20U, '\t');
    std::vector<std::string> quellen{"", "LOCATION," + lang, "a\nb\nc\nTa\tG_Gh\tG_Dh" + lang,
                                     Quellbau{.ersetzt = {{400, "1\t1\t5\t3\t2" + lang}}}.meteonorm()};
    for (int i = 0; i < 60; ++i)
        quellen.push_back(zufall.verderbe(i % 2 == 0 ? Quellbau{}.meteonorm() : Quellbau{}.epw(true)));
    for (const std::string& quelle : quellen) {
        e.oeffnen();
        probe.oeffne("quelle.txt", quelle);
        probe.ort_eintippen();
        if (e.Kopfzeilen.text().empty()) e.Kopfzeilen.tippe(std::to_string(zufall.los(12)));
        v.VScroll1.bewege(static_cast<int>(zufall.los(20000)));
        EXPECT_NE(probe.importiere("neu").text, "");
        const std::string station = probe.station("neu");
        EXPECT_EQ(std::count(station.begin(), station.end(), '\n'), probe.dateien().empty() ? 0 : 8766);
        std::filesystem::remove(probe.ordner / "klima/neu.met");
    }
}

}  // namespace
}  // namespace velmaris
