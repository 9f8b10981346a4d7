#include "calc/gebaeudekennwerte.h"
#include "calc/heizgrenze.h"
#include "energy/energiebilanz.h"
#include "planes/Haupt.h"
#include "planes/dokumentquelle.h"
#include "planes/eingabewert.h"
#include "project/feldtabelle.h"
#include "tests/testprogramm.h"
#include "toolkit/text.h"
#include "toolkit/zahlen.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <initializer_list>
#include <map>
#include <sstream>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace velmaris {
namespace {

using test::projektzeilen;
using test::Testprogramm;

/// All scroll fields with their displays, by the name of the field.
std::map<std::string, std::pair<Eingabefeld*, Anzeige*>> schieber(Haupt& h) {
    E_Geometrie& g = h.e_geometrie;
    E_Daemmung& d = h.e_daemmung;
    E_Gebaeude& b = h.e_gebaeude;
    E_Fenster& f = h.e_fenster;
    std::map<std::string, std::pair<Eingabefeld*, Anzeige*>> alle;
    const auto dazu = [&alle](Eingabefeld& feld, Anzeige& anzeige) { alle[feld.name] = {&feld, &anzeige}; };
    dazu(g.l_sb, g.l_anz), dazu(g.b_sb, g.b_anz), dazu(g.h_sb, g.h_anz), dazu(g.hd_sb, g.hd_anz);
    dazu(g.ag_sb, g.ag_anz), dazu(g.orient_sb, g.orient_anz);
    dazu(d.kwn_sb, d.kwn_anz), dazu(d.kws_sb, d.kws_anz), dazu(d.kwo_sb, d.kwo_anz);
    dazu(d.kww_sb, d.kww_anz), dazu(d.kd_sb, d.kd_anz), dazu(d.kk_sb, d.kk_anz), dazu(d.ft_sb, d.ft_anz);
    dazu(d.kt_sb, d.kt_anz), dazu(d.absfaktor_sb, d.absfaktor_anz);
    dazu(b.Troom_sb, b.troom_anz), dazu(b.Tueber_sb, b.Tueber_anz), dazu(b.intg_sb, b.intg_anz);
    dazu(b.infiltration_sb, b.infiltration_anz), dazu(b.lw_sb, b.lw_anz), dazu(b.WRG_Sb, b.WRG_anz);
    dazu(b.Klimaeffizienz_sb, b.KlimaEffizienz_anz);
    for (Fensterseite* s : {&f.nord, &f.sued, &f.ost, &f.west}) {
        for (Fensterschieber* teil : {&s->f, &s->gf, &s->kfg, &s->kfr, &s->ra, &s->versch})
            dazu(teil->sb, teil->anz);
    }
    return alle;
}

/// What all controls and all displays of results show.
std::map<std::string, std::string> zustand(Haupt& h) {
    std::map<std::string, std::string> alle;
    for (const auto& [name, paar] : schieber(h)) {
        alle[name] = std::to_string(paar.first->position()) + " " + paar.second->text() +
                     (paar.first->sichtbar() ? "" : " hidden") + (paar.first->aktiv() ? "" : " locked");
    }
    E_Geometrie& g = h.e_geometrie;
    E_Daemmung& d = h.e_daemmung;
    E_Fenster& f = h.e_fenster;
    E_Gebaeude& b = h.e_gebaeude;
    for (const Auswahlliste* liste : {&d.ugd, &d.ogd, &f.nord.typ, &f.sued.typ, &f.ost.typ, &f.west.typ,
                                      &b.Aussenwandart, &b.Innenwandart, &h.e_klima.Klimaregionwahl2})
        alle[liste->name] = liste->text() + (liste->sichtbar() ? "" : " hidden");
    for (const Pruefeld* feld :
         {&g.Check_Dachgeschoss, &d.cbk_hDach, &b.awn_cb, &b.aws_cb, &b.awo_cb, &b.aww_cb})
        alle[feld->name] = std::to_string(feld->wert());
    for (const Optionsgruppe* gruppe :
         {&g.Option_Dachfirst, &d.Waermebruecken_opt, &f.Option1, &h.e_klima.Option})
        alle[gruppe->name] = std::to_string(gruppe->gesetzt().value_or(-1));
    for (const Anzeige* anzeige :
         {&g.f_nfa_anz, &g.f_wfa_anz, &g.Giebel_anz, &g.dachfläche_anz, &g.f_nutz_anz, &g.f_gd_anz,
          &g.v_luft_anz, &g.v_geb_anz, &g.av_anz, &g.AV_Kugel, &g.AV_Wuerfel, &g.AV_Tetraeder})
        alle[anzeige->name] = anzeige->text();
    for (const Anzeige* anzeige : {&f.nord.flaeche_anz, &f.sued.flaeche_anz, &f.ost.flaeche_anz,
                                   &f.west.flaeche_anz, &f.f_gf_anz, &f.f_vf_anz, &f.kf_anz, &f.gfm_anz,
                                   &b.intg_anz2, &b.cges_anz, &b.Cwirk_anz, &h.e_energie.Label_Übergabe})
        alle[anzeige->name] = anzeige->text();
    for (const Anzeige* anzeige : h.a_klima.anzeigen())
        alle[anzeige->name] = anzeige->text();
    return alle;
}

/// The lines of the project file that the program would write, each with a bar behind it.
std::string datei_mit_strichen(const Projekt& p) {
    std::string text;
    for (const std::string& zeile : projektzeilen(p))
        text += zeile + "|";
    return text;
}

/// The program of a new project, and how its user changes every input of it.
class Eingaben : public testing::Test {
  protected:
    /// Moves each scroll field once. A group, up to a bar: minimum, maximum, small step, large step; then
    /// each field with its position and what its display shows.
    void alle_schieber() {
        std::istringstream tabelle(R"(
20 500 10 20: l_sb 125 Länge: 12.5 m; b_sb 84 Breite: 8.4 m;|
-500 -20 2 -20: h_sb -72 7.2 m;| -50 0 2 -10: hd_sb -34 3.4 m;| -20 -1 1 -2: ag_sb -3  3;|
-45 45 5 1: orient_sb -15 15°;| 0 500 10 20: ft_sb 21 2.1;| 0 200 10 15: kt_sb 18 1.8;|
1 150 10 20: kwn_sb 31 0.31; kws_sb 42 0.42; kwo_sb 53 0.53; kww_sb 134 1.34;|
0 150 10 20: kd_sb 15 0.15; kk_sb 47 0.47;| 0 100 10 50: absfaktor_sb 70 0.70;|
-100 400 20 200: Troom_sb 215 21.5;| 100 400 10 100: Tueber_sb 225 22.5;|
0 1000 20 60: infiltration_sb 45 0.45; lw_sb 120 1.20;| 0 100 5 1: WRG_Sb 85 85;|
5 80 10 25: Klimaeffizienz_sb 35 3.5;| 0 100 5 5: fn_sb 10 10; fs_sb 35 35; fo_sb 15 15; fw_sb 20 20;|
0 100 5 20: gfn_sb 75 0.75; gfs_sb 71 0.71; gfo_sb 97 0.97; gfw_sb 32 0.32;
            ran_sb 10 10; ras_sb 25 25; rao_sb 30 30; raw_sb 15 15;
            verschn_sb 25 25; verschs_sb 40 40; verscho_sb 5 5; verschw_sb 55 55;|
0 600 5 20: kfgn_sb 305 3.05; kfgs_sb 45 0.45; kfgo_sb 560 5.60; kfgw_sb 110 1.10;
            kfrn_sb 300 3.00; kfrs_sb 75 0.75; kfro_sb 355 3.55; kfrw_sb 145 1.45;| 0 800 10 50: intg_sb 61 30.5;|)");
        auto alle = schieber(h);
        std::string bereich, zuege, feld, anzeige;
        while (std::getline(tabelle >> std::ws, bereich, ':') && std::getline(tabelle, zuege, '|')) {
            std::istringstream gruppe(zuege);
            for (int ort = 0; gruppe >> feld >> ort && gruppe.get() && std::getline(gruppe, anzeige, ';');) {
                ziehe(alle.at(feld), bereich, ort, anzeige);
                alle.erase(feld);
            }
        }
        EXPECT_TRUE(alle.empty()) << alle.begin()->first;
    }

