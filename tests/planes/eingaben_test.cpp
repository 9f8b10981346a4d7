#include "planes/Haupt.h"
#include "project/feldtabelle.h"
#include "tests/testprogramm.h"
#include "toolkit/text.h"

#include <array>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace velmaris {
namespace {

using test::projektzeilen;
using test::Testprogramm;

/// Range, small and large step of a scroll field, in positions.
using Bereich = std::array<int, 4>;

/// A move of a scroll field, the value that its quantity gets, and what its display shows then.
struct Zug {
    int stellung;
    double wert;
    std::string anzeige;
};

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

double wert(const Projekt& p, const std::string& groesse) {
    const Feldzeiger& zeiger = feld_suchen(groesse)->zeiger;
    if (const auto* gleitzahl = std::get_if<float Projekt::*>(&zeiger)) return p.*(*gleitzahl);
    return p.*std::get<std::int16_t Projekt::*>(zeiger);
}

/// The program of a new project, and how its user changes every input of it.
class Eingaben : public testing::Test {
  protected:
    Haupt& h() { return *programm.haupt; }
    Projekt& p() { return programm.p(); }

    void ziehe(const std::string& feld, const Bereich& bereich, const Zug& zug) {
        const auto [sb, anzeige] = schieber(h()).at(feld);
        p().Geaendert = 0;
        EXPECT_NE(sb->position(), zug.stellung) << feld;
        sb->setze(zug.stellung);
        EXPECT_EQ((Bereich{sb->minimum(), sb->maximum(), sb->kleiner_schritt(), sb->grosser_schritt()}),
                  bereich)
            << feld;
        EXPECT_NEAR(wert(p(), feld.substr(0, feld.size() - 3)), zug.wert, 1e-6) << feld;
        EXPECT_EQ(anzeige->text(), zug.anzeige) << feld;
        EXPECT_EQ(p().Geaendert, 1) << feld;
    }

    void alle_schieber() {
        const std::vector<std::pair<std::string, std::pair<Bereich, Zug>>> einzelne{
            {"l_sb", {{20, 500, 10, 20}, {125, 12.5, "Länge: 12.5 m"}}},
            {"b_sb", {{20, 500, 10, 20}, {84, 8.4, "Breite: 8.4 m"}}},
            {"h_sb", {{-500, -20, 2, -20}, {-72, 7.2, "7.2 m"}}},
            {"hd_sb", {{-50, 0, 2, -10}, {-34, 3.4, "3.4 m"}}},
            {"ag_sb", {{-20, -1, 1, -2}, {-3, 3, " 3"}}},
            {"orient_sb", {{-45, 45, 5, 1}, {-15, 15, "15°"}}},
            {"kwn_sb", {{1, 150, 10, 20}, {31, 0.31, "0.31"}}},
            {"kws_sb", {{1, 150, 10, 20}, {42, 0.42, "0.42"}}},
            {"kwo_sb", {{1, 150, 10, 20}, {53, 0.53, "0.53"}}},
            {"kww_sb", {{1, 150, 10, 20}, {134, 1.34, "1.34"}}},
            {"kd_sb", {{0, 150, 10, 20}, {15, 0.15, "0.15"}}},
            {"kk_sb", {{0, 150, 10, 20}, {47, 0.47, "0.47"}}},
            {"ft_sb", {{0, 500, 10, 20}, {21, 2.1, "2.1"}}},
            {"kt_sb", {{0, 200, 10, 15}, {18, 1.8, "1.8"}}},
            {"absfaktor_sb", {{0, 100, 10, 50}, {70, 0.7, "0.70"}}},
            {"Troom_sb", {{-100, 400, 20, 200}, {215, 21.5, "21.5"}}},
            {"Tueber_sb", {{100, 400, 10, 100}, {225, 22.5, "22.5"}}},
            {"intg_sb", {{0, 800, 10, 50}, {61, 30.5, "30.5"}}},
            {"infiltration_sb", {{0, 1000, 20, 60}, {45, 0.45, "0.45"}}},
            {"lw_sb", {{0, 1000, 20, 60}, {120, 1.2, "1.20"}}},
            {"WRG_Sb", {{0, 100, 5, 1}, {85, 0.85, "85"}}},
            {"Klimaeffizienz_sb", {{5, 80, 10, 25}, {35, 3.5, "3.5"}}},
        };
        for (const auto& [feld, fall] : einzelne)
            ziehe(feld, fall.first, fall.second);
        const std::vector<std::pair<std::string, std::pair<Bereich, std::array<Zug, 4>>>> je_fassade{
            {"f", {{0, 100, 5, 5}, {{{10, 10, "10"}, {35, 35, "35"}, {15, 15, "15"}, {20, 20, "20"}}}}},
            {"gf",
             {{0, 100, 5, 20},
              {{{75, 0.75, "0.75"}, {71, 0.71, "0.71"}, {97, 0.97, "0.97"}, {32, 0.32, "0.32"}}}}},
            {"kfg",
             {{0, 600, 5, 20},
              {{{305, 3.05, "3.05"}, {45, 0.45, "0.45"}, {560, 5.6, "5.60"}, {110, 1.1, "1.10"}}}}},
            {"kfr",
             {{0, 600, 5, 20},
              {{{300, 3, "3.00"}, {75, 0.75, "0.75"}, {355, 3.55, "3.55"}, {145, 1.45, "1.45"}}}}},
            {"ra",
             {{0, 100, 5, 20}, {{{10, 0.1, "10"}, {25, 0.25, "25"}, {30, 0.3, "30"}, {15, 0.15, "15"}}}}},
            {"versch",
             {{0, 100, 5, 20}, {{{25, 0.25, "25"}, {40, 0.4, "40"}, {5, 0.05, "5"}, {55, 0.55, "55"}}}}},
        };
        for (const auto& [groesse, fall] : je_fassade) {
            for (std::size_t i = 0; i < 4; ++i)
                ziehe(groesse + "nsow"[i] + "_sb", fall.first, fall.second[i]);
        }
    }

