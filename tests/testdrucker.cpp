#include "tests/testdrucker.h"

#include "toolkit/fehler.h"
#include "toolkit/schriftmasse.h"

#include <algorithm>
#include <iterator>

namespace velmaris::test {
namespace {

constexpr double mm_je_pixel = 25.4 / 96;
constexpr double mm_je_punkt = 25.4 / 72;
constexpr double zeilenhoehe = 1.149;  ///< of Arial, in ems

}  // namespace

std::vector<Druckzeichen> Testdrucker::auf_seite(int seite, Druckzeichen::Art art) const {
    std::vector<Druckzeichen> teil;
    std::copy_if(zeichen.begin(), zeichen.end(), std::back_inserter(teil),
                 [&](const Druckzeichen& z) { return z.seite == seite && z.art == art; });
    return teil;
}

double Testdrucker::textbreite(std::string_view text) const {
    return mm_je_pixel *
           schriftbreite(text, {.name = "Arial", .groesse = schrift_.groesse, .fett = schrift_.fett});
}

double Testdrucker::texthoehe(std::string_view) const {
    return zeilenhoehe * schrift_.groesse * mm_je_punkt;
}

void Testdrucker::text(double x, double y, std::string_view text) {
    zeichen.push_back({Druckzeichen::Art::text, seiten, x, y, x + textbreite(text), y + texthoehe(text),
                       std::string(text), schrift_});
}

void Testdrucker::linie(double x1, double y1, double x2, double y2, Farbe farbe) {
    zeichen.push_back({Druckzeichen::Art::linie, seiten, x1, y1, x2, y2, {}, {}, farbe});
}

void Testdrucker::kasten(double x1, double y1, double x2, double y2, Farbe farbe) {
    zeichen.push_back({Druckzeichen::Art::kasten, seiten, x1, y1, x2, y2, {}, {}, farbe});
}

void Testdrucker::flaeche(double x1, double y1, double x2, double y2, Farbe farbe) {
    zeichen.push_back({Druckzeichen::Art::flaeche, seiten, x1, y1, x2, y2, {}, {}, farbe});
}

void Testdrucker::EndDoc() {
    if (stoerung) throw Laufzeitfehler({"Papierstau", "paper jam"});
    ++dokumente;
}

}  // namespace velmaris::test
