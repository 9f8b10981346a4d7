#include "planes/E_Geometrie.h"

#include "charts/geometriebilder.h"
#include "climate/strahlung.h"
#include "language/beschriftungen.h"
#include "planes/geometrietexte.h"
#include "toolkit/text.h"
#include "toolkit/wort.h"

#include <array>
#include <string_view>

namespace velmaris {
namespace {

/// The labels over the house picture for one direction of the ridge; places in pixels.
struct Dachbeschriftung {
    Zweisprachig label9;
    Platz platz9;
    Zweisprachig label6;
    Platz platz6;
    Platz dachflaeche;
    Platz giebel;
};

const Dachbeschriftung& dachbeschriftung(int first) {
    static const std::array<Dachbeschriftung, 2> zeilen{{
        {{"Dachfläche (West):", "roof area (west):"},
         {.links = 26, .oben = 48},
         {"Giebel", "gable:"},
         {.links = 88, .oben = 72},
         {24, 76},
         {72, 88}},
        {{"Giebel:", "gable:"},
         {.links = 4, .oben = 56},
         {"Dachfläche (Süd):", "roof area (south):"},
         {.links = 48, .oben = 68},
         {80, 84},
         {-10, 70}},
    }};
    return zeilen[first == 1 ? 0 : 1];
}

/// Places of the height's scroll field on the plane: below that of the roof height, and without it.
constexpr Rechteck hoehe_unter_dach{.links = 78, .oben = 128, .breite = 17, .hoehe = 80};
constexpr Rechteck hoehe_allein{.links = 78, .oben = 111, .breite = 17, .hoehe = 97};

constexpr int dachhoehe_null = 0;
constexpr int dachhoehe_ein_meter = -10;

}  // namespace

E_Geometrie::E_Geometrie(Sitzung& sitzung, E_Daemmung& daemmung) : s_(sitzung), daemmung_(daemmung) {
    for (Eingabefeld* feld : {&l_sb, &b_sb, &h_sb, &hd_sb, &ag_sb}) {
        feld->geaendert = [this, feld] {
            feld->uebernehmen(s_.p);
            geaendert(s_);
        };
    }
    orient_sb.geaendert = [this] { orient_geaendert(); };
    Check_Dachgeschoss.geklickt = [this] {
        s_.p.Check_Dachgeschoss = static_cast<std::int16_t>(Check_Dachgeschoss.wert());
        Check_Dachgeschoss_Click();
    };
    Option_Dachfirst.geklickt = [this](int index) {
        s_.p.Option_Dachfirst = static_cast<std::int16_t>(index);
        Option_Dachfirst_Click(index);
    };
    AV_Picture.zeichnen = [this](Zeichenflaeche& flaeche) { av_diagramm_zeichnen(s_.p, flaeche); };
    AV_Picture.werte = [this] { return av_diagramm_werte(s_.p); };
    AV_Picture.einzeln = {
        .breite = av_bild_breite,
        .hoehe = av_bild_hoehe,
        .hintergrund = {240, 240, 240},
        .beschriften = [this](Zeichenflaeche& flaeche) { av_diagramm_beschriften(s_.p, flaeche); }};
    Picture1.zeichnen = [this](Zeichenflaeche& flaeche) { lageplan_zeichnen(s_.p, flaeche); };
    Picture1.einzeln = {.breite = 80, .hoehe = 80};
    Picture1.titel = blosser_name(beschriftung(ebene.name, "Frame2", s_.p.Sprache));
    Picture3.einzeln = {.breite = 190, .hoehe = 176};
    Picture3.titel = Zweisprachig{"Haus", "House"}.in(s_.p.Sprache);
    Label4.schreibe(Zweisprachig{"Dachhöhe:", "height of roof"}.in(s_.p.Sprache));
    Option_Dachfirst.markiere(s_.p.Option_Dachfirst);
    dach_zeigen();
    orient_zeigen();
    ebene.zeige(false);
}

void E_Geometrie::orient_geaendert() {
    s_.p.Geaendert = 1;
    orient_sb.uebernehmen(s_.p);
    orient_zeigen();
    // Whoever builds up a project works it out with the station.
    if (s_.p.FormLoadGuard == 0) monatsstrahlung_berechnen(s_.p);
    s_.alles_berechnen();
    Picture1.neu_zeichnen();
}

void E_Geometrie::orient_zeigen() {
    orient_anz.schreibe(orient_sb.anzeigetext(s_.p) + "°");
}

void E_Geometrie::Check_Dachgeschoss_Click() {
    hd_sb.setze(s_.p.Check_Dachgeschoss != 0 ? dachhoehe_ein_meter : dachhoehe_null);
    dach_zeigen();
    s_.alles_berechnen();
}

void E_Geometrie::dach_zeigen() {
    const bool beheizt = s_.p.Check_Dachgeschoss != 0;
    Option_Dachfirst.aktiviere(beheizt);
    Frame3.aktiviere(beheizt);
    dachbild_zeigen();
    dachbeschriftung_zeigen(s_.p.Option_Dachfirst);
    daemmung_.dachgeschoss_zeigen(beheizt);
    hd_sb.zeige(beheizt);
    h_sb.lege(beheizt ? hoehe_unter_dach : hoehe_allein);
    for (Anzeige* anzeige : {&Label9, &Label6, &Label4, &hd_anz, &dachfläche_anz, &Giebel_anz}) {
        anzeige->zeige(beheizt);
    }
}

void E_Geometrie::Option_Dachfirst_Click(int index) {
    if (s_.p.Check_Dachgeschoss == 0) return;
    dachbild_zeigen();
    dachbeschriftung_zeigen(index);
    s_.alles_berechnen();
}

void E_Geometrie::dachbeschriftung_zeigen(int first) {
    const Dachbeschriftung& zeile = dachbeschriftung(first);
    Label9.schreibe(zeile.label9.in(s_.p.Sprache));
    Label9.setze(zeile.platz9);
    Label6.schreibe(zeile.label6.in(s_.p.Sprache));
    Label6.setze(zeile.platz6);
    dachfläche_anz.setze(zeile.dachflaeche);
    Giebel_anz.setze(zeile.giebel);
}

void E_Geometrie::dachbild_zeigen() {
    std::string_view bild = "Grafiken/haus0.bmp";
    if (s_.p.Check_Dachgeschoss != 0) {
        bild = s_.p.Option_Dachfirst == 1 ? "Grafiken/haus1.bmp" : "Grafiken/haus2.bmp";
    }
    Picture3.lade(s_.p.AppPfad / pfad(bild));
}

void E_Geometrie::dachgeschoss_lesen(int wert) {
    Check_Dachgeschoss.markiere(wert);
    s_.p.Check_Dachgeschoss = static_cast<std::int16_t>(wert);
    Check_Dachgeschoss_Click();
}

void E_Geometrie::dachfirst_lesen(int wert) {
    const bool vorhanden = wert == 1 || wert == 2;
    Option_Dachfirst.markiere(vorhanden ? std::optional(wert) : std::nullopt);
    s_.p.Option_Dachfirst = static_cast<std::int16_t>(vorhanden ? wert : 0);
    Option_Dachfirst_Click(wert);
}

void E_Geometrie::eingaben_anzeigen() {
    for (Eingabefeld* feld : {&l_sb, &b_sb, &h_sb, &hd_sb, &ag_sb, &orient_sb})
        feld->stellen(s_.p);
}

void E_Geometrie::geometrie_zeigen() {
    const GeometrieTexte texte = geometrie_texte(s_.p);
    l_anz.schreibe(texte.l_anz);
    b_anz.schreibe(texte.b_anz);
    h_anz.schreibe(texte.h_anz);
    hd_anz.schreibe(texte.hd_anz);
    ag_anz.schreibe(texte.ag_anz);
    f_nfa_anz.schreibe(texte.f_nfa_anz);
    f_wfa_anz.schreibe(texte.f_wfa_anz);
    Giebel_anz.schreibe(texte.Giebel_anz);
    dachfläche_anz.schreibe(texte.dachfläche_anz);
    f_nutz_anz.schreibe(texte.f_nutz_anz);
    f_gd_anz.schreibe(texte.f_gd_anz);
    v_luft_anz.schreibe(texte.v_luft_anz);
    v_geb_anz.schreibe(texte.v_geb_anz);
}

void E_Geometrie::AV_diagramm() {
    const AVTexte texte = av_texte(s_.p);
    av_anz.schreibe(texte.av_anz);
    av_anz.setze({0, texte.av_oben});
    AV_Picture.neu_zeichnen();
    if (texte.AV_Kugel.empty()) return;
    AV_Kugel.schreibe(texte.AV_Kugel);
    AV_Wuerfel.schreibe(texte.AV_Wuerfel);
    AV_Tetraeder.schreibe(texte.AV_Tetraeder);
}

void E_Geometrie::aktivieren() {
    s_.alles_berechnen();
    Picture1.neu_zeichnen();
}

}  // namespace velmaris