    void listen_und_optionen() {
        p().Geaendert = 0;
        h().e_daemmung.ugd.setze(3);
        h().e_daemmung.ogd.setze(1);
        EXPECT_EQ(p().Geaendert, 0) << "a row of these lists is no change of the project";
        h().e_daemmung.cbk_hDach.setze(1);
        h().e_daemmung.Waermebruecken_opt.setze(3);
        EXPECT_EQ(p().Geaendert, 1);
        h().e_fenster.nord.typ.setze(1);
        h().e_fenster.sued.typ.setze(7);
        h().e_fenster.ost.typ.setze(5);
        h().e_fenster.west.typ.setze(7);
        h().e_gebaeude.Aussenwandart.setze(2);
        h().e_gebaeude.Innenwandart.setze(0);
        h().e_klima.Option.setze(3);
        const auto& stationen = h().e_klima.Klimaregionwahl2.eintraege();
        const auto fern = std::find(stationen.begin(), stationen.end(), "Fern (Ausland)");
        h().e_klima.Klimaregionwahl2.setze(static_cast<int>(fern - stationen.begin()));
        h().e_energie.Command1.druecke();
        h().e_energie.Label_Auswahl_Click(6);
        h().e_energie.Command2.druecke();
        h().e_energie.Label_Auswahl_Click(2);
        h().e_energie.Command3.druecke();
        h().e_energie.Label_Auswahl_Click(3);
    }

    void waende_zum_nachbarn() {
        E_Gebaeude& e = h().e_gebaeude;
        for (const auto& [check, feld] : {std::pair(&e.awn_cb, &Projekt::awn),
                                          {&e.aws_cb, &Projekt::aws},
                                          {&e.awo_cb, &Projekt::awo},
                                          {&e.aww_cb, &Projekt::aww}}) {
            p().Geaendert = 0;
            check->setze(1);
            EXPECT_EQ(p().*feld, 0) << check->name;
            EXPECT_EQ(p().Geaendert, 1);
        }
    }

