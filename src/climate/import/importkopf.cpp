#include "climate/import/importkopf.h"

#include "climate/import/importzahlen.h"
#include "toolkit/text.h"

#include <array>
#include <utility>

namespace velmaris {
namespace {

constexpr int kopfzeilen_meteonorm = 4;
constexpr int zeile_der_spaltennamen = 4;
constexpr int spalten_in_sicht = 6;
constexpr int kopfzeilen_epw = 8;
constexpr int hoechste_kopfzeilen = 100;

std::string ohne_rand(std::string_view bytes) {
    const std::string text = quelltext(bytes);
    const std::size_t anfang = text.find_first_not_of(" \t");
    if (anfang == std::string::npos) return {};
    return text.substr(anfang, text.find_last_not_of(" \t") - anfang + 1);
}

/// A number as digits; `negativ` tells of the sign that was taken off.
std::string betrag(std::string zahl, bool& negativ) {
    negativ = zahl.starts_with('-');
    if (negativ) zahl.erase(0, 1);
    return zahl;
}

/// Takes the text up to the next comma off the front.
std::string_view posten(std::string_view& rest) {
    const std::size_t komma = rest.find(',');
    const std::string_view vorn = rest.substr(0, komma);
    rest.remove_prefix(komma == std::string_view::npos ? rest.size() : komma + 1);
    return vorn;
}

std::string ortsname(std::string_view zeile) {
    if (zeile.starts_with('"')) {
        zeile.remove_prefix(1);
        if (!zeile.empty()) zeile.remove_suffix(1);
    }
    return quelltext(zeile);
}

/// What the column names of a Meteonorm file contain, in the order in which the columns are assigned.
constexpr std::array<std::pair<std::string_view, std::int16_t>, 4> namensteile{
    {{"Ta", belegung::temperatur},
     {"G_Gh", belegung::gesamtstrahlung},
     {"G_Bh", belegung::direktstrahlung},
     {"G_Dh", belegung::diffusstrahlung}}};

/// The last column whose name contains a text, 0 for none.
int letzte_spalte(std::string_view namen, std::string_view teil) {
    int spalte = 0;
    for (int n = 1; n <= importspalten; ++n) {
        const auto name = StelleTab(namen, n);
        if (!name) break;
        if (name->find(teil) != std::string_view::npos) spalte = n;
    }
    return spalte;
}

Spaltenbelegungen belegung_nach_namen(std::string_view namen) {
    Spaltenbelegungen spalten;
    for (const auto& [teil, art] : namensteile) {
        const int n = letzte_spalte(namen, teil);
        if (n >= 1 && n <= spalten_in_sicht) spalten(n) = art;
    }
    return spalten;
}

/// The n-th item of a line of an EnergyPlus file, empty if it has none.
std::string epw_angabe(std::string_view zeile, int n) {
    std::string text = ohne_rand(Spaltenteiler(Trennung::komma, {}).stelle(zeile, n).value_or(""));
    for (std::size_t i = 0; (i = text.find("\"\"", i)) != std::string::npos; ++i)
        text.erase(i, 1);
    return text;
}

/// The first line that may belong to a head and is of a kind, nothing if there is none.
std::optional<int> erste_zeile(const Importquelle& quelle, bool (*ist_es)(std::string_view)) {
    for (int n = 1; n <= hoechste_kopfzeilen; ++n) {
        if (ist_es(quelle.zeile(n))) return n;
    }
    return std::nullopt;
}

bool nennt_die_datenperioden(std::string_view zeile) {
    return epw_angabe(zeile, 1) == "DATA PERIODS";
}

/// True for a line that begins with year, month, day and hour.
bool ist_epw_stunde(std::string_view zeile) {
    constexpr std::array<std::pair<double, double>, 4> grenzen{{{0, 9999}, {1, 12}, {1, 31}, {0, 24}}};
    for (std::size_t i = 0; i < grenzen.size(); ++i) {
        const auto zahl = StringToReal(epw_angabe(zeile, static_cast<int>(i) + 1), false);
        if (!zahl || *zahl < grenzen[i].first || *zahl > grenzen[i].second) return false;
    }
    return true;
}

/// The head ends with the line of the data periods, or before the first hour where there is none.
int kopfzeilen_der_epw(const Importquelle& quelle) {
    if (const auto perioden = erste_zeile(quelle, nennt_die_datenperioden)) return *perioden;
    if (const auto stunde = erste_zeile(quelle, ist_epw_stunde)) return *stunde - 1;
    return kopfzeilen_epw;
}

/// How many of the first hours of an EnergyPlus file, from a line on, are one and the same, at least 1.
int zeilen_der_ersten_stunde(const Importquelle& quelle, int erste) {
    const auto dieselbe = [&](int zeile) {
        if (!ist_epw_stunde(quelle.zeile(zeile))) return false;
        for (const int n : {2, 3, 4}) {
            if (epw_angabe(quelle.zeile(zeile), n) != epw_angabe(quelle.zeile(erste), n)) return false;
        }
        return true;
    };
    int zeile = erste + 1;
    while (dieselbe(zeile))
        ++zeile;
    return zeile - erste;
}

void namenloses_leeren(Ortsangaben& ort) {
    for (std::string* text : {&ort.Standortname, &ort.Land}) {
        if (!ist_benannt(*text)) text->clear();
    }
}

}  // namespace

Quellkopf Meteonorm_Lesen(const Importquelle& quelle) {
    Quellkopf kopf{.form = Quellform::meteonorm,
                   .trennung = Trennung::tabulator,
                   .kopfzeilen = kopfzeilen_meteonorm,
                   .dezimalkomma = false,
                   .ort = {},
                   .spalten = belegung_nach_namen(quelle.zeile(zeile_der_spaltennamen))};
    kopf.ort.Standortname = ortsname(quelle.zeile(1));
    std::string_view rest = quelle.zeile(2);
    kopf.ort.Breitengrad = betrag(ohne_rand(posten(rest)), kopf.ort.sued);
    kopf.ort.Laengengrad = betrag(ohne_rand(posten(rest)), kopf.ort.west);
    static_cast<void>(posten(rest));
    bool oestlich = false;
    kopf.ort.Zeitzone = betrag(ohne_rand(posten(rest)), oestlich);
    kopf.ort.gmt_minus = !oestlich;
    namenloses_leeren(kopf.ort);
    return kopf;
}

Quellkopf Epw_Lesen(const Importquelle& quelle) {
    Quellkopf kopf{.form = Quellform::epw,
                   .trennung = Trennung::komma,
                   .kopfzeilen = kopfzeilen_der_epw(quelle),
                   .dezimalkomma = false,
                   .ort = {},
                   .spalten = {}};
    const auto angabe = [&](int n) { return epw_angabe(quelle.zeile(1), n); };
    kopf.ort.Standortname = angabe(2);
    kopf.ort.Land = angabe(4);
    kopf.ort.Breitengrad = betrag(angabe(7), kopf.ort.sued);
    kopf.ort.Laengengrad = betrag(angabe(8), kopf.ort.west);
    kopf.ort.Zeitzone = betrag(angabe(9), kopf.ort.gmt_minus);
    namenloses_leeren(kopf.ort);
    kopf.spalten(7) = belegung::temperatur;
    kopf.spalten(14) = belegung::gesamtstrahlung;
    kopf.spalten(15) = belegung::direktstrahlung;
    kopf.spalten(16) = belegung::diffusstrahlung;
    return kopf;
}

std::string epw_werte_je_stunde(const Importquelle& quelle) {
    constexpr int angabe = 3;
    if (const auto zeile = erste_zeile(quelle, nennt_die_datenperioden)) {
        const std::string anzahl = epw_angabe(quelle.zeile(*zeile), angabe);
        if (!anzahl.empty() && StringToReal(anzahl, false) != 1) return anzahl;
    }
    return std::to_string(zeilen_der_ersten_stunde(quelle, kopfzeilen_der_epw(quelle) + 1));
}

bool ist_benannt(std::string_view text) {
    const std::string klein = kleinschreiben(ohne_rand(text));
    return !klein.empty() && klein != "-" && klein != "unknown";
}

std::optional<Quellkopf> kopf_erkennen(const Importquelle& quelle) {
    switch (quellform(quelle)) {
        case Quellform::meteonorm:
            return Meteonorm_Lesen(quelle);
        case Quellform::epw:
            return Epw_Lesen(quelle);
        case Quellform::frei:
            break;
    }
    return std::nullopt;
}

Zweisprachig erkannt_als(Quellform form) {
    switch (form) {
        case Quellform::meteonorm:
            return {"Die Datei wurde als Meteonorm-Datei erkannt.",
                    "The file was recognised as a Meteonorm file."};
        case Quellform::epw:
            return {"Die Datei wurde als EnergyPlus-Wetterdatei (.epw) erkannt.",
                    "The file was recognised as an EnergyPlus weather file (.epw)."};
        case Quellform::frei:
            break;
    }
    return {};
}

}  // namespace velmaris