    void ziehe(const std::pair<Eingabefeld*, Anzeige*>& paar, const std::string& bereich, int stellung,
               const std::string& text) {
        Eingabefeld& sb = *paar.first;
        std::ostringstream grenzen;
        grenzen << sb.minimum() << ' ' << sb.maximum() << ' ' << sb.kleiner_schritt() << ' '
                << sb.grosser_schritt();
        EXPECT_EQ(grenzen.str(), bereich) << sb.name;
        p.Geaendert = 0;
        sb.setze(stellung);
        EXPECT_EQ(paar.second->text(), text) << sb.name;
        EXPECT_EQ(p.Geaendert, 1) << sb.name;
    }

    void listen_und_optionen() {
        p.Geaendert = 0;
        h.e_daemmung.ugd.setze(3);
        h.e_daemmung.ogd.setze(1);
        EXPECT_EQ(p.Geaendert, 0) << "a row of these lists is no change of the project";
        h.e_daemmung.cbk_hDach.setze(1);
        h.e_daemmung.Waermebruecken_opt.setze(1);
        EXPECT_EQ(p.Waermebruecken, 0);
        h.e_daemmung.Waermebruecken_opt.setze(3);
        EXPECT_EQ(p.Geaendert, 1);
        h.e_fenster.nord.typ.setze(1);
        h.e_fenster.sued.typ.setze(7);
        h.e_fenster.ost.typ.setze(5);
        h.e_fenster.west.typ.setze(7);
        h.e_gebaeude.Aussenwandart.setze(2);
        h.e_gebaeude.Innenwandart.setze(0);
        h.e_klima.Option.setze(3);
        h.e_klima.Klimaregionwahl2.setze(0);
        E_Energie& e = h.e_energie;
        for (const auto& [knopf, wahl] : {std::pair(&e.Command1, 6), {&e.Command2, 2}, {&e.Command3, 3}}) {
            knopf->druecke();
            e.Label_Auswahl_Click(wahl);
        }
    }

