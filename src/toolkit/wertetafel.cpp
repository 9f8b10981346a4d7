#include "toolkit/wertetafel.h"

#include "toolkit/wort.h"
#include "toolkit/zahlen.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace velmaris {
namespace {

constexpr Wort einheitenkopf{"Einheit", "unit"};
constexpr Wort von{"von ", "from "};
constexpr Wort bis{" bis ", " to "};

/// More numbers than these are too many to listen to.
constexpr std::size_t hoechstens_vorgelesen = 24;

std::string tabellenzahl(double wert) {
    std::string text = kuerzeste(f32(wert));
    std::ranges::replace(text, '.', dezimalzeichen());
    return text;
}

/// About three digits.
std::string gesprochen(double wert) {
    const double betrag = std::fabs(wert);
    return muster(wert, wert == 0 || betrag >= 100 ? 0 : betrag >= 1 ? 1 : 2);
}

std::string verbunden(const std::vector<std::string>& teile, std::string_view dazwischen) {
    std::string text;
    for (std::size_t i = 0; i < teile.size(); ++i)
        text.append(i == 0 ? "" : dazwischen).append(teile[i]);
    return text;
}

/// The name of a row, with the heads where it has several ("Tag 3 Stunde 14").
std::string zeilenname(const Wertetafel& tafel, const Wertezeile& zeile) {
    if (zeile.namen.size() == 1) return zeile.namen.front();
    std::vector<std::string> teile;
    for (std::size_t i = 0; i < zeile.namen.size(); ++i)
        teile.push_back(tafel.zeilenkopf[i] + " " + zeile.namen[i]);
    return verbunden(teile, " ");
}

bool hat_zahl(const Wertezeile& zeile, std::size_t spalte) {
    return spalte < zeile.werte.size();
}

/// Each row with its number; a unit of the column stands once, behind the last one.
std::string alle_zeilen(const Wertetafel& tafel, std::size_t spalte) {
    std::vector<std::string> teile;
    for (const Wertezeile& zeile : tafel.zeilen) {
        const std::string name = zeilenname(tafel, zeile) + " ";
        if (hat_zahl(zeile, spalte)) {
            teile.push_back(mit_einheit(name + gesprochen(zeile.werte[spalte]), zeile.einheit));
        } else if (!zeile.text.empty()) {
            teile.push_back(name + zeile.text);
        }
    }
    return mit_einheit(verbunden(teile, ", "), tafel.spalten[spalte].einheit);
}

/// The smallest and the largest number of a column with their rows.
std::string spanne(const Wertetafel& tafel, std::size_t spalte) {
    const auto zahl = [spalte](const Wertezeile& zeile) { return zeile.werte[spalte]; };
    const auto kleinste = std::ranges::min_element(tafel.zeilen, {}, zahl);
    const auto groesste = std::ranges::max_element(tafel.zeilen, {}, zahl);
    const auto ende = [&](const Wertezeile& zeile) {
        return gesprochen(zahl(zeile)) + " (" + zeilenname(tafel, zeile) + ")";
    };
    return mit_einheit(std::string(von.in(tafel.sprache)) + ende(*kleinste) +
                           std::string(bis.in(tafel.sprache)) + ende(*groesste),
                       tafel.spalten[spalte].einheit);
}

std::string einzige_zeile(const Wertetafel& tafel) {
    const std::vector<double>& werte = tafel.zeilen.front().werte;
    std::vector<std::string> teile;
    for (std::size_t i = 0; i < werte.size(); ++i)
        teile.push_back(
            mit_einheit(tafel.spalten[i].name + " " + gesprochen(werte[i]), tafel.spalten[i].einheit));
    return verbunden(teile, ", ");
}

std::string spalten_nacheinander(const Wertetafel& tafel) {
    const bool kurz = tafel.zeilen.size() * tafel.spalten.size() <= hoechstens_vorgelesen;
    std::vector<std::string> teile;
    for (std::size_t i = 0; i < tafel.spalten.size(); ++i) {
        const std::string name = tafel.spalten.size() > 1 ? tafel.spalten[i].name + (kurz ? ": " : " ") : "";
        teile.push_back(name + (kurz ? alle_zeilen(tafel, i) : spanne(tafel, i)));
    }
    return verbunden(teile, "; ");
}

std::vector<std::string> kopfzellen(const Wertetafel& tafel, bool einheiten_der_zeilen) {
    std::vector<std::string> zellen = tafel.zeilenkopf;
    for (const Wertespalte& spalte : tafel.spalten)
        zellen.push_back(spalte.einheit.empty() ? spalte.name : spalte.name + " [" + spalte.einheit + "]");
    if (einheiten_der_zeilen) zellen.emplace_back(einheitenkopf.in(tafel.sprache));
    return zellen;
}

std::vector<std::string> zellen(const Wertetafel& tafel, const Wertezeile& zeile, bool einheiten_der_zeilen) {
    std::vector<std::string> zellen = zeile.namen;
    if (!zeile.text.empty()) zellen.push_back(zeile.text);
    for (const double wert : zeile.werte)
        zellen.push_back(tabellenzahl(wert));
    zellen.resize(tafel.zeilenkopf.size() + tafel.spalten.size());
    if (einheiten_der_zeilen) zellen.push_back(zeile.einheit);
    return zellen;
}

}  // namespace

std::string tabulatortext(const Wertetafel& tafel) {
    const bool einheiten =
        std::ranges::any_of(tafel.zeilen, [](const Wertezeile& zeile) { return !zeile.einheit.empty(); });
    std::string text = verbunden(kopfzellen(tafel, einheiten), "\t") + "\n";
    for (const Wertezeile& zeile : tafel.zeilen)
        text += verbunden(zellen(tafel, zeile, einheiten), "\t") + "\n";
    return text;
}

std::string wertesatz(const Wertetafel& tafel) {
    return tafel.titel + ": " +
           (tafel.zeilenkopf.empty() ? einzige_zeile(tafel) : spalten_nacheinander(tafel));
}

}  // namespace velmaris
