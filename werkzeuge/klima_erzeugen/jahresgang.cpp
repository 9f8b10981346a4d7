#include "werkzeuge/klima_erzeugen/jahresgang.h"

#include <algorithm>
#include <numeric>

namespace velmaris::klimasatz {
namespace {

double laenge(int m) {
    return tage_im_monat[static_cast<std::size_t>(m)];
}

/// A node of the course, its place in days from the start of the year.
struct Stuetze {
    double ort = 0;
    double wert = 0;
};

/// The node of month m, which may lie in the year before (m < 1) or after (m > 12).
Stuetze stuetze(const Monatswerte& werte, int m) {
    const int jahr = m < 1 ? -1 : (m > monate ? 1 : 0);
    const int monat = m - jahr * monate;
    return {jahr * tage_im_jahr + erster_tag(monat) - 1 + laenge(monat) / 2, werte(monat)};
}

double steigung(const Stuetze& davor, const Stuetze& danach) {
    return (danach.wert - davor.wert) / (danach.ort - davor.ort);
}

/// Hermite piece from node b to node c at the place x; a and d are the neighbours that give the slopes.
double hermite(const Stuetze& a, const Stuetze& b, const Stuetze& c, const Stuetze& d, double x) {
    const double h = c.ort - b.ort;
    const double t = (x - b.ort) / h;
    const double u = 1 - t;
    return b.wert * (1 + 2 * t) * u * u + c.wert * (1 + 2 * u) * t * t +
           h * t * u * (steigung(a, c) * u - steigung(b, d) * t);
}

Tageswerte kurve(const Monatswerte& stuetzwerte) {
    Tageswerte tage;
    fuer_jeden_tag([&](int m, int n) {
        const double x = n - 0.5;
        const int links = x < stuetze(stuetzwerte, m).ort ? m - 1 : m;
        const auto s = [&](int i) { return stuetze(stuetzwerte, links + i); };
        tage(n) = hermite(s(-1), s(0), s(1), s(2), x);
    });
    return tage;
}

}  // namespace

int erster_tag(int m) {
    int n = 1;
    for (int i = 1; i < m; ++i)
        n += tage_im_monat[static_cast<std::size_t>(i)];
    return n;
}

Tageswerte tagesmittel(const Stundenwerte& werte) {
    Tageswerte mittel;
    for (int n = 1; n <= tage_im_jahr; ++n)
        mittel(n) = std::accumulate(werte(n).begin(), werte(n).end(), 0.0) / stunden;
    return mittel;
}

Tageswerte tagesspannen(const Stundenwerte& werte) {
    Tageswerte spannen;
    for (int n = 1; n <= tage_im_jahr; ++n) {
        const auto [kleinster, groesster] = std::minmax_element(werte(n).begin(), werte(n).end());
        spannen(n) = *groesster - *kleinster;
    }
    return spannen;
}

Monatswerte monatsmittel(const Tageswerte& tage) {
    Monatswerte mittel;
    fuer_jeden_tag([&](int m, int n) { mittel(m) += tage(n) / laenge(m); });
    return mittel;
}

Tageswerte jahresgang(const Monatswerte& mittel) {
    constexpr int schritte = 30;
    Monatswerte stuetzwerte = mittel;
    Tageswerte tage = kurve(stuetzwerte);
    for (int i = 0; i < schritte; ++i) {
        const Monatswerte ist = monatsmittel(tage);
        for (int m = 1; m <= monate; ++m)
            stuetzwerte(m) += mittel(m) - ist(m);
        tage = kurve(stuetzwerte);
    }
    return tage;
}

}  // namespace velmaris::klimasatz
