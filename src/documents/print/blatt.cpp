#include "documents/print/blatt.h"

#include "toolkit/zahlen.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace velmaris {
namespace {

constexpr double mitte_der_seite = rahmen::breite / 2;

constexpr char hochzeichen = '^';
constexpr double hochgestellt_groesse = 0.65;
constexpr double hochgestellt_hub = 0.08;  ///< of the height of a line

}  // namespace

void Blatt::schrift(const Druckschrift& schrift) {
    schrift_ = schrift;
    drucker_.schrift(schrift);
}

void Blatt::text(double x, double y, std::string_view text) {
    drucker_.text(x, y, text);
}

void Blatt::mitte(double x, double y, std::string_view text) {
    drucker_.text(x - drucker_.textbreite(text) / 2, y, text);
}

void Blatt::schrift_einpassen(std::string_view text, double breite) {
    const double noetig = drucker_.textbreite(text);
    if (noetig <= breite) return;
    Druckschrift klein = schrift_;
    klein.groesse *= breite / noetig;
    schrift(klein);
}

void Blatt::DruckeText(std::string_view text, double anker, double y) {
    const auto stelle = text.find(hochzeichen);
    const std::string_view grund = text.substr(0, stelle);
    const std::string_view hoch = stelle == std::string_view::npos ? "" : text.substr(stelle + 1);
    const Druckschrift normal = schrift_;
    double x = anker;
    if (!hoch.empty()) {
        const double hub = hochgestellt_hub * drucker_.texthoehe(grund);
        Druckschrift klein = normal;
        klein.groesse *= hochgestellt_groesse;
        schrift(klein);
        x -= drucker_.textbreite(hoch);
        drucker_.text(x, y - hub, hoch);
        schrift(normal);
    }
    drucker_.text(x - drucker_.textbreite(grund), y, grund);
}

void Blatt::DruckeWert(double wert, double anker, int stellen, double y) {
    DruckeText(muster(wert, stellen), anker, y);
}

std::vector<std::string> Blatt::ZeilenUmbruch(std::string_view text, double breite) const {
    return zeilen_umbrechen(text, breite, messer());
}

std::string Blatt::gekuerzt(std::string_view text, double breite) const {
    return kuerzen(text, breite, messer());
}

Textmesser Blatt::messer() const {
    return [this](std::string_view text) { return drucker_.textbreite(text); };
}

void Blatt::linie(double x1, double y1, double x2, double y2, Farbe farbe) {
    drucker_.linie(x1, y1, x2, y2, farbe);
}

void Blatt::regel(double y) {
    linie(rahmen::links, y, rahmen::rechts, y);
}

void Blatt::doppelregel(double y) {
    regel(y);
    regel(y + 1);
}

void Formular::abschnitt(const Wort& name) {
    constexpr double abstand = 2.5;
    constexpr double kopfhoehe = 6;
    if (!std::exchange(erster_, false)) y_ += abstand;
    blatt_.schrift({.groesse = 12, .fett = true});
    blatt_.text(rahmen::links, y_, name);
    blatt_.schrift({});
    y_ += kopfhoehe;
}

void Formular::zeile(const Wort& name, std::string_view wert) {
    blatt_.text(spalten_mm::name, y_, name);
    std::vector<std::string> zeilen = blatt_.ZeilenUmbruch(wert, spalten_mm::breite);
    const double platz = std::max(1.0, std::floor((rahmen::unten - y_) / zeilenhoehe_));
    if (static_cast<double>(zeilen.size()) > platz) {
        zeilen.resize(static_cast<std::size_t>(platz));
        zeilen.back() += auslassung;
    }
    for (const std::string& zeile : zeilen)
        wertzeile(blatt_.gekuerzt(zeile, spalten_mm::breite));
}

void Formular::zeilen(const Wort& name, std::span<const std::string_view> werte) {
    blatt_.text(spalten_mm::name, y_, name);
    for (const std::string_view wert : werte) {
        blatt_.schrift_einpassen(wert, spalten_mm::breite);
        wertzeile(wert);
        blatt_.schrift({});
    }
}

void Formular::wertzeile(std::string_view wert) {
    blatt_.text(spalten_mm::wert, y_, wert);
    y_ += zeilenhoehe_;
}

void Seitenkopf(Blatt& blatt, std::string_view titel, const Seitenfuss& fuss) {
    const Druckschrift schraeg{.groesse = 20, .fett = true, .kursiv = true, .unterstrichen = true};
    const Druckschrift gerade{.groesse = 20, .fett = true, .unterstrichen = true};
    Drucker& drucker = blatt.drucker();
    blatt.schrift(gerade);
    const double hinten = drucker.textbreite("aris");
    blatt.schrift(schraeg);
    const double vorn = drucker.textbreite("VELM");
    const double x = mitte_der_seite - (vorn + hinten) / 2;
    blatt.text(x, 20, "VELM");
    blatt.schrift(gerade);
    blatt.text(x + vorn, 20, "aris");

    blatt.regel(rahmen::oben);
    blatt.regel(rahmen::unten);
    constexpr double fusszeile = rahmen::unten + 1;
    blatt.schrift({.kursiv = true});
    const std::string seite = std::string(Wort{"- Seite ", "- Page "}.in(blatt.sprache())) +
                              std::to_string(fuss.seite) + " / " + std::to_string(fuss.seiten) + " -";
    blatt.mitte(mitte_der_seite, fusszeile, seite);
    blatt.DruckeText(fuss.datum, rahmen::rechts, fusszeile);
    const std::string datei = std::string(Wort{"Datei: ", "File: "}.in(blatt.sprache())) + fuss.datei + " ";
    const double platz = mitte_der_seite - drucker.textbreite(seite) / 2 - rahmen::links - 2;
    blatt.text(rahmen::links, fusszeile, blatt.gekuerzt(datei, platz));

    blatt.schrift({.groesse = 16});
    blatt.mitte(mitte_der_seite, 40, titel);
    blatt.schrift({});
}

}  // namespace velmaris
