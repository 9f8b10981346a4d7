#include "climate/import/importschreiber.h"

#include "climate/import/importzahlen.h"
#include "toolkit/text.h"
#include "toolkit/zahlen.h"

#include <cmath>

namespace velmaris {
namespace {

constexpr std::size_t feldbreite = 5;
constexpr std::size_t zeilen_je_meldung = 256;

constexpr double hoechste_breite = 90;
constexpr double hoechste_laenge = 180;
constexpr double hoechste_zeitzone = 14;

constexpr double grad_je_stunde = 15;

/// Hours that a time zone may lie apart from the longitude: the widest zone in use reaches almost that far.
constexpr double groesster_abstand = 3;

constexpr const char* kopf_breite = "Breitengrad:  ";
constexpr const char* kopf_laenge = "Längengrad:   ";
constexpr const char* kopf_zeitzone = "Zeitzone:     ";
constexpr const char* spaltennamen = "   dy   Ta G_Gh G_Dh";
constexpr const char* zeilenende = "\r\n";

double zehntel(double wert) {
    return runden(wert * 10) / 10;
}

std::string feld(const std::string& text) {
    return rechtsbuendig(text, feldbreite);
}

std::string temperaturtext(double wert) {
    std::string text = zahltext(zehntel(wert));
    if (text.find('.') == std::string::npos) text += ".0";
    return mit_null(text);
}

/// The number of a field of the place within its limits.
double ortszahl(const std::string& text, double hoechstens, const Zweisprachig& groesse) {
    const auto zahl = StringToReal(text, true);
    if (zahl && std::fabs(*zahl) <= hoechstens) return *zahl;
    const std::string grenze = zahltext(hoechstens);
    const std::string was = ": \"" + quelltext(text, 40);
    throw Importfehler({groesse.de + was + "\" liegt nicht zwischen 0 und" + grenze + ".",
                        groesse.en + was + "\" is not between 0 and" + grenze + "."});
}

double mit_vorzeichen(double wert, bool umgekehrt) {
    return umgekehrt ? -wert : wert;
}

}  // namespace

std::string stationsname(const Ortsangaben& ort) {
    return ort.Standortname + " (" + ort.Land + ")";
}

Stationsort stationsort(const Ortsangaben& ort) {
    if (hat_steuerzeichen(stationsname(ort))) {
        throw Importfehler({"Der Name oder das Land des Standorts enthält Steuerzeichen.",
                            "The name or country of the location contains control characters."});
    }
    const double breite = ortszahl(ort.Breitengrad, hoechste_breite, {"Breitengrad", "Latitude"});
    const double laenge = ortszahl(ort.Laengengrad, hoechste_laenge, {"Längengrad", "Longitude"});
    const double zone = ortszahl(ort.Zeitzone, hoechste_zeitzone, {"Zeitzone", "Time zone"});
    return {stationsname(ort), mit_vorzeichen(breite, ort.sued), mit_vorzeichen(laenge, !ort.west),
            mit_vorzeichen(zone, !ort.gmt_minus)};
}

Zweisprachig namenshinweis(const std::string& stationsname) {
    Zweisprachig hinweis;
    const auto dazu = [&hinweis](const char* de, const char* en) {
        hinweis.de.append(hinweis.de.empty() ? "" : " ").append(de);
        hinweis.en.append(hinweis.en.empty() ? "" : " ").append(en);
    };
    if (stationsname.find(',') != std::string::npos) {
        dazu(
            "Ein Komma im Namen beendet ihn in den Stationslisten und verschiebt die Station auf den Karten.",
            "A comma in the name ends it in the lists of stations and misplaces the station on the maps.");
    }
    if (!in_windows1252(stationsname)) {
        dazu("Zeichen, die der Zeichensatz der Stationsdateien nicht kennt, werden zu \"?\".",
             "Characters that the character set of station files lacks become \"?\".");
    }
    return hinweis;
}

Zweisprachig zonenhinweis(const Ortsangaben& ort) {
    const auto laenge = StringToReal(ort.Laengengrad, true);
    const auto zone = StringToReal(ort.Zeitzone, true);
    if (!laenge || !zone) return {};
    const double unterschied =
        mit_vorzeichen(*laenge, ort.west) / grad_je_stunde - mit_vorzeichen(*zone, ort.gmt_minus);
    // Where the date line has moved, the zone is a whole day off.
    const double abstand = std::fabs(std::remainder(unterschied, stunden));
    if (abstand <= groesster_abstand + 1e-9) return {};
    const std::string zahl = muster(abstand, 1);
    return {
        "Längengrad und Zeitzone liegen " + zahl + " Stunden auseinander. Bitte prüfen Sie beide Vorzeichen.",
        "Longitude and time zone are " + zahl + " hours apart. Please check both signs."};
}

std::string stationszeile(int i, const Stundenwerte& stunde) {
    return feld(zahltext(runden(i / 24.0 + 0.5000001))) + feld(temperaturtext(stunde.Ta)) +
           feld(zahltext(runden(stunde.G_Gh))) + feld(zahltext(zehntel(stunde.G_Dh)));
}

std::optional<std::string> stationstext(const Stationsort& ort, const Messjahr& jahr,
                                        const Fortschrittsmelder& fortschritt) {
    std::string text;
    for (const std::string& zeile :
         {ort.name, kopf_breite + RealToString(ort.breite), kopf_laenge + RealToString(ort.laenge),
          kopf_zeitzone + RealToString(ort.zeitzone), std::string(), std::string(spaltennamen)})
        text.append(zeile).append(zeilenende);
    for (std::size_t i = 0; i < jahr.stunden.size(); ++i) {
        const double anteil = static_cast<double>(i) / static_cast<double>(jahr.stunden.size());
        if (i % zeilen_je_meldung == 0 && fortschritt && !fortschritt(anteil)) return std::nullopt;
        text.append(stationszeile(static_cast<int>(i), jahr.stunden[i])).append(zeilenende);
    }
    return nach_windows1252(text);
}

}  // namespace velmaris
