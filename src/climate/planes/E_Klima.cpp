#include "climate/planes/E_Klima.h"

#include "charts/chartwerte.h"
#include "climate/jahreswerte.h"
#include "climate/karten.h"
#include "climate/klimadatei.h"
#include "climate/postleitzahlen.h"
#include "climate/regionen.h"
#include "language/beschriftungen.h"
#include "project/klimaordner.h"
#include "toolkit/fehler.h"
#include "toolkit/text.h"
#include "toolkit/zahlen.h"

#include <utility>

namespace velmaris {
namespace {

constexpr int twips = 15;  ///< in a pixel
constexpr int kleiner_schritt = 10 * twips;
constexpr int grosser_schritt = 100 * twips;

constexpr double europatoleranz = 3;
constexpr double welttoleranz = 2;

constexpr int ersatzregion = 4;
constexpr std::size_t stellen_der_plz = 5;

constexpr const char* Timer1 = "E_Klima.Timer1";
constexpr const char* Timer2 = "E_Klima.Timer2";
constexpr int hinweis_nach_millisekunden = 1000;
constexpr int hinweis_fuer_millisekunden = 4000;
constexpr double hinweis_unter_dem_zeiger = 20;

std::filesystem::path kartenbild(const Projekt& p, const std::string& name) {
    return p.AppPfad / "Grafiken" / (name + ".bmp");
}

/// The German map with a region brought out, 0 for none.
std::filesystem::path regionenbild(const Projekt& p, int region) {
    return kartenbild(p, "klima" + std::to_string(region));
}

/// What the map of a scope is called where it is taken out; `option` is the caption of the scope.
void karte_benennen(Bildfeld& karte, const Kartengroesse& groesse, const Projekt& p,
                    std::string_view option) {
    const Wort vorn{"Klimakarte ", "Climate map "};
    karte.titel = std::string(vorn.in(p.Sprache)) + beschriftung("E_Klima", option, p.Sprache);
    karte.einzeln = {.breite = static_cast<double>(groesse.breite),
                     .hoehe = static_cast<double>(groesse.hoehe)};
}

std::vector<std::string> regionstexte() {
    std::vector<std::string> texte;
    for (int i = 1; i <= klimaregionen; ++i)
        texte.emplace_back(klimaregion(i).text);
    return texte;
}

const Zweisprachig keine_station{
    "Es kann keine Klimadatei gelesen werden.\rBis Sie auf der Ebene Klima eine lesbare wählen, wird nichts "
    "berechnet.",
    "No climate file can be read.\rNothing is calculated until you choose one that can on the plane "
    "Climate."};

/// Why the lists do not have the record's station.
Dateifehler ungelistet(const Projekt& p) {
    const std::filesystem::path datei = Klimaordner(p).datei(p.Klimadatei);
    try {
        static_cast<void>(stationskopf_lesen(datei));
    } catch (const Dateifehler& fehler) {
        return fehler;
    }
    return {pfadtext(datei),
            {"die Station steht erst nach einem neuen Start in den Listen",
             "the station is in the lists after a new start only"}};
}

Zweisprachig plz_ohne_eintrag(const std::string& plz) {
    return {"Die Tabelle \"plz.txt\" enthält keine Klimaregion für die Postleitzahl " + plz + ".",
            "The table \"plz.txt\" has no climatic region for the post code " + plz + "."};
}

}  // namespace

E_Klima::E_Klima(Sitzung& sitzung, std::function<void()> wetter_laden)
    : stationen(stationslisten_lesen(Klimaordner(sitzung.p).alle())),
      HScroll1("HScroll1", 0, (weltgroesse.breite - rahmenbreite) * twips, kleiner_schritt, grosser_schritt),
      zoom(sitzung, stationen.Welt, Klimaregionwahl2),
      s_(sitzung),
      wetter_laden_(std::move(wetter_laden)),
      europakarte_{.plattform = sitzung.plattform,
                   .stationen = stationen.Europa,
                   .massstab = 1,
                   .toleranz = europatoleranz,
                   .karte = Picture2,
                   .liste = Klimaregionwahl2,
                   .MausRegion = MausRegion,
                   .farbe = kartenfarbe},
      weltkarte_{.plattform = sitzung.plattform,
                 .stationen = stationen.Welt,
                 .massstab = 1,
                 .toleranz = welttoleranz,
                 .karte = Picture3,
                 .liste = Klimaregionwahl2,
                 .MausRegion = MausRegion,
                 .farbe = kartenfarbe,
                 .in_sicht = [this](const Station& station) { station_in_sicht(station); }} {
    ebene.zeige(false);
    Label2.zeige(false);
    beschriften<Anzeige>(ebene.name, s_.p.Sprache,
                         {&Frame_Karte, &Frame_Region, &Frame_plz, &Frame_Station, &Frame_Klimadaten,
                          &anz_MittelJahrText, &anz_MinMonatText, &anz_MaxMonatText});
    beschriften<Knopf>(ebene.name, s_.p.Sprache, {&PLZsuchen});
    Klimaregionwahl.fuelle(regionstexte());
    Picture1.lade(regionenbild(s_.p, 0));
    Picture2.lade(kartenbild(s_.p, "europa"));
    Picture3.lade(kartenbild(s_.p, "welt"));
    karte_benennen(Picture1, deutschlandgroesse, s_.p, "Option1");
    karte_benennen(Picture2, europagroesse, s_.p, "Option2");
    karte_benennen(Picture3, weltgroesse, s_.p, "Option3");
    weltkarte_legen();
    bereich_zeigen(Klimabereich::deutschland);
    verbinden();
}

Wertetafel E_Klima::klimawerte() const {
    const Projekt& p = s_.p;
    const Jahreswerte jahr = jahreswerte(p);
    const auto zeile = [&p](const Anzeige& wort, std::string_view einheit, double wert) -> Wertezeile {
        return {
            .namen = {wort.text()}, .werte = {wert}, .einheit = beschriftung("E_Klima", einheit, p.Sprache)};
    };
    return groessentafel(
        p, Frame_Klimadaten.text() + " " + p.Stationsname,
        {zeile(anz_MittelJahrText, "Einheit_MittelJahrTemp", jahr.mittel),
         zeile(anz_MinMonatText, "Einheit_MinMonatTemp", p.Monat(jahr.kaeltester_monat).Tmittel),
         zeile(anz_MaxMonatText, "Einheit_MaxMonatTemp", p.Monat(jahr.waermster_monat).Tmittel)});
}

void E_Klima::verbinden() {
    Option.geklickt = [this](int option) { Option_Click(option); };
    Klimaregionwahl.gewaehlt = [this] { region_gewaehlt(); };
    Picture1.maus_bewegt = [this](double x, double y) { karte_bewegt(x, y); };
    Picture1.maus_geklickt = [this](double x, double y) { karte_geklickt(x, y); };
    PLZsuchen.gedrueckt = [this] { plz_suchen(); };
    plz.bestaetigt = [this] { PLZsuchen.druecke(); };
    Klimaregionwahl2.gewaehlt = [this] { station_gewaehlt(); };
    europakarte_.verbinden();
    weltkarte_.verbinden();
    HScroll1.geaendert = [this] { weltkarte_legen(); };
    Image1.gedrueckt = [this] { zoom.oeffnen(); };
}

void E_Klima::klima_anzeigen() {
    const int option = s_.p.Klimaauswahl;
    if (option < nummer(Klimabereich::deutschland) || option > nummer(Klimabereich::welt)) return;
    if (Option.gesetzt(option)) {
        Option_Click(option);
    } else {
        Option.setze(option);
    }
}

void E_Klima::Option_Click(int option) {
    s_.p.Klimaauswahl = i16(option, "Klimaauswahl");
    const auto bereich = static_cast<Klimabereich>(option);
    bereich_zeigen(bereich);
    const bool ersetzt = !gelistet() && !klima_fehlt_ && ersatz_erlaubt && ersatz_laden(ungelistet(s_.p));
    if (bereich == Klimabereich::deutschland) {
        region_zeigen();
    } else {
        Klimaregionwahl2.fuelle(stationsnamen(stationen_des_bereichs()));
        station_zeigen(ersetzt || klima_fehlt_);
    }
}

void E_Klima::bereich_zeigen(Klimabereich bereich) {
    const bool regionen = bereich == Klimabereich::deutschland;
    for (Feld* feld : std::initializer_list<Feld*>{&Frame_Region, &Klimaregionwahl, &Picture1, &Frame_plz,
                                                   &plz, &PLZsuchen})
        feld->zeige(regionen);
    for (Feld* feld : std::initializer_list<Feld*>{&Frame_Station, &Klimaregionwahl2, &MausRegion})
        feld->zeige(!regionen);
    Picture2.zeige(bereich == Klimabereich::europa);
    for (Feld* feld : std::initializer_list<Feld*>{&picture3f, &Picture3, &HScroll1, &Image1})
        feld->zeige(bereich == Klimabereich::welt);
    MausRegion.schreibe({});
    Label2.zeige(false);
    s_.plattform.zeitgeber_stoppen(Timer1);
}

const std::vector<Station>& E_Klima::stationen_des_bereichs() const {
    return im_bereich(s_.p, Klimabereich::europa) ? stationen.Europa : stationen.Welt;
}

/// True if the lists of the scope know the record's station, or those of the world do.
bool E_Klima::gelistet() const {
    const bool region = im_bereich(s_.p, Klimabereich::deutschland) && region_der_station(s_.p) > 0;
    return region || stationsindex(stationen.Welt, s_.p.Klimadatei) >= 0;
}

/// The region of the record's station is only marked: its climate is in force already.
void E_Klima::region_zeigen() {
    const int region = region_der_station(s_.p);
    Picture1.lade(regionenbild(s_.p, region));
    auswahl_nachziehen();
}

/// Elsewhere the station is chosen anew, unless that has just been tried.
void E_Klima::station_zeigen(bool versucht) {
    const std::vector<Station>& liste = stationen_des_bereichs();
    const int index = stationsindex(liste, s_.p.Klimadatei);
    if (index >= 0 && !versucht) {
        Klimaregionwahl2.setze(index);
        return;
    }
    auswahl_nachziehen();
    if (index >= 0 && im_bereich(s_.p, Klimabereich::welt))
        station_in_sicht(liste[static_cast<std::size_t>(index)]);
    Picture2.neu_zeichnen();
    Picture3.neu_zeichnen();
}

/// The stations to try in place of one that cannot be used, in their order.
std::vector<std::string> E_Klima::ersatzstationen() const {
    std::vector<std::string> dateien;
    if (im_bereich(s_.p, Klimabereich::deutschland)) {
        dateien.push_back(s_.p.Regionsdatei(ersatzregion));
        for (int region = 1; region <= klimaregionen; ++region)
            dateien.push_back(s_.p.Regionsdatei(region));
    } else if (const std::vector<Station>& liste = stationen_des_bereichs(); !liste.empty()) {
        const double los = ganzzahl(s_.plattform.zufall() * static_cast<double>(liste.size()));
        for (std::size_t i = 0; i < liste.size(); ++i)
            dateien.push_back(liste[(static_cast<std::size_t>(los) + i) % liste.size()].datei);
    }
    for (const Station& station : stationen.Welt)
        dateien.push_back(station.datei);
    return dateien;
}

bool E_Klima::ersatz_laden(const Dateifehler& grund) {
    const std::string vorher = s_.p.Klimadatei;
    for (const std::string& datei : ersatzstationen()) {
        s_.p.Klimadatei = datei;
        try {
            wetter_laden_();
        } catch (const Dateifehler&) {
            continue;
        }
        s_.p.Geaendert = 1;
        const Zweisprachig geladen{"Geladen wurde: ", "Loaded: "};
        fehlt_melden(s_.p.texte.txt_Klima_fehlt, grund, "\n" + geladen.in(s_.p.Sprache) + stationsname());
        return true;
    }
    s_.p.Klimadatei = vorher;
    return false;
}

void E_Klima::station_ersetzen(const Dateifehler& fehler) {
    if (!ersatz_erlaubt) throw Dateifehler(fehler);
    if (ersatz_laden(fehler)) return;
    klima_fehlt_ = true;
    fehlt_melden(keine_station.in(s_.p.Sprache), fehler, {});
}

void E_Klima::fehlt_melden(const std::string& text, const Dateifehler& grund, const std::string& folge) {
    s_.plattform.melde({.text = text,
                        .titel = s_.p.texte.txt_Klima_Titel,
                        .symbol = Symbol::information,
                        .hinweis = grund.text(s_.p.Sprache) + folge});
}

/// Brings the selection back to the record's station, without a handler.
void E_Klima::auswahl_nachziehen() {
    const bool regionen = im_bereich(s_.p, Klimabereich::deutschland);
    Auswahlliste& liste = regionen ? Klimaregionwahl : Klimaregionwahl2;
    const int index =
        regionen ? region_der_station(s_.p) - 1 : stationsindex(stationen_des_bereichs(), s_.p.Klimadatei);
    if (index >= 0) {
        liste.markiere(index);
    } else {
        liste.schreibe(stationsname());
    }
}

/// Name of the record's station, empty if it is not listed.
std::string E_Klima::stationsname() const {
    const int index = stationsindex(stationen.Welt, s_.p.Klimadatei);
    return index < 0 ? std::string() : stationen.Welt[static_cast<std::size_t>(index)].name;
}

void E_Klima::region_gewaehlt() {
    uebernehmen(s_.p.Regionsdatei(Klimaregionwahl.index() + 1));
}

void E_Klima::station_gewaehlt() {
    const Station& station = stationen_des_bereichs().at(static_cast<std::size_t>(Klimaregionwahl2.index()));
    if (im_bereich(s_.p, Klimabereich::welt)) station_in_sicht(station);
    uebernehmen(station.datei);
    Picture2.neu_zeichnen();
    Picture3.neu_zeichnen();
}

/// The scroll field's value is the map's left edge with the sign turned.
void E_Klima::weltkarte_legen() {
    Picture3.lege(
        {-HScroll1.position() / static_cast<double>(twips), 0, weltgroesse.breite, weltgroesse.hoehe});
}

void E_Klima::station_in_sicht(const Station& station) {
    const double x = station.ort.x * twips;
    if (HScroll1.position() > x) HScroll1.setze(0);
    if (HScroll1.position() + rahmenbreite * twips < x) HScroll1.setze(HScroll1.maximum());
}

/// Makes a station the current climate. If its file has vanished meanwhile, the user is told and everything
/// stays as it was.
void E_Klima::uebernehmen(const std::string& datei) {
    Projekt& p = s_.p;
    const std::string vorher = std::exchange(p.Klimadatei, datei);
    const std::int16_t geaendert_vorher = std::exchange(p.Geaendert, std::int16_t{1});
    try {
        wetter_laden_();
    } catch (const Dateifehler& fehler) {
        p.Klimadatei = vorher;
        p.Geaendert = geaendert_vorher;
        auswahl_nachziehen();
        melde(fehler.text(p.Sprache));
    }
}

bool E_Klima::in_region(double x, double y, int region) const {
    if (!kartenfarbe) return false;
    const Kartenpunkt bezug = bezugspunkte[static_cast<std::size_t>(region - 1)];
    const auto farbe = kartenfarbe(Picture1, x, y);
    return farbe && farbe == kartenfarbe(Picture1, bezug.x, bezug.y);
}

Kartenweg E_Klima::weg_der_regionen() {
    return Kartenweg(
        {.orte = [] { return std::vector<Kartenpunkt>(bezugspunkte.begin(), bezugspunkte.end()); },
         .gewaehlt = [this] { return Klimaregionwahl.index(); },
         .name = [](int stelle) { return std::string(klimaregion(stelle + 1).text); },
         .zeigen = [this](int stelle) { region_andeuten(stelle); },
         .waehlen = [this](int stelle) { Klimaregionwahl.setze(stelle); }});
}

void E_Klima::region_andeuten(int stelle) {
    hinweis_legen(stelle < 0 ? Kartenpunkt{} : bezugspunkte[static_cast<std::size_t>(stelle)]);
    if (stelle < 0) return;
    region_nennen(stelle + 1);
    Label2.zeige(true);
}

/// Puts the hint, hidden still, below a place of the map.
void E_Klima::hinweis_legen(Kartenpunkt ort) {
    Label2.setze({ort.x, ort.y + hinweis_unter_dem_zeiger});
    Label2.zeige(false);
    s_.plattform.zeitgeber_stoppen(Timer1);
}

void E_Klima::region_nennen(int region) {
    const Klimaregion& texte = klimaregion(region);
    Label2.schreibe(std::string(texte.hinweis_1) + "\r" + std::string(texte.hinweis_2));
}

void E_Klima::karte_bewegt(double x, double y) {
    hinweis_legen({x, y});
    for (int region = 1; region <= klimaregionen; ++region) {
        if (!in_region(x, y, region)) continue;
        region_nennen(region);
        s_.plattform.zeitgeber_starten(Timer1, hinweis_nach_millisekunden, [this] { hinweis_ein(); });
        return;
    }
}

void E_Klima::hinweis_ein() {
    Label2.zeige(true);
    s_.plattform.zeitgeber_starten(Timer2, hinweis_fuer_millisekunden, [this] { Label2.zeige(false); });
}

void E_Klima::karte_geklickt(double x, double y) {
    plz.schreibe({});
    int gefunden = 0;
    for (int region = 1; region <= klimaregionen; ++region) {
        if (in_region(x, y, region)) gefunden = region;
    }
    if (gefunden > 0) Klimaregionwahl.setze(gefunden - 1);
}

void E_Klima::plz_suchen() {
    const std::string& sprache = s_.p.Sprache;
    if (zeichenzahl(plz.text()) != stellen_der_plz) {
        melde(Zweisprachig{"Bitte Postleitzahl 5-stellig eingeben!", "Please insert 5 figures!"}.in(sprache));
        return;
    }
    try {
        const auto region = region_der_postleitzahl(Klimaordner(s_.p).datei("plz.txt"), plz.text());
        if (!region) {
            melde(plz_ohne_eintrag(plz.text()).in(sprache));
        } else if (*region == 0) {
            melde(
                Zweisprachig{"  Keine gültige Postleitzahl!  ", "   Not a valid post code!   "}.in(sprache));
            plz.schreibe({});
        } else {
            Klimaregionwahl.setze(*region - 1);
        }
    } catch (const Dateifehler& fehler) {
        melde(fehler.text(sprache));
    }
}

void E_Klima::melde(const std::string& text) {
    s_.plattform.melde({.text = text, .titel = "Velmaris", .symbol = Symbol::ausrufezeichen});
}

void E_Klima::klima_zeigen(const std::optional<Zweisprachig>& warnung) {
    const Projekt& p = s_.p;
    klima_fehlt_ = false;
    if (const int region = region_der_station(p); region > 0) Picture1.lade(regionenbild(p, region));
    const Jahreswerte jahr = jahreswerte(p);
    anz_MittelJahrTemp.schreibe(muster(jahr.mittel, 1));
    anz_MinMonatTemp.schreibe(muster(p.Monat(jahr.kaeltester_monat).Tmittel, 1));
    anz_MaxMonatTemp.schreibe(muster(p.Monat(jahr.waermster_monat).Tmittel, 1));
    const std::string zuletzt = std::exchange(gewarnt_vor_, warnung ? p.Klimadatei : std::string());
    if (warnung && zuletzt != p.Klimadatei) {
        s_.plattform.melde(
            {.text = warnung->in(p.Sprache), .titel = "Velmaris", .symbol = Symbol::information});
    }
}

}  // namespace velmaris
