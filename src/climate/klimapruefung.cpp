#include "climate/klimapruefung.h"

#include "toolkit/text.h"
#include "toolkit/textdatei.h"
#include "toolkit/zahlen.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace velmaris {
namespace {

constexpr std::size_t feldbreite = 5;

/// A number of the head: its line, and how large it can be on either side of 0.
struct Kopfzeile {
    int nummer;
    Wort name;
    const char* einheit;
    double grenze;
};

constexpr std::array<Kopfzeile, 3> kopfzeilen{{{2, {"Breitengrad", "latitude"}, " °", erdgrenzen::breite},
                                               {3, {"Längengrad", "longitude"}, " °", erdgrenzen::laenge},
                                               {4, {"Zeitzone", "time zone"}, " h", erdgrenzen::zeitzone}}};

/// A column of the data: where it begins, and the bounds of its values.
struct Spalte {
    std::size_t von;
    Wort name;
    const char* einheit;
    double kleinster, groesster;
};

constexpr Wort temperatur{"Außenlufttemperatur", "outdoor air temperature"};
constexpr Wort gesamt{"Gesamtstrahlung", "total radiation"};
constexpr Wort diffus{"Diffusstrahlung", "diffuse radiation"};

constexpr std::array<Spalte, 3> datenspalten{
    {{6, temperatur, " °C", erdgrenzen::kaelteste, erdgrenzen::waermste},
     {11, gesamt, " W/m²", erdgrenzen::kleinste_strahlung, erdgrenzen::staerkste_strahlung},
     {16, diffus, " W/m²", erdgrenzen::kleinste_strahlung, erdgrenzen::staerkste_strahlung}}};

bool ohne_ziffer_am_anfang(std::string_view feld) {
    const std::size_t erste = feld.find_first_not_of(" +-.");
    return erste == std::string_view::npos || feld[erste] < '0' || feld[erste] > '9';
}

/// The text of a column as a message can show it.
std::string gezeigt(std::string_view feld) {
    const std::size_t anfang = std::min(feld.find_first_not_of(' '), feld.size());
    std::string text(feld.substr(anfang, feld.find_last_not_of(' ') + 1 - anfang));
    std::replace_if(
        text.begin(), text.end(), [](char z) { return static_cast<unsigned char>(z) < ' '; }, '?');
    return aus_windows1252(text);
}

Zweisprachig befund(const Wort& name, std::string_view feld, const char* einheit) {
    const std::string text = gezeigt(feld);
    if (text.empty()) return {std::string(name.de) + " fehlt", std::string(name.en) + " is missing"};
    if (ohne_ziffer_am_anfang(feld)) {
        return {std::string(name.de) + " \"" + text + "\" ist keine Zahl",
                std::string(name.en) + " \"" + text + "\" is not a number"};
    }
    return {std::string(name.de) + " " + text + einheit, std::string(name.en) + " " + text + einheit};
}

}  // namespace

void Klimapruefung::kopfzeile(int nummer, std::string_view zeile) {
    const Kopfzeile& groesse = kopfzeilen.at(static_cast<std::size_t>(nummer - kopfzeilen[0].nummer));
    const std::string_view feld = spalten(zeile, 15, 24);
    if (std::fabs(zahl_lesen(feld)) > groesse.grenze || ohne_ziffer_am_anfang(feld))
        merken(nummer, befund(groesse.name, feld, groesse.einheit));
}

void Klimapruefung::genauer(int nummer, std::string_view zeile) {
    for (const Spalte& spalte : datenspalten) {
        const std::string_view feld = spalten(zeile, spalte.von, spalte.von + feldbreite - 1);
        const double wert = zahl_lesen(feld);
        if (wert < spalte.kleinster || wert > spalte.groesster || ohne_ziffer_am_anfang(feld)) {
            merken(nummer, befund(spalte.name, feld, spalte.einheit));
            return;
        }
    }
}

void Klimapruefung::merken(int nummer, Zweisprachig befund) {
    ++zeilen_;
    if (erste_ != 0 && erste_ < nummer) return;
    erste_ = nummer;
    befund_ = std::move(befund);
}

std::optional<Zweisprachig> Klimapruefung::warnung(const std::string& datei) const {
    if (zeilen_ == 0) return std::nullopt;
    const std::string zahl = std::to_string(zeilen_);
    const std::string zeile = std::to_string(erste_);
    return Zweisprachig{
        datei + ", Zeile " + zeile + ": " + befund_.de + ". " +
            (zeilen_ == 1 ? "Eine Zeile hält" : zahl + " Zeilen halten") +
            " Werte, die es auf der Erde nicht gibt, oder keine Zahlen. Gerechnet wird mit dem, was dasteht.",
        datei + ", line " + zeile + ": " + befund_.en + ". " +
            (zeilen_ == 1 ? "One line holds" : zahl + " lines hold") +
            " values that no place on earth has, or no numbers. The calculation takes them as they stand."};
}

}  // namespace velmaris
