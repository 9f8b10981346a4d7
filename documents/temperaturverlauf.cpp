#include "documents/temperaturverlauf.h"

#include "toolkit/text.h"
#include "toolkit/textdatei.h"
#include "toolkit/zahlen.h"

#include <array>
#include <string_view>

namespace velmaris {
namespace {

constexpr std::size_t spaltenbreite = 10;

constexpr std::string_view linie = "____________________________________________________________";

/// The head of the year file, line by line. Its last column is headed "in kW" although it holds a
/// temperature.
constexpr std::array<std::array<std::string_view, 2>, 19> jahreskopf{{
    {"                          Velmaris", "                          Velmaris"},
    {linie, linie},
    {"", ""},
    {"             Jahres-Temperaturverläufe", "             Yearly temperature courses"},
    {"", ""},
    {"Legende:", "Legend:"},
    {"", ""},
    {"     T außen:       Außenlufttemperatur", "     T out:         Outside air temperature"},
    {"     T frei:        Raumlufttemperatur", "     T free:        Room air temperature"},
    {"                    ohne Heizung und Kühlung", "                    without heating and cooling"},
    {"     T HK:          Raumlufttemperatur", "     T HC:          Room air temperature"},
    {"                    mit Heizung und Kühlung", "                    with heating and cooling"},
    {"", ""},
    {"", ""},
    {"Temperaturdaten:", "Temperaturdaten:"},
    {"", ""},
    {"       Tag     Monat    Stunde   T außen    T frei      T HK",
     "       day     Month      hour     T out    T free      T HC"},
    {"                                   in °C     in °C     in kW",
     "                                   in °C     in °C     in kW"},
    {linie, linie},
}};

constexpr std::string_view zeilenende = "\r\n";

void zeile_anhaengen(std::string& text, const Projekt& p, int m, int d, int h) {
    const auto feld = [&text](double wert, int stellen) {
        text += rechtsbuendig(muster(wert, stellen), spaltenbreite);
    };
    feld(d, 0);
    feld(m, 0);
    feld(h, 0);
    feld(p.Wetter(m, d, h).Ta, 1);
    feld(p.T_frei(m, d, h), 1);
    feld(p.T_regel(m, d, h), 1);
    text += zeilenende;
}

}  // namespace

std::string jahrestemperaturen(const Projekt& p) {
    std::string text;
    text.reserve(stunden_im_jahr * (6 * spaltenbreite + zeilenende.size()) + 1000);
    for (const auto& zeile : jahreskopf)
        text.append(zeile[p.Sprache == "e" ? 1 : 0]).append(zeilenende);
    text += zeilenende;
    fuer_jede_stunde([&](int m, int d, int h, int) { zeile_anhaengen(text, p, m, d, h); });
    return text;
}

void temperaturverlauf_exportieren(const Projekt& p, const std::filesystem::path& datei) {
    datei_ersetzen(datei, nach_windows1252(jahrestemperaturen(p)));
}

}  // namespace velmaris
