#include "tools/climate/stationsliste.h"

#include "toolkit/fehler.h"
#include "toolkit/text.h"
#include "toolkit/textdatei.h"
#include "toolkit/zahlen.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <map>
#include <optional>

namespace velmaris::klimasatz {
namespace {

using Felder = std::vector<std::string_view>;

struct Bereich {
    double von;
    double bis;
};

constexpr Bereich breitenbereich{-90, 90};
constexpr Bereich laengenbereich{-180, 180};
constexpr Bereich hoehenbereich{-430, 6000};
constexpr Bereich zonenbereich{-12, 14};
constexpr Bereich temperaturbereich{-60, 50};
constexpr Bereich spannenbereich{0.5, 30};
constexpr Bereich strahlungsbereich{0, 400};

Felder zerlegen(std::string_view zeile) {
    Felder felder;
    while (true) {
        const std::size_t komma = zeile.find(',');
        felder.push_back(zeile.substr(0, komma));
        if (komma == std::string_view::npos) return felder;
        zeile.remove_prefix(komma + 1);
    }
}

/// The head line: which column holds which figure.
class Kopfzeile {
  public:
    Kopfzeile(std::string_view zeile, const std::string& datei) : datei_(datei) {
        for (const std::string_view name : zerlegen(zeile)) {
            if (!spalten_.emplace(name, spalten_.size()).second)
                throw Dateifehler(datei, {"die Spalte steht doppelt da", "the column stands there twice"}, 1,
                                  std::string(name));
        }
    }

    [[nodiscard]] std::size_t zahl() const { return spalten_.size(); }

    [[nodiscard]] std::size_t stelle(const std::string& name) const {
        const auto spalte = spalten_.find(name);
        if (spalte == spalten_.end())
            throw Dateifehler(datei_, {"die Spalte fehlt", "the column is missing"}, 1, name);
        return spalte->second;
    }

    [[nodiscard]] const std::string& datei() const { return datei_; }

  private:
    std::string datei_;
    std::map<std::string, std::size_t, std::less<>> spalten_;
};

/// One row of the list, its fields by column name.
class Zeile {
  public:
    Zeile(const Kopfzeile& kopf, std::string_view text, int nummer)
        : kopf_(kopf), felder_(zerlegen(text)), nummer_(nummer) {
        if (felder_.size() == kopf.zahl()) return;
        const std::string ist = std::to_string(felder_.size());
        const std::string soll = std::to_string(kopf.zahl());
        throw Dateifehler(kopf.datei(), {ist + " Spalten statt " + soll, ist + " columns instead of " + soll},
                          nummer);
    }

    [[noreturn]] void scheitern(const std::string& feld, const Zweisprachig& text) const {
        throw Dateifehler(kopf_.datei(), text, nummer_, feld);
    }

    [[nodiscard]] const std::string& liste() const { return kopf_.datei(); }
    [[nodiscard]] int nummer() const { return nummer_; }

    [[nodiscard]] std::string text(const std::string& feld) const {
        std::string wert(felder_[kopf_.stelle(feld)]);
        if (wert.empty()) scheitern(feld, {"die Angabe fehlt", "the entry is missing"});
        if (wert.front() == ' ' || wert.back() == ' ')
            scheitern(feld, {"Leerzeichen am Rand", "blank at the edge"});
        if (wert.find('"') != std::string::npos) scheitern(feld, {"Anführungszeichen", "quotation mark"});
        if (aus_windows1252(nach_windows1252(wert)) != wert)
            scheitern(feld, {"Zeichen außerhalb von windows-1252", "character outside windows-1252"});
        return wert;
    }

    [[nodiscard]] double zahl(const std::string& feld, Bereich bereich) const {
        const std::string wert = text(feld);
        const std::optional<double> zahl = zahl_pruefen(wert);
        if (!zahl) scheitern(feld, {"\"" + wert + "\" ist keine Zahl", "\"" + wert + "\" is no number"});
        if (*zahl < bereich.von || *zahl > bereich.bis) {
            const std::string grenzen = muster(bereich.von, 1) + " .. " + muster(bereich.bis, 1);
            scheitern(feld, {wert + " liegt nicht in " + grenzen, wert + " is not within " + grenzen});
        }
        return *zahl;
    }

