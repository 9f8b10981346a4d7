#include "climate/importkopf.h"

#include <array>
#include <utility>

namespace velmaris {
namespace {

constexpr int kopfzeilen_meteonorm = 4;
constexpr int zeile_der_spaltennamen = 4;
constexpr int spalten_in_sicht = 6;
constexpr int kopfzeilen_epw = 8;

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

/// Line of an EnergyPlus file with the data periods, which is the last of its head; nothing if it has none.
std::optional<int> zeile_der_datenperioden(const Importquelle& quelle) {
    constexpr int hoechste_kopfzeilen = 100;
    for (int n = 1; n <= hoechste_kopfzeilen; ++n) {
        if (quelle.zeile(n).starts_with("DATA PERIODS,")) return n;
    }
    return std::nullopt;
}

}  // namespace

Quellkopf Meteonorm_Lesen(const Importquelle& quelle) {
    Quellkopf kopf{.form = Quellform::meteonorm,
                   .trennung = Trennung::tabulator,
                   .kopfzeilen = kopfzeilen_meteonorm,
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
    return kopf;
}

Quellkopf Epw_Lesen(const Importquelle& quelle) {
    Quellkopf kopf{.form = Quellform::epw,
                   .trennung = Trennung::komma,
                   .kopfzeilen = zeile_der_datenperioden(quelle).value_or(kopfzeilen_epw),
                   .ort = {},
                   .spalten = {}};
    const Spaltenteiler teiler(Trennung::komma, {});
    const auto angabe = [&](int n) { return ohne_rand(teiler.stelle(quelle.zeile(1), n).value_or("")); };
    kopf.ort.Standortname = angabe(2);
    kopf.ort.Land = angabe(4);
    kopf.ort.Breitengrad = betrag(angabe(7), kopf.ort.sued);
    kopf.ort.Laengengrad = betrag(angabe(8), kopf.ort.west);
    kopf.ort.Zeitzone = betrag(angabe(9), kopf.ort.gmt_minus);
    kopf.spalten(7) = belegung::temperatur;
    kopf.spalten(14) = belegung::gesamtstrahlung;
    kopf.spalten(15) = belegung::direktstrahlung;
    kopf.spalten(16) = belegung::diffusstrahlung;
    return kopf;
}

std::string epw_werte_je_stunde(const Importquelle& quelle) {
    constexpr int angabe = 3;
    const auto zeile = zeile_der_datenperioden(quelle);
    if (!zeile) return "1";
    return ohne_rand(Spaltenteiler(Trennung::komma, {}).stelle(quelle.zeile(*zeile), angabe).value_or("1"));
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
