#include "climate/import/importzeilen.h"

#include "climate/import/importzahlen.h"
#include "project/tabellen.h"
#include "toolkit/zahlen.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <string>

namespace velmaris {
namespace {

constexpr int zeilen_je_meldung = 256;

/// Values from these on stand for missing ones in an EnergyPlus file (its data dictionary).
constexpr double epw_temperatur_fehlt = 99.9;
constexpr double epw_strahlung_fehlt = 9999;

/// What is below it cannot be the noise of a sensor at night, W/m2.
constexpr double kleinste_strahlung = -50;

/// From these on a value, rounded to its tenth, leaves the five columns of its field in the station file.
constexpr double temperatur_zu_gross = 99.95;
constexpr double strahlung_zu_gross = 9999.95;

/// The largest total radiation, rounded to a whole number, that its field can hold.
constexpr double hoechste_strahlung = 9999;

enum class Groesse { Ta, G_Gh, G_Dh };

/// Month, day and hour of a row.
struct Zeitstempel {
    int monat = 0;
    int tag = 0;
    int stunde = 0;

    [[nodiscard]] bool schalttag() const { return monat == 2 && tag == 29; }

    /// Place of the hour in the year, 0..8759; nothing if the calendar has no such hour.
    [[nodiscard]] std::optional<int> platz() const {
        if (monat < 1 || monat > monate || stunde < 1 || stunde > stunden || tag < 1) return std::nullopt;
        if (tag > tage_im_monat[static_cast<std::size_t>(monat)]) return std::nullopt;
        int tage = tag - 1;
        for (int m = 1; m < monat; ++m)
            tage += tage_im_monat[static_cast<std::size_t>(m)];
        return tage * velmaris::stunden + stunde - 1;
    }
};

/// A number as text, without the blank in the place of its sign.
std::string ohne_leerstelle(double zahl) {
    return zahltext(zahl).substr(zahl < 0 ? 0 : 1);
}

/// True for -99, -99.9, -999 and so on, which stand for missing values in many formats.
bool ist_negativer_fehlwert(double zahl) {
    if (zahl > -99) return false;
    const std::string ziffern = ohne_leerstelle(-zahl);
    return ziffern.find_first_not_of("9.") == std::string::npos;
}

/// Takes the rows of a source apart.
class Zeilenleserei {
  public:
    Zeilenleserei(const Importquelle& quelle, const Leseplan& plan)
        : quelle_(quelle), plan_(plan), teiler_(plan.trennung, quelle.zeile(plan.kopfzeilen + 1)) {}

    [[nodiscard]] Zeitstempel stempel(int zeile) const {
        return {ganzes_feld(zeile, 2), ganzes_feld(zeile, 3), ganzes_feld(zeile, 4)};
    }

    [[nodiscard]] Stundenwerte werte(int zeile) const {
        const Spaltenwahl& s = plan_.spalten;
        const int spalte = s.gesamt != 0 ? s.gesamt : s.direkt;
        Stundenwerte stunde;
        stunde.Ta = wert(zeile, s.temperatur, Groesse::Ta);
        stunde.G_Gh = wert(zeile, spalte, Groesse::G_Gh);
        stunde.G_Dh = wert(zeile, s.diffus, Groesse::G_Dh);
        if (s.gesamt == 0) stunde.G_Gh += stunde.G_Dh;
        if (runden(stunde.G_Gh) > hoechste_strahlung) zu_gross(zeile, spalte);
        return stunde;
    }

  private:
    [[nodiscard]] int ganzes_feld(int zeile, int spalte) const {
        const auto text = teiler_.stelle(quelle_.zeile(zeile), spalte).value_or("");
        const double zahl = StringToReal(text, plan_.dezimalkomma).value_or(0);
        return zahl >= 0 && zahl <= stunden_im_jahr ? static_cast<int>(zahl) : 0;
    }

    [[nodiscard]] double wert(int zeile, int spalte, Groesse groesse) const {
        const auto text = teiler_.stelle(quelle_.zeile(zeile), spalte);
        if (!text) fehlerhaft(zeile, spalte, {"der Wert fehlt", "the value is missing"});
        const auto zahl = StringToReal(*text, plan_.dezimalkomma);
        if (!zahl) {
            const std::string was = "\"" + quelltext(*text, 40) + "\"";
            fehlerhaft(zeile, spalte, {was + " ist keine Zahl", was + " is not a number"});
        }
        if (fehlwert(*zahl, groesse)) {
            const std::string was = ohne_leerstelle(*zahl);
            fehlerhaft(zeile, spalte,
                       {was + " steht für einen fehlenden Wert", was + " stands for a missing value"});
        }
        if (*zahl >= (groesse == Groesse::Ta ? temperatur_zu_gross : strahlung_zu_gross))
            zu_gross(zeile, spalte);
        if (groesse != Groesse::Ta && *zahl < kleinste_strahlung) {
            const std::string was = ohne_leerstelle(*zahl);
            fehlerhaft(zeile, spalte, {was + " liegt unter -50 W/m²", was + " is below -50 W/m²"});
        }
        if (*zahl <= -temperatur_zu_gross)
            fehlerhaft(zeile, spalte, {"der Wert ist zu klein", "the value is too small"});
        return *zahl;
    }

