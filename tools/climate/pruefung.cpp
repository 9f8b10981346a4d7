#include "tools/climate/pruefung.h"

#include "toolkit/fehler.h"
#include "toolkit/text.h"
#include "toolkit/textdatei.h"
#include "toolkit/zahlen.h"
#include "tools/climate/stationsdatei.h"
#include "tools/climate/temperatur.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace velmaris::klimasatz {
namespace {

/// The three columns of a year as they stand in the file.
struct Spaltenjahr {
    Stundenwerte ta;
    Stundenwerte global;
    Stundenwerte diffus;
};

/// Walks the lines of a file and raises the fault at the line it stands at.
class Pruefleser {
  public:
    Pruefleser(std::string_view bytes, std::string datei) : leser_(bytes), datei_(std::move(datei)) {}

    [[noreturn]] void scheitern(const Zweisprachig& text, const std::string& feld = {}) const {
        throw Dateifehler(datei_, text, leser_.zeile(), feld);
    }

    std::string_view zeile() {
        const auto zeile = leser_.naechste();
        if (!zeile) scheitern({"die Datei endet zu früh", "the file ends too early"});
        return *zeile;
    }

    void genau(std::string_view erwartet) {
        if (zeile() != erwartet) scheitern({"nicht die Zeile des Kopfs", "not the line of the head"});
    }

    /// The number in a field of five columns, which must have its only form.
    [[nodiscard]] double feld(std::string_view zeile, std::size_t von, int stellen, const char* name) const {
        const std::string_view text = spalten(zeile, von, von + 4);
        const double wert = zahl_lesen(text);
        if (rechtsbuendig(muster(wert, stellen), 5) != text)
            scheitern({"nicht die Form der Spalte", "not the form of the column"}, name);
        return wert;
    }

    void ende() {
        if (leser_.naechste()) scheitern({"die Datei geht weiter", "the file goes on"});
    }

  private:
    Zeilenleser leser_;
    std::string datei_;
};

void datenzeile(Pruefleser& leser, Spaltenjahr& jahr, int n, int h) {
    constexpr std::size_t breite = 20;
    const std::string_view zeile = leser.zeile();
    if (zeile.size() != breite) leser.scheitern({"nicht 20 Spalten", "not 20 columns"});
    if (leser.feld(zeile, 1, 0, "dy") != n) leser.scheitern({"falscher Tag", "wrong day"}, "dy");
    jahr.ta(n)(h) = leser.feld(zeile, 6, 1, "Ta");
    jahr.global(n)(h) = leser.feld(zeile, 11, 0, "G_Gh");
    jahr.diffus(n)(h) = leser.feld(zeile, 16, 0, "G_Dh");
    if (jahr.diffus(n)(h) < 0 || jahr.diffus(n)(h) > jahr.global(n)(h))
        leser.scheitern({"nicht zwischen 0 und G_Gh", "not between 0 and G_Gh"}, "G_Dh");
}

Spaltenjahr einlesen(std::string_view bytes, const Stationsfakten& station) {
    Pruefleser leser(bytes, station.datei);
    for (const std::string& zeile : kopfzeilen(station))
        leser.genau(nach_windows1252(zeile));
    Spaltenjahr jahr;
    datenzeile(leser, jahr, tage_im_jahr, stunden);
    for (int n = 1; n <= tage_im_jahr; ++n) {
        for (int h = 1; h <= (n < tage_im_jahr ? stunden : stunden - 1); ++h)
            datenzeile(leser, jahr, n, h);
    }
    leser.ende();
    return jahr;
}

double groesste_abweichung(const Monatswerte& ist, const Monatswerte& soll) {
    double groesste = 0;
    for (int m = 1; m <= monate; ++m)
        groesste = std::max(groesste, std::fabs(ist(m) - soll(m)));
    return groesste;
}

double produktsumme(const Tageswerte& a, const Tageswerte& b) {
    return std::inner_product(a.begin(), a.end(), b.begin(), 0.0);
}

/// Share of the product in the squares; 0 where a series is 0.
double korrelation(const Tageswerte& a, const Tageswerte& b) {
    const double quadrate = produktsumme(a, a) * produktsumme(b, b);
    return quadrate > 0 ? produktsumme(a, b) / std::sqrt(quadrate) : 0;
}

/// The days of the three months around m, less their months' means; the others 0.
Tageswerte abweichungen_um(int m, const Tageswerte& werte) {
    const Monatswerte mittel = monatsmittel(werte);
    Tageswerte abweichungen;
    fuer_jeden_tag([&](int i, int n) {
        if ((i - m + monate + 1) % monate <= 2) abweichungen(n) = werte(n) - mittel(i);
    });
    return abweichungen;
}

/// The month in the middle of the three brightest.
int hellster_monat(const Monatswerte& ghi) {
    const Monatswerte zu_dritt = mit_nachbarn(ghi);
    return static_cast<int>(std::ranges::max_element(zu_dritt) - zu_dritt.begin()) + 1;
}

void temperatur_messen(Befund& befund, const Stundenwerte& ta, const Stationsfakten& station) {
    Tageswerte mittel = tagesmittel(ta);
    befund.temperaturfehler = groesste_abweichung(monatsmittel(mittel), station.ta);
    const Monatswerte spannen = monatsmittel(tagesspannen(ta));
    for (int m = 1; m <= monate; ++m)
        befund.spannenfehler = std::max(befund.spannenfehler, std::fabs(spannen(m) / station.dtr(m) - 1));
    const Tageswerte gang = jahresgang(station.ta);
    for (int n = 1; n <= tage_im_jahr; ++n)
        mittel(n) -= gang(n);
    Tageswerte morgen = mittel;
    std::rotate(morgen.begin(), morgen.begin() + 1, morgen.end());
    befund.gedaechtnis = korrelation(mittel, morgen);
    const Tageswerte streuung = jahresgang(tagesstreuung(station.ta));
    for (int n = 1; n <= tage_im_jahr; ++n)
        mittel(n) /= streuung(n);
    befund.streuung = std::sqrt(produktsumme(mittel, mittel) / tage_im_jahr);
}

void strahlung_messen(Befund& befund, const Spaltenjahr& jahr, const Stationsfakten& station) {
    const Sonnenstand sonne = sonnenstand(standort(station));
    Monatswerte kwh;
    fuer_jeden_tag([&](int m, int n) {
        for (int h = 1; h <= stunden; ++h) {
            const double global = jahr.global(n)(h);
            const double strahl = global - jahr.diffus(n)(h);
            kwh(m) += global / 1000;
            if ((global > 0 && sonne.stunde(n)(h) <= 0) || (strahl > 0 && sonne.gelesen(n)(h) <= 0)) {
                const std::string tag = std::to_string(n);
                throw Dateifehler(station.datei, {"Strahlung ohne Sonne am Tag " + tag,
                                                  "radiation without a sun on day " + tag});
            }
            if (global > 0)
                befund.klarheit =
                    std::max(befund.klarheit, global / extraterrestrisch(sonne.stunde(n)(h), n));
            if (strahl > 0) befund.direktstrahl = std::max(befund.direktstrahl, strahl / sonne.gelesen(n)(h));
        }
    });
    for (int m = 1; m <= monate; ++m) {
        const double anteil = std::fabs(kwh(m) - station.ghi(m)) / strahlungstoleranz(station.ghi(m));
        befund.strahlungsfehler = std::max(befund.strahlungsfehler, anteil);
    }
}

}  // namespace

