#include "documents/report/temperaturverlauf.h"

#include "toolkit/text.h"
#include "toolkit/textdatei.h"
#include "toolkit/wort.h"
#include "toolkit/zahlen.h"

#include <array>
#include <string_view>

namespace velmaris {
namespace {

constexpr std::size_t spaltenbreite = 10;

constexpr std::string_view linie = "____________________________________________________________";

constexpr std::array<Wort, 3> kopf{{
    {"                          Velmaris", "                          Velmaris"},
    {linie, linie},
    {"", ""},
}};

constexpr std::array<Wort, 2> jahrestitel{{
    {"             Jahres-Temperaturverläufe", "             Yearly temperature courses"},
    {"", ""},
}};

constexpr std::array<Wort, 2> monatstitel{{
    {"                      Temperaturverläufe", "                      Temperature courses"},
    {"", ""},
}};

constexpr std::array<Wort, 11> legende{{
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
}};

/// The heads of the columns in the year file. The last one says "in kW" although it holds a temperature.
constexpr std::array<Wort, 4> jahresspalten{{
    {"       Tag     Monat    Stunde   T außen    T frei      T HK",
     "       day     Month      hour     T out    T free      T HC"},
    {"                                   in °C     in °C     in kW",
     "                                   in °C     in °C     in kW"},
    {linie, linie},
    {"", ""},
}};

/// The heads of the columns on the screen.
constexpr std::array<Wort, 4> monatsspalten{{
    {"       Tag     Monat    Stunde   T außen    T frei      T HK",
     "       day     month      hour     T out    T fret      T HC"},
    {"                                   in °C     in °C     in °C",
     "                                   in °C     in °C     in °C"},
    {linie, linie},
    {"", ""},
}};

constexpr Wort monatswort{"Monat:      ", "Month:      "};

constexpr std::string_view zeilenende = "\r\n";

/// The text under construction, line by line in the language of the record.
struct Verlaufstext {
    const Projekt& p;
    std::string text;

    [[nodiscard]] std::string_view in_sprache(const Wort& zeile) const { return zeile.in(p.Sprache); }

    void zeile(std::string_view inhalt) { text.append(inhalt).append(zeilenende); }

    template <std::size_t n>
    void kopfzeilen(const std::array<Wort, n>& zeilen) {
        for (const Wort& eine : zeilen)
            zeile(in_sprache(eine));
    }

    void stunde(int m, int d, int h) {
        const auto feld = [this](double wert, int stellen) {
            text += rechtsbuendig(muster(wert, stellen), spaltenbreite);
        };
        feld(d, 0);
        feld(m, 0);
        feld(h, 0);
        feld(p.Wetter(m, d, h).Ta, 1);
        feld(p.T_frei(m, d, h), 1);
        feld(p.T_regel(m, d, h), 1);
        zeile("");
    }

    void alle_stunden() {
        text.reserve(stunden_im_jahr * (6 * spaltenbreite + zeilenende.size()) + 1000);
        fuer_jede_stunde([this](int m, int d, int h, int) { stunde(m, d, h); });
    }
};

}  // namespace

std::string temperaturverlauf_schreiben(const Projekt& p, int monat) {
    Verlaufstext t{p, {}};
    t.zeile(monat == 0 ? "" : "      ");
    t.kopfzeilen(kopf);
    t.kopfzeilen(monatstitel);
    if (monat != 0) {
        t.zeile(std::string(t.in_sprache(monatswort)) + p.Monat(monat).Name);
        t.zeile("");
    }
    t.kopfzeilen(legende);
    t.kopfzeilen(monatsspalten);
    if (monat == 0) {
        t.alle_stunden();
    } else {
        fuer_jede_stunde_des_monats(monat, 1, [&t](int m, int d, int h, int) { t.stunde(m, d, h); });
    }
    return t.text;
}

std::string jahrestemperaturen(const Projekt& p) {
    Verlaufstext t{p, {}};
    t.kopfzeilen(kopf);
    t.kopfzeilen(jahrestitel);
    t.kopfzeilen(legende);
    t.kopfzeilen(jahresspalten);
    t.alle_stunden();
    return t.text;
}

void temperaturverlauf_exportieren(const Projekt& p, const std::filesystem::path& datei) {
    datei_ersetzen(datei, nach_windows1252(jahrestemperaturen(p)));
}

}  // namespace velmaris