    [[nodiscard]] Monatswerte monatszahlen(const std::string& gruppe, Bereich bereich) const {
        Monatswerte werte;
        for (int m = 1; m <= monate; ++m)
            werte(m) = zahl(monatsspalte(gruppe, m), bereich);
        return werte;
    }

  private:
    const Kopfzeile& kopf_;
    Felder felder_;
    int nummer_;
};

/// The file name: lower case, in no folder, and not the name that the program passes over.
std::string dateiname(const Zeile& zeile) {
    const std::string feld = "datei";
    const std::string endung = ".met";
    std::string name = zeile.text(feld);
    const bool endet = name.size() > endung.size() && name.ends_with(endung);
    if (!endet || name.find_first_of("/\\:*?<>|") != std::string::npos || name == "klima.met")
        zeile.scheitern(feld, {"kein Name einer Stationsdatei", "no name of a station file"});
    if (kleinschreiben(name) != name)
        zeile.scheitern(feld, {"Großbuchstaben im Dateinamen", "capitals in the file name"});
    return name;
}

double zeitzone(const Zeile& zeile) {
    const std::string feld = "utc_h";
    const double zone = zeile.zahl(feld, zonenbereich);
    if (zone * 4 != std::floor(zone * 4))
        zeile.scheitern(feld, {"keine vollen Viertelstunden", "no whole quarters of an hour"});
    return zone;
}

Stationsfakten station(const Zeile& zeile) {
    Stationsfakten s;
    s.name = zeile.text("name");
    s.land = zeile.text("land");
    s.datei = dateiname(zeile);
    s.breite_n = zeile.zahl("breite_n", breitenbereich);
    s.laenge_o = zeile.zahl("laenge_o", laengenbereich);
    s.hoehe_m = zeile.zahl("hoehe_m", hoehenbereich);
    s.utc_h = zeitzone(zeile);
    s.ta = zeile.monatszahlen("ta", temperaturbereich);
    s.dtr = zeile.monatszahlen("dtr", spannenbereich);
    s.ghi = zeile.monatszahlen("ghi", strahlungsbereich);
    s.liste = zeile.liste();
    s.zeile = zeile.nummer();
    return s;
}

}  // namespace

Kopfzahlen kopfzahlen(const Stationsfakten& station) {
    int stellen = 0;
    while (stellen < 2 && zahl_lesen(muster(station.utc_h, stellen)) != station.utc_h)
        ++stellen;
    return {muster(station.breite_n, 3), muster(-station.laenge_o, 3), muster(-station.utc_h, stellen)};
}

Standort standort(const Stationsfakten& station) {
    const Kopfzahlen kopf = kopfzahlen(station);
    return {f32(zahl_lesen(kopf.breite) * grad_in_bogen),
            f32(-zahl_lesen(kopf.zeitzone) * 15 + zahl_lesen(kopf.laenge))};
}

std::string monatsspalte(const std::string& gruppe, int m) {
    return gruppe + (m < 10 ? "_0" : "_") + std::to_string(m);
}

std::vector<Stationsfakten> stationsliste(std::string_view text, const std::string& datei) {
    Zeilenleser leser(text);
    const Kopfzeile kopf(leser.naechste().value_or(""), datei);
    std::vector<Stationsfakten> stationen;
    std::map<std::string, int> zeile_der_datei;
    while (const auto zeilentext = leser.naechste()) {
        const Zeile zeile(kopf, *zeilentext, leser.zeile());
        stationen.push_back(station(zeile));
        const auto [erste, neu] = zeile_der_datei.emplace(stationen.back().datei, leser.zeile());
        if (!neu) {
            const std::string wo = std::to_string(erste->second);
            zeile.scheitern("datei", {erste->first + " steht schon in Zeile " + wo,
                                      erste->first + " stands in line " + wo + " already"});
        }
    }
    if (stationen.empty())
        throw Dateifehler(datei, {"die Liste ist leer", "the list is empty"}, leser.zeile());
    return stationen;
}

std::vector<Stationsfakten> stationsliste_lesen(const std::filesystem::path& datei) {
    return stationsliste(bytes_lesen(datei, hoechste_quellgroesse), pfadtext(datei));
}

}  // namespace velmaris::klimasatz