    void waende_zum_nachbarn() {
        E_Gebaeude& e = h.e_gebaeude;
        E_Fenster& f = h.e_fenster;
        for (const auto& [check, feld, seite] : {std::tuple(&e.awn_cb, &Projekt::awn, &f.nord),
                                                 {&e.aws_cb, &Projekt::aws, &f.sued},
                                                 {&e.awo_cb, &Projekt::awo, &f.ost},
                                                 {&e.aww_cb, &Projekt::aww, &f.west}}) {
            for (const int nachbar : {1, 0, 1}) {
                p.Geaendert = 0;
                check->setze(nachbar);
                EXPECT_EQ(p.*feld, 1 - nachbar) << check->name;
                EXPECT_EQ(p.Geaendert, 1);
                EXPECT_EQ(seite->f.sb.aktiv(), nachbar == 0) << check->name;
                EXPECT_EQ(seite->f.anz.verborgen(), nachbar == 1) << check->name;
            }
        }
    }

    /// The house with a heated attic and windows of their own, all else moved too.
    void alles_bewegen() {
        zeige_alle(h);
        h.e_geometrie.Check_Dachgeschoss.setze(1);
        h.e_geometrie.Option_Dachfirst.setze(2);
        h.e_fenster.Option1.setze(1);
        alle_schieber();
        listen_und_optionen();
    }

    /// All planes, so that a recalculation refreshes them.
    static void zeige_alle(Haupt& haupt) {
        for (const Ebenenleiste* leiste : {&haupt.e_menue, &haupt.a_menue}) {
            for (const auto& eintrag : leiste->eintraege())
                eintrag.ebene->zeige(true);
        }
    }