    [[nodiscard]] bool fehlwert(double zahl, Groesse groesse) const {
        if (ist_negativer_fehlwert(zahl)) return true;
        if (plan_.form != Quellform::epw) return false;
        return zahl >= (groesse == Groesse::Ta ? epw_temperatur_fehlt : epw_strahlung_fehlt);
    }

    [[noreturn]] static void zu_gross(int zeile, int spalte) {
        fehlerhaft(zeile, spalte, {"der Wert ist zu groß", "the value is too large"});
    }

    [[noreturn]] static void fehlerhaft(int zeile, int spalte, const Zweisprachig& grund) {
        const std::string nummer = std::to_string(zeile);
        const std::string ort = " " + std::to_string(spalte) + ": ";
        throw Importfehler({"Fehler in Zeile " + nummer + "\r\nKlimadatenimport wurde abgebrochen!",
                            "Error in line " + nummer + "\r\nImport has been aborted!"},
                           {"Spalte" + ort + grund.de, "Column" + ort + grund.en});
    }

    const Importquelle& quelle_;
    const Leseplan& plan_;
    Spaltenteiler teiler_;
};

/// Lines of the source that count, at most 8760, and the place of each in the year, 0..8759.
struct Zeilenfolge {
    std::vector<int> zeilen;
    std::vector<int> plaetze;
    bool ohne_schalttag = false;
};

/// True if the places name every hour of a year once.
bool ist_ganzes_jahr(const std::vector<std::optional<int>>& plaetze) {
    std::array<bool, stunden_im_jahr> belegt{};
    for (const auto& platz : plaetze) {
        if (!platz || belegt[static_cast<std::size_t>(*platz)]) return false;
        belegt[static_cast<std::size_t>(*platz)] = true;
    }
    return plaetze.size() == belegt.size();
}

/// Rows with a text from a line on.
int beschriebene_zeilen(const Importquelle& quelle, int ab) {
    int zahl = 0;
    for (int zeile = ab; zeile <= quelle.zeilenzahl(); ++zeile) {
        if (quelle.zeile(zeile).find_first_not_of(" \t,") != std::string_view::npos) ++zahl;
    }
    return zahl;
}

/// What is said where too few rows are left.
Importfehler zu_wenig(const Zeilenfolge& folge) {
    const std::string zahl = std::to_string(folge.zeilen.size());
    const Zweisprachig ohne =
        folge.ohne_schalttag ? Zweisprachig{", ohne die des 29. Februar.", ", without those of 29 February."}
                             : Zweisprachig{".", "."};
    return Importfehler({"Fehler! - Zu wenig Daten. Benötigt werden 8760 Stundenwerte!",
                         "Error! - Not enough data. 8760 hourly data is needed!"},
                        {"Gelesen wurden " + zahl + " Zeilen" + ohne.de, zahl + " rows were read" + ohne.en});
}

/// Row i of a source becomes row i of the station file; that is the hour before it in the year.
Zeilenfolge folge_der_zeilen(const Importquelle& quelle, int kopfzeilen) {
    Zeilenfolge folge;
    for (int i = 0; i < stunden_im_jahr && i < quelle.zeilenzahl() - kopfzeilen; ++i) {
        folge.zeilen.push_back(kopfzeilen + 1 + i);
        folge.plaetze.push_back((i + stunden_im_jahr - 1) % stunden_im_jahr);
    }
    return folge;
}

Zeilenfolge folge_nach_zeitstempeln(const Importquelle& quelle, int kopfzeilen,
                                    const Zeilenleserei& leserei) {
    Zeilenfolge folge;
    std::vector<std::optional<int>> plaetze;
    for (int zeile = kopfzeilen + 1; zeile <= quelle.zeilenzahl(); ++zeile) {
        if (folge.zeilen.size() == stunden_im_jahr) break;
        const Zeitstempel stempel = leserei.stempel(zeile);
        if (stempel.schalttag()) {
            folge.ohne_schalttag = true;
            continue;
        }
        folge.plaetze.push_back(static_cast<int>(folge.zeilen.size()));
        folge.zeilen.push_back(zeile);
        plaetze.push_back(stempel.platz());
    }
    if (!ist_ganzes_jahr(plaetze)) return folge;
    for (std::size_t i = 0; i < plaetze.size(); ++i)
        folge.plaetze[i] = *plaetze[i];
    return folge;
}

/// Row of the station file for a place in the year.
std::size_t dateizeile(int platz) {
    return static_cast<std::size_t>((platz + 1) % stunden_im_jahr);
}

/// Rows of parts of an hour would pass for hours.
void stundenwerte_verlangen(const Importquelle& quelle) {
    const std::string anzahl = epw_werte_je_stunde(quelle);
    if (StringToReal(anzahl, false) == 1) return;
    throw Importfehler({"Die Datei enthält " + anzahl + " Werte je Stunde. Benötigt wird einer je Stunde.",
                        "The file holds " + anzahl + " values per hour. One per hour is needed."});
}

int letzte(const Spaltenbelegungen& spalten, std::int16_t art) {
    int spalte = 0;
    for (int n = 1; n <= importspalten; ++n) {
        if (spalten(n) == art) spalte = n;
    }
    return spalte;
}

}  // namespace

Spaltenwahl spalten_waehlen(const Spaltenbelegungen& spalten, Quellform form) {
    const Spaltenwahl wahl{letzte(spalten, belegung::temperatur), letzte(spalten, belegung::gesamtstrahlung),
                           letzte(spalten, belegung::direktstrahlung),
                           letzte(spalten, belegung::diffusstrahlung)};
    if (wahl.gesamt == 0 && wahl.direkt == 0) {
        throw Importfehler({"Benötigt werden entweder Daten zur Gestamt- oder zur Direktstrahlung",
                            "Data for total or direct radiation are necessary"});
    }
    if (wahl.temperatur == 0)
        throw Importfehler({"Keine Temperaturdaten vorhanden!", "No temperature values found!"});
    if (wahl.diffus == 0)
        throw Importfehler({"Keine Daten zur Diffusstrahlung vorhanden!", "No data for diffuse rediation!"});
    if (wahl.gesamt == 0 && form == Quellform::epw) {
        throw Importfehler(
            {"Die Direktstrahlung dieser Datei gilt senkrecht zur Sonne. Benötigt wird die "
             "Gesamtstrahlung auf die Horizontale (Spalte 14).",
             "The direct radiation of this file is that facing the sun. The total radiation on "
             "the horizontal (column 14) is needed."});
    }
    return wahl;
}

Zweisprachig jahreshinweis(const Messjahr& jahr) {
    if (jahr.ohne_schalttag)
        return {"Der 29. Februar der Quelle wurde ausgelassen.", "The source's 29 February was left out."};
    if (jahr.weitere == 0) return {};
    const std::string zahl = std::to_string(stunden_im_jahr + jahr.weitere);
    Zweisprachig hinweis{"Von " + zahl + " Zeilen wurden die ersten 8760 gelesen.",
                         "Of " + zahl + " rows the first 8760 were read."};
    if (jahr.weitere == stunden) {
        hinweis.de += " Ein 29. Februar wurde nicht ausgelassen.";
        hinweis.en += " A 29 February was not left out.";
    }
    return hinweis;
}

std::optional<Messjahr> zeilen_lesen(const Importquelle& quelle, const Leseplan& plan,
                                     const Fortschrittsmelder& fortschritt) {
    if (plan.form == Quellform::epw) stundenwerte_verlangen(quelle);
    const Zeilenleserei leserei(quelle, plan);
    const Zeilenfolge folge = plan.form == Quellform::epw
                                  ? folge_nach_zeitstempeln(quelle, plan.kopfzeilen, leserei)
                                  : folge_der_zeilen(quelle, plan.kopfzeilen);
    Messjahr jahr;
    jahr.ohne_schalttag = folge.ohne_schalttag;
    jahr.stunden.resize(stunden_im_jahr);
    for (std::size_t i = 0; i < folge.zeilen.size(); ++i) {
        if (i % zeilen_je_meldung == 0 && fortschritt &&
            !fortschritt(static_cast<double>(i) / stunden_im_jahr))
            return std::nullopt;
        jahr.stunden[dateizeile(folge.plaetze[i])] = leserei.werte(folge.zeilen[i]);
    }
    if (folge.zeilen.size() < stunden_im_jahr) throw zu_wenig(folge);
    jahr.weitere = beschriebene_zeilen(quelle, folge.zeilen.back() + 1);
    return jahr;
}

}  // namespace velmaris
