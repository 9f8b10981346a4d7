#include "tools/climate/jahresgang.h"

#include <algorithm>
#include <numeric>

namespace velmaris::klimasatz {
namespace {

double laenge(int m) {
    return tage_im_monat[static_cast<std::size_t>(m)];
}

/// A node of the course: its place in days from the start of the year, and the slope there, by the day.
struct Stuetze {
    double ort = 0;
    double wert = 0;
    double steigung = 0;
};

/// The nodes from the November before the year to the February behind it.
using Stuetzen = Reihe<Stuetze, -1, monate + 2>;

Stuetzen stuetzen(const Monatswerte& werte) {
    Stuetzen s;
    for (int i = -1; i <= monate + 2; ++i) {
        const int jahr = i < 1 ? -1 : (i > monate ? 1 : 0);
        const int m = i - jahr * monate;
        s(i).ort = jahr * tage_im_jahr + erster_tag(m) - 1 + laenge(m) / 2;
        s(i).wert = werte(m);
    }
    for (int i = 0; i <= monate + 1; ++i)
        s(i).steigung = (s(i + 1).wert - s(i - 1).wert) / (s(i + 1).ort - s(i - 1).ort);
    return s;
}

/// The Hermite piece between two nodes at the place x.
double hermite(const Stuetze& a, const Stuetze& b, double x) {
    const double h = b.ort - a.ort;
    const double t = (x - a.ort) / h;
    const double u = 1 - t;
    return a.wert * (1 + 2 * t) * u * u + b.wert * (1 + 2 * u) * t * t +
           h * t * u * (a.steigung * u - b.steigung * t);
}

Tageswerte kurve(const Monatswerte& stuetzwerte) {
    const Stuetzen s = stuetzen(stuetzwerte);
    Tageswerte tage;
    fuer_jeden_tag([&](int m, int n) {
        const double x = n - 0.5;
        const int links = x < s(m).ort ? m - 1 : m;
        tage(n) = hermite(s(links), s(links + 1), x);
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

Monatswerte mit_nachbarn(const Monatswerte& werte) {
    Monatswerte zu_dritt;
    for (int m = 1; m <= monate; ++m)
        zu_dritt(m) = (werte((m + 10) % monate + 1) + werte(m) + werte(m % monate + 1)) / 3;
    return zu_dritt;
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
