#include "climate/import/importziel.h"

#include "toolkit/rueckfrage.h"
#include "toolkit/text.h"

#include <algorithm>
#include <array>
#include <system_error>
#include <utility>

namespace velmaris {
namespace {

constexpr std::string_view endung = ".met";

/// Leaves room for the extension within the 255 bytes of a file name.
constexpr std::size_t hoechste_laenge = 255 - endung.size();

/// A comma would end the name where a project is read; the others are no part of a file name somewhere.
constexpr std::string_view verbotene_zeichen = "\\/:*?\"<>|,";

/// Names of devices, with any extension, and a file that is never listed as a station.
constexpr std::array<std::string_view, 23> vergebene_namen{
    "con",  "prn",  "aux",  "nul",  "com1", "com2", "com3", "com4", "com5", "com6", "com7", "com8",
    "com9", "lpt1", "lpt2", "lpt3", "lpt4", "lpt5", "lpt6", "lpt7", "lpt8", "lpt9", "klima"};

bool ist_vergeben(std::string_view name) {
    const std::string klein = kleinschreiben(name);
    const std::string_view vorn = std::string_view(klein).substr(0, klein.find('.'));
    const bool geraet =
        std::find(vergebene_namen.begin(), vergebene_namen.end() - 1, vorn) != vergebene_namen.end() - 1;
    return geraet || klein == vergebene_namen.back();
}

std::string ohne_rand(const std::string& text) {
    const std::size_t anfang = text.find_first_not_of(' ');
    if (anfang == std::string::npos) return {};
    return text.substr(anfang, text.find_last_not_of(' ') - anfang + 1);
}

Zweisprachig frage_nach_namen(const std::string& station) {
    return {"Bitte geben Sie einen (beliebigen) Dateinamen ein, unter dem der neue Klimadatensatz '" +
                station + "' gespeichert werden soll:",
            "Please input a filename for the new set '" + station + "' of climatic data:"};
}

bool darf_ersetzen(Plattform& plattform, const std::string& sprache, const std::string& titel) {
    const Zweisprachig frage{
        "Der angegebene Dateiname wird bereits verwendet. Soll der unter diesem Namen "
        "vorhandene Datensatz überschrieben werden?",
        "This filename already exists. Should the data set, saved under this filename, be "
        "overwritten?"};
    return bejaht(plattform, {.text = frage.in(sprache), .titel = titel});
}

}  // namespace

std::string vorgabename(std::string_view quellpfad) {
    if (const std::size_t laufwerk = quellpfad.find(':'); laufwerk != std::string_view::npos)
        quellpfad.remove_prefix(laufwerk + 1);
    if (const std::size_t ordner = quellpfad.find_last_of("\\/"); ordner != std::string_view::npos)
        quellpfad.remove_prefix(ordner + 1);
    return std::string(quellpfad.substr(0, quellpfad.rfind('.')));
}

std::optional<Zweisprachig> namensfehler(std::string_view name) {
    if (name.empty()) return Zweisprachig{"Der Dateiname ist leer.", "The filename is empty."};
    if (hat_steuerzeichen(name)) {
        return Zweisprachig{"Der Dateiname darf keine Steuerzeichen enthalten.",
                            "The filename must not contain control characters."};
    }
    if (name.find_first_of(verbotene_zeichen) != std::string_view::npos) {
        return Zweisprachig{"Der Dateiname darf keines der Zeichen \\ / : * ? \" < > | , enthalten.",
                            "The filename must not contain any of the characters \\ / : * ? \" < > | ,"};
    }
    if (name.front() == '.' || name.front() == ' ') {
        return Zweisprachig{"Der Dateiname darf nicht mit einem Punkt oder Leerzeichen beginnen.",
                            "The filename must not begin with a point or blank."};
    }
    if (!in_windows1252(name)) {
        return Zweisprachig{"Der Dateiname enthält Zeichen, die eine Projektdatei nicht speichern kann.",
                            "The filename contains characters that a project file cannot hold."};
    }
    if (name.size() > hoechste_laenge)
        return Zweisprachig{"Der Dateiname ist zu lang.", "The filename is too long."};
    if (ist_vergeben(name)) {
        return Zweisprachig{"Der Dateiname ist für das System reserviert.",
                            "The filename is reserved for the system."};
    }
    return std::nullopt;
}

std::string stationsdatei(std::string_view name) {
    return std::string(name).append(endung);
}

std::optional<std::string> ziel_erfragen(Plattform& plattform, const std::string& sprache,
                                         const Klimaordner& ordner, const std::string& station,
                                         std::string vorgabe) {
    const Zweisprachig titel{"Klimadatensatz speichern unter ...", "Save climatic data as ..."};
    std::string name = std::move(vorgabe);
    for (;;) {
        const auto antwort =
            plattform.eingabe(frage_nach_namen(station).in(sprache), titel.in(sprache), name);
        name = ohne_rand(antwort.value_or(""));
        if (name.empty()) return std::nullopt;
        const auto fehler = namensfehler(name);
        if (!fehler) break;
        plattform.melde(
            {.text = fehler->in(sprache), .titel = titel.in(sprache), .symbol = Symbol::ausrufezeichen});
    }
    std::string ziel = stationsdatei(name);
    std::error_code ohne;
    if (std::filesystem::exists(ordner.datei(ziel), ohne) &&
        !darf_ersetzen(plattform, sprache, titel.in(sprache)))
        return std::nullopt;
    return ziel;
}

}  // namespace velmaris
