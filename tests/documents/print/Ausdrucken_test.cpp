#include "documents/print/Ausdrucken.h"

#include "planes/dokumentquelle.h"
#include "tests/documents/unterlagen.h"
#include "tests/testdrucker.h"
#include "tests/testprogramm.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace velmaris {
namespace {

using test::Druckzeichen;
using test::Testdrucker;
using Art = Druckzeichen::Art;

constexpr double genau = 1E-6;

void riese_mit_dach(Haupt& h) {
    h.p.l = h.p.b = h.p.h = 50;
    h.p.ag = 20;
    h.p.kwn = h.p.kws = h.p.kwo = h.p.kww = 1.5F;
    h.p.infiltration = 10;
    h.p.orient = -45;
    h.e_geometrie.Check_Dachgeschoss.setze(1);
    h.p.Heizsystem = 8;
    h.p.Klimaauswahl = 3;
    h.p.Klimadatei = h.p.Regionsdatei(9);
}

void lange_namen(Haupt& h) {
    h.p.Heizsystem = 6;
    h.p.Energietraeger = 4;
    for (auto* seite : {&h.e_fenster.nord, &h.e_fenster.sued, &h.e_fenster.ost, &h.e_fenster.west})
        seite->typ.setze(6);
    h.p.Klimadatei = "fern.met";
    h.p.Stationsname = "Llanfairpwllgwyngyllgogerychwyrndrobwllllantysiliogogogoch (Wales, Britannien)";
    h.p.Datei = "Ein recht langer Name für ein Projekt über ein Haus mit Überlänge, dritte Fassung.vel";
}

/// True if the letters of two texts touch or nearly do, unless they are one text; the space above and below
/// the letters of a line may be shared.
bool ueberlappen(const Druckzeichen& a, const Druckzeichen& b) {
    constexpr double durchschuss = 0.12;
    constexpr double mindestabstand = 0.8;  ///< between words, millimetres
    const double rand_a = durchschuss * (a.y2 - a.y1);
    const double rand_b = durchschuss * (b.y2 - b.y1);
    const bool nebeneinander =
        a.seite == b.seite && a.y1 + rand_a < b.y2 - rand_b && b.y1 + rand_b < a.y2 - rand_a;
    const double luecke = std::max(a.x1, b.x1) - std::min(a.x2, b.x2);
    const bool ein_text = std::abs(luecke) < genau;
    return nebeneinander && !ein_text && luecke < mindestabstand;
}

/// Inside the frame; logo and foot beside its height.
bool im_rahmen(const Druckzeichen& z) {
    const bool kopf = z.art == Art::text && z.y2 < 30;
    const bool fuss = z.art == Art::text && z.y1 > 260;
    return std::min(z.x1, z.x2) >= 25 - genau && std::max(z.x1, z.x2) <= 175 + genau &&
           (kopf || fuss || (std::min(z.y1, z.y2) >= 35 - genau && std::max(z.y1, z.y2) <= 260 + genau));
}

void texte_pruefen(const std::vector<Druckzeichen>& zeichen) {
    for (std::size_t i = 0; i < zeichen.size(); ++i) {
        EXPECT_TRUE(im_rahmen(zeichen[i])) << zeichen[i].seite << ": " << zeichen[i].text;
        for (std::size_t j = 0; j < i; ++j) {
            const bool texte = zeichen[i].art == Art::text && zeichen[j].art == Art::text;
            EXPECT_FALSE(texte && ueberlappen(zeichen[i], zeichen[j]))
                << zeichen[i].seite << ": " << zeichen[i].text << " / " << zeichen[j].text;
        }
    }
}

TEST(Ausdrucken, AllesStehtImRahmenUndFrei) {
    for (const auto einrichten : {riese_mit_dach, lange_namen}) {
        for (const char* sprache : {"d", "e"}) {
            const test::Testprogramm programm(sprache);
            einrichten(*programm.haupt);
            programm.haupt->alles_berechnen();
            Testdrucker drucker;
            Ausdrucken(drucker, dokumentquelle(*programm.haupt), alles_drucken, "1.2.2003");
            texte_pruefen(drucker.zeichen);
            const bool gekuerzt = std::any_of(drucker.zeichen.begin(), drucker.zeichen.end(),
                                              [](const auto& z) { return z.text.ends_with("…"); });
            EXPECT_EQ(gekuerzt, einrichten == lange_namen);
        }
    }
}

TEST(Ausdrucken, SeitenSindGezaehltUndMitDatumUndDatei) {
    test::Unterlagen u("e");
    u.p->Datei = "C:\\Haus\\Villa.vel";
    Testdrucker drucker;
    Ausdrucken(drucker, u.quelle, alles_drucken, "1.2.2003");
    for (int seite = 1; seite <= 8; ++seite) {
        const auto text = drucker.auf_seite(seite, Art::text);
        EXPECT_TRUE(text[0].schrift.kursiv && !text[1].schrift.kursiv);
        EXPECT_TRUE(text[0].schrift.groesse == 20 && text[1].schrift.groesse == 20);
        EXPECT_TRUE(text[0].y1 == 20 && text[1].y1 == 20);
        EXPECT_EQ(text[5].schrift.groesse, 16) << "title";
        EXPECT_NEAR(text[0].x1 + text[1].x2, 200, genau);
        EXPECT_NEAR(text[0].x2, text[1].x1, genau);
        EXPECT_EQ(text[2].text + text[3].text, "- Page " + std::to_string(seite) + " / 8 -1.2.2003");
        EXPECT_EQ(text[4].text, "File: Villa.vel ");
    }
}

TEST(Ausdrucken, DruckeNurWasGewaehltIst) {
    const test::Unterlagen u("d");
    struct Wahl {
        Druckauswahl auswahl;
        int seiten;
    };
    constexpr Druckauswahl waerme_und_heizung{false, true, false, false, false, false, true};
    for (const Wahl& wahl : {Wahl{{}, 0}, {{true}, 2}, {waerme_und_heizung, 2}, {alles_drucken, 8}}) {
        Testdrucker drucker;
        EXPECT_EQ(druckseitenzahl(wahl.auswahl), wahl.seiten);
        Ausdrucken(drucker, u.quelle, wahl.auswahl, "");
        EXPECT_EQ(drucker.seiten, std::max(wahl.seiten, 1));
        EXPECT_EQ(drucker.dokumente, wahl.seiten > 0 ? 1 : 0);
        EXPECT_EQ(drucker.zeichen.empty(), wahl.seiten == 0);
    }
}

}  // namespace
}  // namespace velmaris