    Testprogramm programm;
    Haupt& h = *programm.haupt;
    Projekt& p = programm.p();
};

TEST_F(Eingaben, EinNeuesProjektHatDieseWerte) {
    EXPECT_EQ(
        datei_mit_strichen(p),
        "Velmaris Version 3.2| 10| 10| 5.2| 2| 0| 0| 0| 25| 20| 27| 1| 1| 1| 1| 3| 3| 3| 3| .2| .2| .2| .2"
        "| .2| .2| 0| 1.5| 0| 0| .5| 1| 5| 40| 5| 5| .2| .2| .2| .2| .2| .2| .2| .2| 1.4| 1.4| 1.4| 1.4"
        "| 1.5| 1.5| 1.5| 1.5| .58| .58| .58| .58|trier.met| 1| 1| 0|1| 2|0| 2.5| 2| 1| 1| 1| .6| .1|");
    for (const float kf : {p.kfn, p.kfs, p.kfo, p.kfw})
        EXPECT_EQ(kf, 1.42F);
    EXPECT_EQ(p.Geaendert, 0);
    EXPECT_TRUE(h.e_daemmung.Waermebruecken_opt.gesetzt(2));
}

TEST_F(Eingaben, JederSchieberStelltSeinenWertUndJedesErgebnisFolgt) {
    zeige_alle(h);
    h.alles_berechnen();
    const auto vorher = zustand(h);
    alles_bewegen();
    auto nachher = zustand(h);
    for (const auto& [name, text] : vorher) {
        const bool bleibt = name.starts_with("anz_M") || name == "anz_Heizgradtage" || name.ends_with("_cb");
        EXPECT_EQ(nachher[name] == text, bleibt) << name << ", of the weather or a neighbour";
    }
    const std::map<std::string, std::string> von_hand{
        {"f_nfa_anz", " 90.0"},          // 12.5 x 7.2
        {"f_wfa_anz", " 60.5"},          // 8.4 x 7.2
        {"Giebel_anz", " 14.3 m²"},      // 3.4 x 8.4 / 2
        {"dachfläche_anz", " 67.5 m²"},  // 12.5 x root of 4.2 x 4.2 + 3.4 x 3.4
        {"f_gd_anz", " 105.0"},
        {"v_luft_anz", " 747.6"},
        {"f_nutz_anz", " 298.9"},  // 252 + 34.59 + 12.35
        {"v_geb_anz", " 934.5"},   // 756 + 178.5
        {"f_gf_anz", "61.7"},      // 9 + 31.5 + 9.072 + 12.096
        {"f_vf_anz", "48.4"},      // 8.1 + 23.625 + 6.35 + 10.282
        {"kf_anz", " 1.03"},       // 63.649 / 61.668
        {"gfm_anz", " 0.62"},      // 29.783 / 48.357
        {"intg_anz2", "3.5"}};     // 30500 / 8760
    for (const auto& [name, text] : von_hand)
        EXPECT_EQ(nachher[name], text) << name;
    EXPECT_EQ(nachher["f_nf_anz"] + nachher["f_sf_anz"] + nachher["f_of_anz"] + nachher["f_wf_anz"],
              " 9.0 31.5 9.1 12.1");
    EXPECT_EQ(h.e_geometrie.av_anz.platz()->links, 0);
    EXPECT_FLOAT_EQ(p.kfs, 0.525F);   // 0.75 x 0.45 + 0.25 x 0.75
    EXPECT_FLOAT_EQ(p.kfw, 1.1525F);  // 0.85 x 1.1 + 0.15 x 1.45
}

/// At every position of every field, as the display shows it and with either decimal mark and its unit.
TEST_F(Eingaben, JedeAnzeigeEingetipptGibtIhreStellung) {
    p.FormLoadGuard = -1;  // displays alone
    h.e_gebaeude.Tueber_sb.setze(400);
    h.e_gebaeude.Troom_sb.setze(-100);
    int stellungen = 0;
    for (const auto& [name, paar] : schieber(h)) {
        Eingabefeld& feld = *paar.first;
        const int vorher = feld.position();
        for (int ort = feld.minimum(); ort <= feld.maximum(); ++ort) {
            feld.setze(ort);
            std::string text = paar.second->text();
            EXPECT_EQ(std::get<int>(eingabewert(feld.zeile(), text)), feld.position()) << text;
            std::replace(text.begin(), text.end(), '.', ',');
            if (text.find_last_of("0123456789") + 1 == text.size()) text += feld.zeile().einheit;
            EXPECT_EQ(std::get<int>(eingabewert(feld.zeile(), text)), feld.position()) << text;
            stellungen += feld.position() == ort ? 1 : 0;
        }
        feld.setze(vorher);
    }
    // Facades 4 x (4 x 101 + 2 x 601), insulation 4 x 150 + 2 x 151 + 501 + 201 + 101, geometry
    // 3 x 481 + 51 + 20 + 91, building 500 + 301 + 801 + 2 x 1001 + 101 + 76; 40.0 °C is above the limit.
    EXPECT_EQ(stellungen, 6424 + 1705 + 1605 + 3781);
}

/// A house with no line of a new project in its file, opened by a program that knows nothing of it and has
/// the focus on a scroll field that follows.
TEST_F(Eingaben, OeffnenGibtWiederWasGesichertWurde) {
    alles_bewegen();
    waende_zum_nachbarn();
    EXPECT_EQ(
        datei_mit_strichen(p),
        "Velmaris Version 3.2| 12.5| 8.4| 7.2| 3| 1.2| .85| 15| 30.5| 21.5| 22.5| 0| 0| 0| 0| 1| 7| 5| 7"
        "| .31| .42| .53| 1.34| .15| .47| 2.1| 1.8| 1| 3| .7| 0| 10| 35| 15| 20| .25| .4| .05| .55| .1| .25"
        "| .3| .15| 3| .45| .7| 1.1| 2.8| .75| .7| 1.45| .8| .71| .51| .32|fern.met| 0| 2| 1|2| 3.4|1| 3.5"
        "| 3| 6| 2| 3| .45| .05|");
    Testprogramm frisch;
    zeige_alle(*frisch.haupt);
    const Scrollfeld& fokus = frisch.haupt->e_fenster.nord.kfg.sb;
    frisch.haupt->e_fenster.fokusstellung = [&fokus] { return std::optional(fokus.position()); };
    const auto haus = frisch.ordner.schreibe("haus.vel", test::projekttext(projektzeilen(p)));
    const std::string bytes = test::inhalt(haus);
    frisch.haupt->datei.datei_oeffnen(pfadtext(haus));
    EXPECT_TRUE(frisch.plattform.meldungen.empty());
    EXPECT_EQ(frisch.p().Geaendert, 0);
    EXPECT_EQ(projektzeilen(frisch.p()), projektzeilen(p));
    for (const Feldzeile& feld : felder()) {
        std::visit([&](auto zeiger) { EXPECT_EQ(frisch.p().*zeiger, p.*zeiger) << feld.name; }, feld.zeiger);
    }
    EXPECT_EQ(zustand(*frisch.haupt), zustand(h));
    frisch.haupt->datei.datei_speichern();
    EXPECT_EQ(test::inhalt(haus), bytes);
    zeige_alle(*frisch.haupt);
    frisch.haupt->datei.datei_neu();
    EXPECT_EQ(frisch.p().fenstern_typ, 3);
}

TEST_F(Eingaben, DieDokumenteBekommenWasDieEbenenZeigen) {
    alles_bewegen();
    h.a_klima.ebene.zeige(false);
    h.e_daemmung.kd_sb.setze(60);
    const Kennwerte k = energ_refresh(p);
    const Gebaeudekennwerte g = gebaeudekennwerte(p);
    const Heizgrenze grenze = heizgrenze(p);
    const Dokumentquelle q = dokumentquelle(h);
    const double je_flaeche = 1000 / double{p.f_nutz};
    const auto m = [](double wert, int stellen = 1) { return muster(wert, stellen); };
    using Texte = std::vector<std::string>;
    EXPECT_EQ(
        (Texte{q.auswahl.Dachraum, q.auswahl.untere_Decke, q.auswahl.Waermebruecken, q.auswahl.Aussenwandart,
               q.auswahl.Innenwandart, q.auswahl.Fensterart[Wandseite::nord],
               q.auswahl.Fensterart[Wandseite::ost], q.energie.Energietraeger}),
        (Texte{"Teilgedämmtes Dach", "Erdreich (ohne Randdämmung)",
               "U-Werte aller Umfassungsflächen um 0,05 W/(m² K) erhöhen", "Leichte Bauweise",
               "Schwere Bauweise", "Doppelverglasung", "Wärmeschutz-Dreifachverglasung (U = 0,7 W/(m² K))",
               "Wärme aus Heizkraftwerken, fossiler Brennstoff"}));
    const Gebaeudetexte& b = q.gebaeude;
    EXPECT_EQ((Texte{b.Umittel, b.Tspez, b.Vspez, b.TVspez, b.tau, b.Heizlast, b.heizlast_spez, b.kuehllast,
                     b.kuehllast_spez, b.Heizgrenztemp, b.Heiztage}),
              (Texte{m(g.Umittel, 2), m(g.Tspez), m(g.Vspez), m(g.TVspez), m(g.tau), m(p.Heizlast_max),
                     m(p.Heizlast_max * je_flaeche), m(p.Kuehllast_max), m(p.Kuehllast_max * je_flaeche),
                     m(grenze.Temperatur), std::to_string(grenze.Heiztage)}));
    const Energietexte& e = q.energie;
    EXPECT_EQ((Texte{e.qhs_sum, e.q_s, e.q_d, e.q_ce, e.e_g, e.q_s_he, e.q_d_he, e.q_g_he,
                     e.q_HE_Energietraeger, e.q_HE_Strom, e.Primaerenergiefaktor_Energietraeger,
                     e.Primaerenergiefaktor_Strom, e.q_PE_Energietraeger, e.q_PE_Strom}),
              (Texte{m(p.qhs_sum), m(k.q_s), m(k.q_d), m(k.q_ce), m(k.e_g, 2), m(k.q_s_he), m(k.q_d_he),
                     m(k.q_g_he), m(p.q_HE_Energietraeger), m(p.q_HE_Strom), m(k.f_p), "3.0",
                     m(p.q_PE_Energietraeger), m(p.q_PE_Strom)}));
    EXPECT_TRUE(q.energie.System.starts_with("Nah- oder Fernwärme"));
    EXPECT_TRUE(q.energie.Uebergabe.ends_with("Systemtemperatur: 35/28°C"));
    EXPECT_EQ(q.energie.name.in("d"), k.name.in("d"));
}

TEST_F(Eingaben, EinLeererDachraumUndEinFremderZuschlagBleibenUndZeigenNichts) {
    p.Dachraum_typ = 3;
    p.Waermebruecken = 0.07F;
    h.eingaben_anzeigen();
    EXPECT_EQ(p.Dachraum_typ, 3);
    EXPECT_EQ(h.e_daemmung.ogd.index(), -1);
    EXPECT_EQ(p.Waermebruecken, 0.07F);
    EXPECT_EQ(dokumentquelle(h).auswahl.Waermebruecken, "0.07 W/(m² K)");
}

TEST_F(Eingaben, EinBeheiztesDachgeschossZeigtSeineFelder) {
    const E_Daemmung& d = h.e_daemmung;
    E_Geometrie& e = h.e_geometrie;
    const auto pruefe = [&](bool beheizt, const std::string& bild) {
        for (const Feld* feld :
             std::initializer_list<const Feld*>{&e.hd_sb, &e.Label9, &e.Label6, &e.Label4, &e.hd_anz,
                                                &e.dachfläche_anz, &e.Giebel_anz, &d.ogd_Dach})
            EXPECT_EQ(feld->sichtbar(), beheizt) << feld->name;
        EXPECT_EQ(e.Option_Dachfirst.aktiv(), beheizt);
        EXPECT_EQ(e.Frame3.aktiv(), beheizt);
        EXPECT_EQ(d.ogd.sichtbar(), !beheizt);
        EXPECT_EQ(d.liste2.text(), beheizt ? "Dach" : "Obere Geschoßdecke");
        EXPECT_EQ(e.Picture3.bild(), programm.ordner / ("Grafiken/" + bild));
        EXPECT_EQ(e.h_sb.lage()->oben, beheizt ? 128 : 111);  // 1665 twips
        EXPECT_EQ(e.h_sb.lage()->hoehe, beheizt ? 80 : 97);   // 1455 twips
    };
    const float qh = p.qh;
    e.Option_Dachfirst.setze(2);
    EXPECT_EQ(p.Option_Dachfirst, 2);
    EXPECT_EQ(p.qh, qh) << "without a heated attic the ridge is only noted";
    EXPECT_EQ(p.Geaendert, 0);
    pruefe(false, "haus0.bmp");
    e.Check_Dachgeschoss.setze(1);
    EXPECT_EQ(p.hd, 1);
    EXPECT_EQ(p.Geaendert, 1);
    EXPECT_GT(p.f_dach_n, 0);
    EXPECT_EQ(p.f_dach_w, 0);
    pruefe(true, "haus2.bmp");
    e.hd_sb.setze(-30);
    e.Check_Dachgeschoss.setze(0);
    EXPECT_EQ(p.hd, 0);
    EXPECT_FALSE(std::signbit(p.hd));
    pruefe(false, "haus0.bmp");
}

/// A file and New move the ridge while the attic is off; once it is on, picture and captions are of one
/// house.
TEST_F(Eingaben, DieBeschriftungPasstNachJederReihenfolgeZumHaus) {
    struct Haus {
        std::string sprache, bild, label9, label6;
        std::array<Platz, 4> plaetze;  ///< Label9, Label6, area of the roof, gable; from the left and the top
    };
    const std::array<Platz, 4> laengs{{{26, 48}, {88, 72}, {24, 76}, {72, 88}}};
    const std::array<Platz, 4> quer{{{4, 56}, {48, 68}, {80, 84}, {-10, 70}}};
    for (const Haus& haus : {Haus{"d", "haus1.bmp", "Dachfläche (West):", "Giebel", laengs},
                             {"d", "haus2.bmp", "Giebel:", "Dachfläche (Süd):", quer},
                             {"e", "haus1.bmp", "roof area (west):", "gable:", laengs},
                             {"e", "haus2.bmp", "gable:", "roof area (south):", quer}}) {
        const Testprogramm anderes(haus.sprache);
        E_Geometrie& g = anderes.haupt->e_geometrie;
        const auto haken = [&g](int wert) { g.Check_Dachgeschoss.setze(wert); };
        const std::vector<std::function<void(int)>> wege{
            [&](int first) { g.dachgeschoss_lesen(0), g.dachfirst_lesen(first), g.dachgeschoss_lesen(1); },
            [&](int first) {
                haken(0), g.Option_Dachfirst.setze(first), anderes.haupt->neues_projekt(), haken(1);
            },
            [&](int first) { g.Option_Dachfirst.setze(first); },
        };
        for (const auto& weg : wege) {
            const int first = haus.bild == "haus1.bmp" ? 1 : 2;
            g.Option_Dachfirst.setze(3 - first);
            weg(first);
            EXPECT_EQ(g.Picture3.bild().filename(), haus.bild);
            EXPECT_EQ(g.Label9.text(), haus.label9);
            EXPECT_EQ(g.Label6.text(), haus.label6);
            EXPECT_EQ((std::array{*g.Label9.platz(), *g.Label6.platz(), *g.dachfläche_anz.platz(),
                                  *g.Giebel_anz.platz()}),
                      haus.plaetze);
        }
    }
}

TEST_F(Eingaben, SollwertUndUeberwaermungsgrenzeHaltenAbstand) {
    E_Gebaeude& e = h.e_gebaeude;
    for (const int sollwert : {270, 400}) {
        e.Troom_sb.setze(sollwert);
        EXPECT_EQ(p.Troom, 26.9F);
        EXPECT_EQ(e.troom_anz.text(), "26.9");
    }
    e.Troom_sb.setze(200);
    for (const int grenze : {200, 100}) {
        e.Tueber_sb.setze(grenze);
        EXPECT_EQ(p.Tueber, 20.1F);
    }
}

TEST_F(Eingaben, OhneGlasOderFensterSindDieMittelwerteLeer) {
    E_Fenster& e = h.e_fenster;
    e.sued.ra.sb.setze(100);
    EXPECT_EQ(e.kf_anz.text(), " 1.50") << "the frame's";
    EXPECT_EQ(e.gfm_anz.text(), "");
    for (Fensterseite* seite : {&e.nord, &e.sued, &e.ost, &e.west})
        seite->f.sb.setze(0);
    EXPECT_EQ(e.f_gf_anz.text(), "0.0");
    EXPECT_EQ(e.kf_anz.text(), "");
}

TEST(Eingabeebenen, SprechenEnglisch) {
    const Testprogramm programm("e");
    const Haupt& h = *programm.haupt;
    std::string texte = h.e_geometrie.l_anz.text() + "|" + h.e_geometrie.Label4.text();
    for (const Auswahlliste* liste :
         {&h.e_fenster.west.typ, &h.e_daemmung.ugd, &h.e_daemmung.ogd, &h.e_gebaeude.Innenwandart})
        texte += "|" + liste->eintraege().front() + "|" + liste->eintraege().back();
    EXPECT_EQ(texte,
              "length: 10.0 m|height of roof|single glazing|others|non-heated cellar (with insulation)|"
              "outside air|outside or non-insulated roof|totally insulated roof|heavy construction|"
              "light construction");
}

}  // namespace
}  // namespace velmaris
