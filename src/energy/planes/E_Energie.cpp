#include "energy/planes/E_Energie.h"

#include "charts/chartwerte.h"
#include "charts/energiediagramm.h"
#include "charts/schema.h"
#include "charts/traegerbild.h"
#include "energy/energiebilanz.h"
#include "language/beschriftungen.h"
#include "toolkit/wort.h"
#include "toolkit/zahlen.h"

#include <array>
#include <utility>
#include <vector>

namespace velmaris {
namespace {

constexpr Tooltipart tooltipart{.platz = platz_neben_dem_zeiger, .hoehe = 72, .verbirgt_bei_druck = true};

/// Losses of distribution and storage, kWh/(m2 a).
double verlust(const Kennwerte& k) {
    return double{k.q_s} + k.q_ce + k.q_d;
}

/// Primary energy of the carrier, of an electric one with that of the auxiliary electricity.
double primaerenergie(const Projekt& p, const Kennwerte& k) {
    return double{p.q_PE_Energietraeger} + (k.name.elektrisch() ? p.q_PE_Strom : 0.0F);
}

Wertezeile zeile(const Anzeige& wort, double wert, const std::string& einheit = {}) {
    return {.namen = {blosser_name(wort.text())}, .werte = {wert}, .einheit = einheit};
}

}  // namespace

E_Energie::E_Energie(Sitzung& sitzung)
    : tooltip(sitzung.plattform, ebene.name, tooltipart), sitzung_(sitzung) {
    ebene.zeige(false);
    for (Anzeige* verdeckt : {&anz_q_ce, &anz_q_d, &anz_q_s, &anz_q_d_he, &anz_q_s_he, &anz_q_g_he})
        verdeckt->zeige(false);

    Command1.gedrueckt = [this] { auswahl_oeffnen(Label_System); };
    Command2.gedrueckt = [this] { auswahl_oeffnen(Label_Übergabe); };
    Command3.gedrueckt = [this] { auswahl_oeffnen(Label_Energieträger); };

    Picture2.zeichnen = [this](Zeichenflaeche& bild) { Energietraeger_zeichnen(bild, sitzung_.p); };
    Picture3.zeichnen = [this](Zeichenflaeche& bild) { Hilfsstrom_zeichnen(bild, sitzung_.p); };
    Monatsübersicht_Energieträger.zeichnen = [this](Zeichenflaeche& bild) {
        Monatsverbrauch_zeichnen(bild, sitzung_.p);
    };
    Picture2.einzeln = Picture3.einzeln = {.breite = 80, .hoehe = 60};
    Monatsübersicht_Energieträger.einzeln = {.breite = monatsflaeche_breite, .hoehe = 118};
    Picture2.werte = [this] { return Energietraeger_werte(sitzung_.p); };
    Picture3.werte = [this] { return Hilfsstrom_werte(sitzung_.p); };
    Monatsübersicht_Energieträger.werte = [this] { return Monatsverbrauch_werte(sitzung_.p); };
    tooltip.folge(Monatsübersicht_Energieträger, [this](double x, double y) -> std::optional<std::string> {
        const std::optional<int> monat = spaltenmonat(x);
        if (!monat || !auf_saeule(monatswerte(sitzung_.p), x, y)) return std::nullopt;
        return tooltip_text(*monat);
    });
    laden();
}

void E_Energie::laden() {
    Heizsysteme = katalog_laden(sitzung_.p.Sprache);
    velmaris::beschriften<Anzeige>(
        "E_Energie", sitzung_.p.Sprache,
        {&Label1, &Label2, &Label3, &Label6, &Label11, &Label14, &Label16, &Label30, &Label33, &Label34,
         &Frame1, &Frame8, &Monatsverbrauch, &Einheit_qhs_sum, &Einheit_q_verlust,
         &Einheit_q_HE_Energieträger, &Einheit_q_HE_Strom, &Einheit_q_PE_Energieträger});
}

void E_Energie::aktiviert() {
    tooltip.verlassen();
    sitzung_.alles_berechnen();
    // A load that failed leaves a record of which nothing may be calculated.
    if (sitzung_.p.FormLoadGuard == 0) EnergRefresh();
}

void E_Energie::EnergRefresh() {
    zeigen(energ_refresh(sitzung_.p));
}

void E_Energie::zeigen(const Kennwerte& kennwerte) {
    kennwerte_ = kennwerte;
    auswahl_zeigen();
    felder_fuellen(kennwerte);
    beschriften(kennwerte.name);
    if (ebene.sichtbar()) bilder_erneuern();
}

/// The record's choice behind one of the three fields.
std::int16_t& E_Energie::stelle(std::string_view feld) const {
    Projekt& p = sitzung_.p;
    if (feld == Label_System.name) return p.Heizsystem;
    return feld == Label_Übergabe.name ? p.Uebergabe : p.Energietraeger;
}

/// What the list of a field offers as entry i: a text of the row of the record, empty for what is not there.
const std::string& E_Energie::eintrag(std::string_view feld, int i) const {
    static const std::string nichts;
    const bool systeme = feld == Label_System.name;
    const int zeile = systeme ? i : sitzung_.p.Heizsystem;
    if (i < 1 || zeile < 1 || zeile > heizsysteme) return nichts;
    if (systeme) return Heizsysteme(zeile).Bezeichnung;
    if (feld == Label_Übergabe.name) return i <= uebergaben ? Heizsysteme(zeile).Uebergabe(i) : nichts;
    return i <= energietraeger_je_zeile ? Heizsysteme(zeile).Energietraeger(i) : nichts;
}

void E_Energie::eingaben_anzeigen() {
    Projekt& p = sitzung_.p;
    Auswahl.schliesse();
    kombination_pruefen(p.Heizsystem, p.Uebergabe, p.Energietraeger);
    if (ohne_uebergabe(p.Heizsystem)) p.Uebergabe = 1;
    auswahl_zeigen();
}

void E_Energie::auswahl_oeffnen(const Anzeige& feld) {
    std::vector<std::string> texte;
    for (int i = 1; i <= Auswahlrahmen::eintraege; ++i)
        texte.push_back(eintrag(feld.name, i));
    Auswahl.oeffne(feld, texte, stelle(feld.name));
}

/// A choice that has changed closes the list, which may not fit it any more.
void E_Energie::auswahl_zeigen() {
    for (Anzeige* feld : {&Label_System, &Label_Übergabe, &Label_Energieträger}) {
        const std::string& text = eintrag(feld->name, stelle(feld->name));
        if (feld->text() != text) Auswahl.schliesse();
        feld->schreibe(text);
    }
}

Wertetafel E_Energie::endenergiewerte() const {
    const Projekt& p = sitzung_.p;
    std::vector<Wertezeile> zeilen{
        zeile(Label11, p.qhs_sum, Einheit_qhs_sum.text()),
        zeile(Label30, verlust(kennwerte_), Einheit_q_verlust.text()),
        zeile(Label16, kennwerte_.e_g),
        zeile(Label8, p.q_HE_Energietraeger, Einheit_q_HE_Energieträger.text()),
        zeile(Label33, p.q_HE_Strom, Einheit_q_HE_Strom.text()),
        zeile(Label21, primaerenergie(p, kennwerte_), Einheit_q_PE_Energieträger.text())};
    if (Label14.sichtbar()) zeilen.push_back(zeile(Label14, p.q_PE_Strom, Label6.text()));
    return groessentafel(p, Frame1.text(), std::move(zeilen));
}

Wertetafel E_Energie::faktorwerte() const {
    std::vector<Wertezeile> zeilen{zeile(Label27, kennwerte_.f_p)};
    if (Label34.sichtbar()) zeilen.push_back(zeile(Label34, f_p_Strom));
    return groessentafel(sitzung_.p, Frame8.text(), std::move(zeilen));
}

void E_Energie::felder_fuellen(const Kennwerte& k) {
    const Projekt& p = sitzung_.p;
    anz_qhs_sum.schreibe(muster(p.qhs_sum, 1));
    anz_q_verlust.schreibe(muster(verlust(k), 1));
    anz_e_g.schreibe(muster(k.e_g, 2));
    anz_q_HE_Energieträger.schreibe(muster(p.q_HE_Energietraeger, 1));
    anz_q_HE_Strom.schreibe(muster(p.q_HE_Strom, 1));
    anz_q_PE_Energieträger.schreibe(muster(primaerenergie(p, k), 1));
    anz_q_PE_Strom.schreibe(muster(p.q_PE_Strom, 1));
    anz_Primärenergiefaktor_Energieträger.schreibe(muster(k.f_p, 1));
    anz_Primärenergiefaktor_Strom.schreibe(muster(f_p_Strom, 1));
    anz_q_ce.schreibe(muster(k.q_ce, 1));
    anz_q_d.schreibe(muster(k.q_d, 1));
    anz_q_s.schreibe(muster(k.q_s, 1));
    anz_q_d_he.schreibe(muster(k.q_d_he, 1));
    anz_q_s_he.schreibe(muster(k.q_s_he, 1));
    anz_q_g_he.schreibe(muster(k.q_g_he, 1));
}

void E_Energie::beschriften(const Kurzname& name) {
    const std::string& sprache = sitzung_.p.Sprache;
    const std::string traeger(name.in(sprache));
    const Zweisprachig heizenergie{"Heizenergiebedarf (", "heating energy demand ("};
    const Zweisprachig primaerenergie{"Primärenergiebedarf (", "primary energy demand ("};
    Label8.schreibe(heizenergie.in(sprache) + traeger + "):");
    Label21.schreibe(primaerenergie.in(sprache) + traeger + "):");
    Label27.schreibe(traeger + ":");
    for (Anzeige* nur_hilfsstrom :
         {&Label14, &Label6, &anz_q_PE_Strom, &Label34, &anz_Primärenergiefaktor_Strom})
        nur_hilfsstrom->zeige(!name.elektrisch());
}

void E_Energie::bilder_erneuern() const {
    Picture2.neu_zeichnen();
    Picture3.neu_zeichnen();
    Monatsübersicht_Energieträger.neu_zeichnen();
}

void E_Energie::Label_Auswahl_Click(int i) {
    const std::string feld = Auswahl.feld();
    const std::string& text = Auswahl.Label_Auswahl(i).text();
    const bool angeboten = Auswahl.offen() && !text.empty() && text == eintrag(feld, i);
    Auswahl.schliesse();
    if (!angeboten) return;
    stelle(feld) = i16(i, feld);
    if (feld == Label_System.name) {
        sitzung_.p.Uebergabe = 1;
        sitzung_.p.Energietraeger = 1;
    }
    auswahl_zeigen();
    sitzung_.alles_berechnen();
}

void E_Energie::Frame_Auswahl_Click() {
    Auswahl.schliesse();
}

std::string E_Energie::tooltip_text(int m) const {
    const Projekt& p = sitzung_.p;
    const Monatsenergie werte = monatswerte(p);
    const auto zeile = [&](const Anzeige& feld, float wert) {
        return tippzeile(feld, wert, kwh_je_monat(p));
    };
    const std::string kopf = tippmonat(p, m);
    if (kurzname(p.Heizsystem, p.Energietraeger).elektrisch())
        return kopf + zeile(Label8, werte.E(m)) + zeile(Label21, werte.P(m));
    return kopf + zeile(Label8, werte.E(m)) + zeile(Label33, werte.H(m)) + zeile(Label21, werte.P(m)) +
           zeile(Label14, werte.Q(m));
}

}  // namespace velmaris
