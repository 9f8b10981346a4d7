#include "documents/print/druckachsen.h"

#include "documents/print/drucktabelle.h"
#include "toolkit/zahlen.h"

namespace velmaris {
namespace {

constexpr double strichlaenge = 1;
constexpr double zahlenabstand = 1.5;  ///< of the numbers from the axis, and of their top from the tick

void kasten_drucken(const Blatt& blatt, const Druckkasten& kasten) {
    blatt.drucker().kasten(kasten.links, kasten.oben, kasten.rechts, kasten.unten, farben::schwarz);
}

/// The number-to-text form without the blank that stands for a plus.
std::string achsenzahl(double wert) {
    const std::string zahl = zahltext(wert);
    return zahl.starts_with(' ') ? zahl.substr(1) : zahl;
}

}  // namespace

void diagrammschrift(Blatt& blatt) {
    blatt.schrift({.groesse = 8});
}

Druckdiagramm::Druckdiagramm(Blatt& blatt, const Diagrammlage& lage, double schritt, int teile,
                             std::string_view einheit)
    : blatt_(blatt), lage_(lage), schritt_(schritt), teile_(teile) {
    diagrammschrift(blatt);
    kasten_drucken(blatt, lage.kasten);
    blatt.linie(lage.achse, lage.unten, lage.achse, lage.oben);
    blatt.linie(lage.achse, lage.unten, lage.rechts, lage.unten);
    for (int i = 0; i <= teile; ++i) {
        const double strich = y(i * schritt);
        blatt.linie(lage.achse - strichlaenge, strich, lage.achse, strich);
        blatt.DruckeText(achsenzahl(i * schritt), lage.achse - zahlenabstand, strich - zahlenabstand);
    }
    blatt.text(lage.einheit, lage.kasten.oben + 1, einheit);
}

double Druckdiagramm::y(double wert) const {
    return lage_.unten - wert / schritt_ * (lage_.unten - lage_.oben) / teile_;
}

void Druckdiagramm::stapel(double x1, double x2, std::initializer_list<Druckabschnitt> abschnitte) const {
    double unten = 0;
    for (const Druckabschnitt& abschnitt : abschnitte) {
        const double oben = unten + abschnitt.wert;
        if (abschnitt.wert != 0) blatt_.drucker().flaeche(x1, y(unten), x2, y(oben), abschnitt.farbe);
        unten = oben;
    }
    blatt_.linie(x1, lage_.unten, x2, lage_.unten);
}

void Druckdiagramm::monatsnamen() const {
    blatt_.text(lage_.achse, lage_.unten + 1, monate_der_diagramme);
}

void Druckdiagramm::name(std::string_view name) const {
    blatt_.mitte((lage_.achse + lage_.rechts) / 2, lage_.unten + 1, name);
}

void legendeneintrag(Blatt& blatt, double x, double y, Farbe farbe, const Wort& name) {
    constexpr double seite = 3;
    constexpr double abstand = 2;
    diagrammschrift(blatt);
    blatt.drucker().flaeche(x, y, x + seite, y + seite, farbe);
    blatt.drucker().kasten(x, y, x + seite, y + seite, farben::schwarz);
    blatt.text(x + seite + abstand, y - 0.2, name);
}

}  // namespace velmaris