Befund untersuchen(std::string_view bytes, const Stationsfakten& station) {
    const Spaltenjahr jahr = einlesen(bytes, station);
    Befund befund;
    temperatur_messen(befund, jahr.ta, station);
    strahlung_messen(befund, jahr, station);
    const int m = hellster_monat(station.ghi);
    befund.sonnenwaerme =
        korrelation(abweichungen_um(m, tagesmittel(jahr.ta)), abweichungen_um(m, tagesmittel(jahr.global)));
    return befund;
}

const std::array<Kenngroesse, 8>& kenngroessen() {
    static constexpr std::array<Kenngroesse, 8> tabelle{{
        {"Monatsmittel der Temperatur, Abweichung in K", "monthly mean temperature, deviation in K",
         &Befund::temperaturfehler, 0, 0.1},
        {"Tagesspanne im Monat, Abweichung als Anteil", "daily range in the month, deviation as a share",
         &Befund::spannenfehler, 0, 0.15},
        {"Monatssumme der Strahlung, Abweichung als Anteil der erlaubten",
         "monthly sum of radiation, deviation as a share of the allowed one", &Befund::strahlungsfehler, 0,
         1},
        {"klarste Stunde", "clearest hour", &Befund::klarheit, 0, klarheit_hoechstens},
        {"Autokorrelation der Tagesmittel", "autocorrelation of the daily means", &Befund::gedaechtnis, 0.5,
         0.9},
        {"Streuung der Tagesmittel gegen die erwartete", "scatter of the daily means against the expected",
         &Befund::streuung, 0.75, 1.25},
        {"Korrelation von Temperatur und Strahlung der Tage in den hellsten Monaten",
         "correlation of the days' temperature and radiation in the brightest months", &Befund::sonnenwaerme,
         0.05, 0.9},
        {"stärkste Direktstrahlung in W/m²", "strongest direct radiation in W/m²", &Befund::direktstrahl, 0,
         1370},
    }};
    return tabelle;
}

void befund_pruefen(const Befund& befund, const Stationsfakten& station) {
    for (const Kenngroesse& g : kenngroessen()) {
        const double wert = befund.*g.wert;
        if (wert >= g.von && wert <= g.bis) continue;
        const std::string zahlen =
            ": " + muster(wert, 3) + " (" + muster(g.von, 2) + " .. " + muster(g.bis, 2) + ")";
        throw Dateifehler(station.datei, {g.de + zahlen, g.en + zahlen});
    }
}

}  // namespace velmaris::klimasatz