    /// The house with a heated attic and windows of their own, all else moved too.
    void alles_bewegen() {
        zeige_alle(h());
        h().e_geometrie.Check_Dachgeschoss.setze(1);
        h().e_geometrie.Option_Dachfirst.setze(2);
        h().e_fenster.Option1.setze(1);
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
};

/// Displays that follow from the inputs, and nothing else.
std::map<std::string, std::string> ergebnisse(Haupt& h) {
    const E_Geometrie& g = h.e_geometrie;
    const E_Fenster& f = h.e_fenster;
    const E_Gebaeude& b = h.e_gebaeude;
    const E_Energie& e = h.e_energie;
    std::vector<const Anzeige*> alle{&g.f_nfa_anz,        &g.f_wfa_anz,
                                     &g.Giebel_anz,       &g.dachfläche_anz,
                                     &g.f_nutz_anz,       &g.f_gd_anz,
                                     &g.v_luft_anz,       &g.v_geb_anz,
                                     &g.av_anz,           &g.AV_Kugel,
                                     &g.AV_Wuerfel,       &g.AV_Tetraeder,
                                     &f.nord.flaeche_anz, &f.sued.flaeche_anz,
                                     &f.ost.flaeche_anz,  &f.west.flaeche_anz,
                                     &f.f_gf_anz,         &f.f_vf_anz,
                                     &f.kf_anz,           &f.gfm_anz,
                                     &b.intg_anz2,        &b.cges_anz,
                                     &b.Cwirk_anz,        &e.Label_System,
                                     &e.Label_Übergabe,   &e.Label_Energieträger,
                                     &e.anz_qhs_sum,      &e.anz_q_verlust,
                                     &e.anz_e_g,          &e.anz_q_HE_Energieträger,
                                     &e.anz_q_HE_Strom,   &e.anz_q_PE_Energieträger,
                                     &e.anz_q_PE_Strom};
    const auto klima = h.a_klima.anzeigen();
    alle.insert(alle.end(), klima.begin(), klima.end());
    std::map<std::string, std::string> texte;
    for (const Anzeige* anzeige : alle)
        texte[anzeige->name] = anzeige->text();
    return texte;
}

/// The state of all controls.
std::map<std::string, std::string> stellungen(Haupt& h) {
    std::map<std::string, std::string> alle;
    for (const auto& [name, paar] : schieber(h)) {
        alle[name] = std::to_string(paar.first->position()) + " " + paar.second->text() +
                     (paar.first->sichtbar() ? "" : " hidden") + (paar.first->aktiv() ? "" : " locked") +
                     (paar.second->verborgen() ? " unread" : "");
    }
    E_Daemmung& d = h.e_daemmung;
    E_Fenster& f = h.e_fenster;
    E_Gebaeude& b = h.e_gebaeude;
    for (const Auswahlliste* liste : {&d.ugd, &d.ogd, &f.nord.typ, &f.sued.typ, &f.ost.typ, &f.west.typ,
                                      &b.Aussenwandart, &b.Innenwandart, &h.e_klima.Klimaregionwahl2})
        alle[liste->name] = liste->text() + (liste->sichtbar() ? "" : " hidden");
    for (const Pruefeld* feld :
         {&h.e_geometrie.Check_Dachgeschoss, &d.cbk_hDach, &b.awn_cb, &b.aws_cb, &b.awo_cb, &b.aww_cb})
        alle[feld->name] = std::to_string(feld->wert());
    for (const Optionsgruppe* gruppe :
         {&h.e_geometrie.Option_Dachfirst, &d.Waermebruecken_opt, &f.Option1, &h.e_klima.Option})
        alle[gruppe->name] = std::to_string(gruppe->gesetzt().value_or(-1));
    for (const Knopf& reiter : f.Command_HR)
        alle[reiter.name] = reiter.sichtbar() ? reiter.aktiv() ? "shown" : "pressed" : "hidden";
    for (const Anzeige* text : {&h.e_geometrie.Label9, &h.e_geometrie.Label6, &d.liste2})
        alle[text->name] = text->text();
    return alle;
}

TEST_F(Eingaben, EinNeuesProjektHatDieseWerte) {
    const std::string text =
        "Velmaris Version 3.2| 10| 10| 5.2| 2| 0| 0| 0| 25| 20| 27| 1| 1| 1| 1| 3| 3| 3| 3| .2| .2| .2| .2"
        "| .2| .2| 0| 1.5| 0| 0| .5| 1| 5| 40| 5| 5| .2| .2| .2| .2| .2| .2| .2| .2| 1.4| 1.4| 1.4| 1.4"
        "| 1.5| 1.5| 1.5| 1.5| .58| .58| .58| .58|trier.met| 1| 1| 0|1| 2|0| 2.5| 2| 1| 1| 1| .6| .1|";
    std::string zeilen;
    for (const std::string& zeile : projektzeilen(p()))
        zeilen += zeile + "|";
    EXPECT_EQ(zeilen, text);
    for (const float kf : {p().kfn, p().kfs, p().kfo, p().kfw})
        EXPECT_EQ(kf, 1.42F);
    EXPECT_EQ(p().Geaendert, 0);
    EXPECT_TRUE(h().e_daemmung.Waermebruecken_opt.gesetzt(2));
}

TEST_F(Eingaben, JederSchieberStelltSeinenWertUndJedesErgebnisFolgt) {
    zeige_alle(h());
    h().alles_berechnen();
    const auto vorher = ergebnisse(h());
    alles_bewegen();
    auto nachher = ergebnisse(h());
    for (const auto& [name, text] : vorher) {
        const bool vom_wetter = name.starts_with("anz_M") || name == "anz_Heizgradtage";
        EXPECT_EQ(nachher[name] == text, vom_wetter) << name;
    }
    for (const auto& [name, text] : std::map<std::string, std::string>{
             {"f_nfa_anz", " 90.0"},          // 12.5 x 7.2
             {"f_wfa_anz", " 60.5"},          // 8.4 x 7.2
             {"Giebel_anz", " 14.3 m²"},      // 3.4 x 8.4 / 2
             {"dachfläche_anz", " 67.5 m²"},  // 12.5 x root of 4.2 x 4.2 + 3.4 x 3.4
             {"f_gd_anz", " 105.0"},
             {"f_nutz_anz", " 298.9"},  // 252 + 34.59 + 12.35
             {"v_geb_anz", " 934.5"},   // 756 + 178.5
             {"v_luft_anz", " 747.6"},
             {"f_nf_anz", " 9.0"},
             {"f_sf_anz", " 31.5"},
             {"f_of_anz", " 9.1"},
             {"f_wf_anz", " 12.1"},
             {"f_gf_anz", "61.7"},  // 9 + 31.5 + 9.072 + 12.096
             {"f_vf_anz", "48.4"},  // 8.1 + 23.625 + 6.35 + 10.282
             {"kf_anz", " 1.03"},   // 63.649 / 61.668
             {"gfm_anz", " 0.62"},  // 29.783 / 48.357
             {"intg_anz2", "3.5"},  // 30500 / 8760
         })
        EXPECT_EQ(nachher[name], text) << name;
    EXPECT_FLOAT_EQ(p().kfn, 2.98F);    // row 1: 0.9 x 3 + 0.1 x 2.8
    EXPECT_FLOAT_EQ(p().kfs, 0.525F);   // by hand: 0.75 x 0.45 + 0.25 x 0.75
    EXPECT_FLOAT_EQ(p().kfo, 0.7F);     // row 5
    EXPECT_FLOAT_EQ(p().kfw, 1.1525F);  // 0.85 x 1.1 + 0.15 x 1.45
}

/// A house with no line of a new project in its file, opened by a program that knows nothing of it.
TEST_F(Eingaben, OeffnenGibtWiederWasGesichertWurde) {
    const auto neu = projektzeilen(p());
    alles_bewegen();
    waende_zum_nachbarn();
    const auto zeilen = projektzeilen(p());
    for (std::size_t i = 1; i < zeilen.size(); ++i)
        EXPECT_NE(zeilen[i], neu[i]) << feld_der_zeile(static_cast<int>(i) + 1).name;
    Testprogramm frisch;
    zeige_alle(*frisch.haupt);
    const auto haus = frisch.ordner.schreibe("haus.vel", test::projekttext(zeilen));
    const std::string bytes = test::inhalt(haus);
    frisch.haupt->datei.datei_oeffnen(pfadtext(haus));
    EXPECT_TRUE(frisch.plattform.meldungen.empty());
    EXPECT_EQ(frisch.p().Geaendert, 0);
    EXPECT_EQ(projektzeilen(frisch.p()), zeilen);
    for (const Feldzeile& feld : felder()) {
        if (std::holds_alternative<std::string Projekt::*>(feld.zeiger)) continue;
        EXPECT_EQ(wert(frisch.p(), std::string(feld.name)), wert(p(), std::string(feld.name))) << feld.name;
    }
    EXPECT_EQ(stellungen(*frisch.haupt), stellungen(h()));
    EXPECT_EQ(ergebnisse(*frisch.haupt), ergebnisse(h()));
    frisch.haupt->datei.datei_speichern();
    EXPECT_EQ(test::inhalt(haus), bytes);
}

}  // namespace
}  // namespace velmaris
