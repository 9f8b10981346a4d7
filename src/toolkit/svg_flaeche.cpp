#include "toolkit/svg_flaeche.h"

#include "toolkit/auszeichnung.h"
#include "toolkit/schriftmasse.h"
#include "toolkit/zahlen.h"

#include <array>
#include <cmath>
#include <numbers>

namespace velmaris {
namespace {

constexpr double mitte = 0.5;  ///< from the corner of a pixel to its centre

/// A coordinate in path data: a blank or a minus sign parts it from what stands before.
std::string koordinate(double wert) {
    return zahltext(runden(wert * 100) / 100);
}

std::string wert(double zahl) {
    std::string text = koordinate(zahl);
    if (text.front() == ' ') text.erase(0, 1);
    return text;
}

/// The edge of a letter is a stroke under it, half of which the letter covers.
std::string hof(Farbe farbe) {
    return attribut("paint-order", "stroke") + attribut("stroke", farbtext(farbe)) +
           attribut("stroke-width", wert(2 * hofbreite)) + attribut("stroke-linejoin", "round");
}

bool ist_ort(double x, double y) {
    return std::isfinite(x) && std::isfinite(y);
}

bool ist_kreis(double cx, double cy, double radius) {
    return ist_ort(cx, cy) && radius > 0 && std::isfinite(radius);
}

}  // namespace

SvgFlaeche::SvgFlaeche(double breite, double hoehe, Farbe hintergrund)
    : breite_(breite), hoehe_(hoehe), hintergrund_(hintergrund) {}

std::string SvgFlaeche::svg() const {
    std::string text = "<svg xmlns=\"http://www.w3.org/2000/svg\"" + attribut("width", wert(breite_)) +
                       attribut("height", wert(hoehe_)) +
                       attribut("viewBox", "0 0" + koordinate(breite_) + koordinate(hoehe_)) +
                       attribut("font-family", "'Liberation Sans', Arial, Helvetica, sans-serif") +
                       attribut("xml:space", "preserve") + ">\n" + inhalt_;
    if (!verlauf_.empty()) text += "<path" + attribute_ + attribut("d", verlauf_) + "/>\n";
    return text + "</svg>\n";
}

void SvgFlaeche::Cls() {
    inhalt_.clear();
    verlauf_.clear();
    flaeche(0, 0, breite_ - 1, hoehe_ - 1, hintergrund_);
}

void SvgFlaeche::linie(double x1, double y1, double x2, double y2, Farbe farbe, int dicke) {
    const std::optional<Pixellinie> linie = pixellinie(x1, y1, x2, y2, dicke);
    if (!linie) return;
    if (linie->gerade) {
        fuelle(*linie->gerade, farbe);
        return;
    }
    const double dx = linie->x2 - linie->x1;
    const double dy = linie->y2 - linie->y1;
    const double letztes = 1 - 1 / std::max(std::fabs(dx), std::fabs(dy));
    pfad(attribut("fill", "none") + attribut("stroke", farbtext(farbe)) +
             attribut("stroke-width", wert(dicke)) + attribut("stroke-linecap", "square"),
         "M" + koordinate(linie->x1 + mitte) + koordinate(linie->y1 + mitte) + "l" +
             koordinate(dx * letztes) + koordinate(dy * letztes));
}

void SvgFlaeche::kasten(double x1, double y1, double x2, double y2, Farbe farbe) {
    flaeche(x1, y1, x2, y1, farbe);
    flaeche(x1, y2, x2, y2, farbe);
    flaeche(x1, y1, x1, y2, farbe);
    flaeche(x2, y1, x2, y2, farbe);
}

void SvgFlaeche::flaeche(double x1, double y1, double x2, double y2, Farbe farbe) {
    if (const std::optional<Pixelkasten> kasten = pixelkasten(x1, y1, x2, y2)) fuelle(*kasten, farbe);
}

void SvgFlaeche::kreis(double cx, double cy, double radius, Farbe rand, std::optional<Farbe> fuellung) {
    if (!ist_kreis(cx, cy, radius)) return;
    element("<circle" + attribut("cx", wert(cx + mitte)) + attribut("cy", wert(cy + mitte)) +
            attribut("r", wert(radius)) + attribut("fill", fuellung ? farbtext(*fuellung) : "none") +
            attribut("stroke", farbtext(rand)) + "/>\n");
}

void SvgFlaeche::sektor(double cx, double cy, double radius, double von, double bis, Farbe farbe) {
    const double winkel = bis - von;
    if (!ist_kreis(cx, cy, radius) || !std::isfinite(winkel)) return;
    if (std::fabs(winkel) >= 2 * std::numbers::pi) {
        kreis(cx, cy, radius, farbe, farbe);
        return;
    }
    const auto ecke = [&](double bogen) {
        return koordinate(cx + mitte + radius * std::cos(bogen)) +
               koordinate(cy + mitte - radius * std::sin(bogen));
    };
    const bool gross = std::fabs(winkel) > std::numbers::pi;
    pfad(attribut("fill", farbtext(farbe)) + attribut("stroke", farbtext(farbe)) +
             attribut("stroke-linejoin", "round"),
         "M" + koordinate(cx + mitte) + koordinate(cy + mitte) + "L" + ecke(von) + "A" + koordinate(radius) +
             koordinate(radius) + " 0" + (gross ? " 1" : " 0") + (winkel > 0 ? " 0" : " 1") + ecke(bis) +
             "Z");
}

/// An element of its own: in one path with others, overlapping outlines of opposite turn would leave a hole.
bool SvgFlaeche::umriss(const Umriss& umriss, Farbe farbe) {
    std::string verlauf;
    for (const auto& [x, y, radius] : umriss.ecken) {
        if (verlauf.empty()) {
            verlauf = "M";
        } else if (radius == 0) {
            verlauf += "L";
        } else {
            const std::string halbachse = koordinate(std::fabs(radius));
            verlauf.append("A").append(halbachse).append(halbachse).append(radius > 0 ? " 0 0 0" : " 0 0 1");
        }
        verlauf += koordinate(x) + koordinate(y);
    }
    element("<path" + attribut("fill", farbtext(farbe)) + attribut("d", verlauf + "Z") + "/>\n");
    return true;
}

void SvgFlaeche::punkt(double x, double y, Farbe farbe) {
    flaeche(x, y, x, y, farbe);
}

void SvgFlaeche::text(double x, double y, std::string_view text, Farbe farbe) {
    if (text.empty() || !ist_ort(x, y)) return;
    element("<text" + attribut("x", wert(x)) + attribut("y", wert(y + oberlaenge(schrift_))) +
            attribut("font-size", wert(schriftpixel(schrift_))) +
            (schrift_.fett ? attribut("font-weight", "bold") : std::string()) +
            (schrift_.hof ? hof(*schrift_.hof) : std::string()) +
            (farbe == farben::schwarz ? std::string() : attribut("fill", farbtext(farbe))) + ">" +
            maskiert(text) + "</text>\n");
}

double SvgFlaeche::textbreite(std::string_view text) const {
    return schriftbreite(text, schrift_);
}

double SvgFlaeche::texthoehe(std::string_view) const {
    return schrifthoehe(schrift_);
}

void SvgFlaeche::fuelle(const Pixelkasten& kasten, Farbe farbe) {
    const int breite = kasten.rechts - kasten.links + 1;
    pfad(attribut("fill", farbtext(farbe)) + attribut("shape-rendering", "crispEdges"),
         "M" + koordinate(kasten.links) + koordinate(kasten.oben) + "h" + koordinate(breite) + "v" +
             koordinate(kasten.unten - kasten.oben + 1) + "h" + koordinate(-breite) + "z");
}

/// Adds to the open path if its attributes are the same, else begins a new one.
void SvgFlaeche::pfad(const std::string& attribute, const std::string& verlauf) {
    if (attribute != attribute_) element({});
    attribute_ = attribute;
    verlauf_ += verlauf;
}

void SvgFlaeche::element(const std::string& text) {
    if (!verlauf_.empty()) inhalt_ += "<path" + attribute_ + attribut("d", verlauf_) + "/>\n";
    verlauf_.clear();
    inhalt_ += text;
}

}  // namespace velmaris
