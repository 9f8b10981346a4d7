#include "charts/kurvenbild.h"

#include "charts/kurvenfarben.h"
#include "charts/linienzug.h"
#include "toolkit/kuerzen.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace velmaris {
namespace {

constexpr double namensbreite = 260;  ///< that names may take at most
constexpr double zeilenhoehe = 22;    ///< of a choice
constexpr double eintragshoehe = 15;  ///< of a name beside the curves
constexpr double einheit_links = 6;
constexpr double rand_oben = 30;
constexpr double rand_unten = 44;
constexpr int striche_hoechstens = 8;

std::vector<std::string> kurvennamen(const std::vector<Kurve>& kurven) {
    std::vector<std::string> namen(kurven.size());
    std::ranges::transform(kurven, namen.begin(), &Kurve::name);
    return namen;
}

/// A scale of numbers on pixels.
struct Massstab {
    double von, bis;       ///< numbers
    double pixel, laenge;  ///< of `von`; up to `bis`, negative upward

    [[nodiscard]] double ort(double zahl) const { return pixel + (zahl - von) / (bis - von) * laenge; }
};

/// A picture under way; what both kinds have in common.
class Kurvenzeichner {
  public:
    Kurvenzeichner(const Kurvenbild& inhalt, Zeichenflaeche& bild)
        : i_(inhalt), b_(bild), werte_(inhalt.teilung.value_or(kurventeilung(inhalt.kurven))) {
        b_.Cls();
        b_.schrift(bildstil::schrift);
        zeile_ = b_.texthoehe("0");
        namen_ = std::min(namensbreite, breitester(b_, kurvennamen(inhalt.kurven)));
    }

  protected:
    [[nodiscard]] static Farbe farbe(std::size_t kurve) {
        return kurvenfarben.at(kurve % kurvenfarben.size());
    }

    void titel_unten() {
        mittig_zeichnen(b_, (r_.links + r_.rechts) / 2, b_.hoehe() - 6 - zeile_,
                        i_.achse.zahlen() ? i_.achse.titel : i_.einheit);
    }

    const Kurvenbild& i_;
    Zeichenflaeche& b_;
    Achsenteilung werte_;
    Bildrahmen r_;
    double zeile_ = 0;  ///< height of a line of text
    double namen_ = 0;  ///< width of the names of the curves
};

class Zahlenkurven : private Kurvenzeichner {
  public:
    Zahlenkurven(const Kurvenbild& inhalt, Zeichenflaeche& bild) : Kurvenzeichner(inhalt, bild) {
        const double zahlen = breitester(b_, strichzahlen(werte_, werte_.striche()));
        r_ = {.links = 16 + zahlen,
              .oben = rand_oben,
              .rechts = b_.breite() - namen_ - 34,
              .unten = b_.hoehe() - rand_unten};
        const std::vector<double>& x = i_.achse.werte;
        const bool einzeln = x.size() < 2;
        const Achsenteilung stellen(x.front(), x.back(), striche_hoechstens);
        x_ = {.von = einzeln ? stellen.unten() : x.front(),
              .bis = einzeln ? stellen.oben() : x.back(),
              .pixel = r_.links,
              .laenge = r_.rechts - r_.links};
        y_ = {.von = werte_.unten(), .bis = werte_.oben(), .pixel = r_.unten, .laenge = r_.oben - r_.unten};
    }

    void zeichne() {
        wertachse();
        stellenachse();
        basis();
        for (std::size_t k = 0; k < i_.kurven.size(); ++k)
            kurve(k);
        namen();
    }

  private:
    void wertachse() {
        for (double strich = werte_.unten(); strich < werte_.oben() + werte_.schritt() / 2;
             strich += werte_.schritt()) {
            const double y = y_.ort(strich);
            b_.linie(r_.links, y, r_.rechts + 1, y, bildstil::gitter);
            rechtsbuendig_zeichnen(b_, r_.links - 6, y - zeile_ / 2, werte_.zahl(strich));
        }
        b_.text(einheit_links, r_.oben - 10 - zeile_, i_.einheit);
    }

    void stellenachse() {
        const Achsenteilung teilung(x_.von, x_.bis, 2 * striche_hoechstens);
        const auto ort = [this](double wert) { return x_.ort(wert); };
        const auto platz = [this](const std::string& text) { return b_.textbreite(text) + 8; };
        for (const auto& [wert, text] : achsenstriche(i_.achse, teilung, ort, platz)) {
            const double x = x_.ort(wert);
            b_.linie(x, r_.unten, x, r_.unten + 5, bildstil::achse);
            mittig_zeichnen(b_, x, r_.unten + 6, text);
        }
        b_.linie(r_.links, r_.unten, r_.rechts + 1, r_.unten, bildstil::achse);
        b_.linie(r_.links, r_.oben, r_.links, r_.unten + 1, bildstil::achse);
        titel_unten();
    }

    [[nodiscard]] bool basis_sichtbar() const {
        return i_.achse.basis && *i_.achse.basis >= x_.von && *i_.achse.basis <= x_.bis;
    }

    void basis() {
        if (!basis_sichtbar()) return;
        constexpr double strich = 4;
        const double x = x_.ort(*i_.achse.basis);
        for (double y = r_.oben; y < r_.unten; y += 2 * strich)
            b_.linie(x, y, x, std::min(y + strich, r_.unten), bildstil::achse);
        const double breite = b_.textbreite(i_.basisname);
        const double neben_einheit = std::max(r_.links, 2 * einheit_links + b_.textbreite(i_.einheit));
        b_.text(std::clamp(x - breite / 2, neben_einheit, std::max(neben_einheit, r_.rechts - breite)),
                r_.oben - 10 - zeile_, i_.basisname);
    }

    void kurve(std::size_t k) {
        constexpr double platz = 9;  // between points that are marked each
        const Kurve& kurve = i_.kurven[k];
        const bool alle = (r_.rechts - r_.links) / static_cast<double>(i_.achse.anzahl()) >= platz;
        std::vector<Ort> stueck;
        const auto beende = [&] {
            linienzug_zeichnen(b_, stueck, farbe(k), 1.8);
            for (std::size_t n = 0; n < stueck.size() && (alle || stueck.size() == 1); ++n)
                b_.kreis(stueck[n].x, stueck[n].y, 2, farbe(k), farbe(k));
            stueck.clear();
        };
        for (std::size_t n = 0; n < kurve.werte.size(); ++n) {
            if (!std::isfinite(kurve.werte[n])) {
                beende();
            } else {
                stueck.push_back({x_.ort(i_.achse.werte[n]), y_.ort(kurve.werte[n])});
            }
        }
        beende();
        if (basis_sichtbar() && std::isfinite(kurve.basis))
            b_.kreis(x_.ort(*i_.achse.basis), y_.ort(kurve.basis), 4, farbe(k), farben::weiss);
    }

    /// The name of each curve at the height of its last point, or as near to it as its neighbours let it.
    void namen() {
        struct Eintrag {
            std::size_t kurve;
            Ort ende;
            double y;
        };
        std::vector<Eintrag> eintraege;
        for (std::size_t k = 0; k < i_.kurven.size(); ++k) {
            const std::vector<double>& werte = i_.kurven[k].werte;
            for (std::size_t n = werte.size(); n-- > 0;) {
                if (!std::isfinite(werte[n])) continue;
                const Ort ende{x_.ort(i_.achse.werte[n]), y_.ort(werte[n])};
                eintraege.push_back({k, ende, ende.y});
                break;
            }
        }
        std::ranges::stable_sort(eintraege, {}, &Eintrag::y);
        for (std::size_t n = 1; n < eintraege.size(); ++n)
            eintraege[n].y = std::max(eintraege[n].y, eintraege[n - 1].y + eintragshoehe);
        double grenze = r_.unten;
        for (std::size_t n = eintraege.size(); n-- > 0; grenze = eintraege[n].y - eintragshoehe)
            eintraege[n].y = std::min(eintraege[n].y, grenze);
        for (const Eintrag& e : eintraege) {
            linienzug_zeichnen(b_, std::vector<Ort>{e.ende, {r_.rechts + 4, e.ende.y}}, bildstil::gitter, 1);
            linienzug_zeichnen(b_, std::vector<Ort>{{r_.rechts + 4, e.ende.y}, {r_.rechts + 18, e.y}},
                               farbe(e.kurve), 1);
            b_.text(r_.rechts + 22, e.y - zeile_ / 2, kuerzen(i_.kurven[e.kurve].name, namen_, b_),
                    farbe(e.kurve));
        }
    }

    Massstab x_{};
    Massstab y_{};
};

class Wahlzeilen : private Kurvenzeichner {
  public:
    Wahlzeilen(const Kurvenbild& inhalt, Zeichenflaeche& bild) : Kurvenzeichner(inhalt, bild) {
        r_ = {.links = 16 + std::min(namensbreite, breitester(b_, i_.achse.namen)),
              .oben = rand_oben,
              .rechts = b_.breite() - namen_ - 44,
              .unten = b_.hoehe() - rand_unten};
        x_ = {.von = werte_.unten(), .bis = werte_.oben(), .pixel = r_.links, .laenge = r_.rechts - r_.links};
    }

    void zeichne() {
        b_.text(6, r_.oben - 8 - zeile_, i_.achse.titel);
        for (std::size_t n = 0; n < i_.achse.anzahl(); ++n)
            zeile(n);
        achse();
        for (std::size_t n = 0; n < i_.achse.anzahl(); ++n) {
            for (std::size_t k = 0; k < i_.kurven.size(); ++k)
                marke(k, x_.ort(i_.kurven[k].werte[n]), mitte(n));
        }
        for (std::size_t k = 0; k < i_.kurven.size(); ++k) {
            const double y = r_.oben + eintragshoehe * (static_cast<double>(k) + 0.5);
            marke(k, r_.rechts + 26, y);
            b_.text(r_.rechts + 36, y - zeile_ / 2, kuerzen(i_.kurven[k].name, namen_, b_), farbe(k));
        }
    }

  private:
    [[nodiscard]] double mitte(std::size_t n) const {
        return r_.oben + zeilenhoehe * (static_cast<double>(n) + 0.5);
    }

    void zeile(std::size_t n) {
        constexpr Farbe hinterlegt{255, 243, 200};
        const bool basis = i_.achse.basis == static_cast<double>(n);
        if (basis)
            b_.flaeche(2, mitte(n) - zeilenhoehe / 2 + 1, r_.rechts, mitte(n) + zeilenhoehe / 2 - 1,
                       hinterlegt);
        b_.linie(r_.links, mitte(n), r_.rechts, mitte(n), bildstil::gitter);
        rechtsbuendig_zeichnen(b_, r_.links - 8, mitte(n) - zeile_ / 2,
                               kuerzen(i_.achse.namen[n], namensbreite, b_));
    }

    void achse() {
        for (double strich = x_.von; strich < x_.bis + werte_.schritt() / 2; strich += werte_.schritt()) {
            const double x = x_.ort(strich);
            b_.linie(x, r_.oben, x, r_.unten + 5, bildstil::gitter);
            mittig_zeichnen(b_, x, r_.unten + 6, werte_.zahl(strich));
        }
        b_.linie(r_.links, r_.unten, r_.rechts + 1, r_.unten, bildstil::achse);
        b_.linie(r_.links, r_.oben, r_.links, r_.unten, bildstil::achse);
        titel_unten();
    }

    /// Neighbouring quantities have marks of different shape.
    void marke(std::size_t k, double x, double y) {
        constexpr double halb = 4;
        if (!std::isfinite(x)) return;
        if (k % 2 == 0) {
            b_.kreis(x, y, halb, farbe(k), farbe(k));
        } else {
            b_.flaeche(x - halb + 1, y - halb + 1, x + halb - 1, y + halb - 1, farbe(k));
        }
    }

    Massstab x_{};
};

}  // namespace

Achsenteilung kurventeilung(const std::vector<Kurve>& kurven) {
    constexpr double nahe = 0.7;
    double kleinster = std::numeric_limits<double>::infinity();
    double groesster = -kleinster;
    for (const Kurve& kurve : kurven) {
        for (const double wert : kurve.werte) {
            if (!std::isfinite(wert)) continue;
            kleinster = std::min(kleinster, wert);
            groesster = std::max(groesster, wert);
        }
    }
    if (kleinster > groesster) return {0, 1, striche_hoechstens};
    if (kleinster >= 0 && kleinster <= nahe * groesster) kleinster = 0;
    if (groesster <= 0 && groesster >= nahe * kleinster) groesster = 0;
    return {kleinster, groesster, striche_hoechstens};
}

double kurvenhoehe(const Kurvenbild& inhalt) {
    if (inhalt.achse.zahlen()) return 380;
    return rand_oben + rand_unten +
           std::max(zeilenhoehe * static_cast<double>(inhalt.achse.anzahl()),
                    eintragshoehe * static_cast<double>(inhalt.kurven.size()));
}

void KurvenZeichnen(const Kurvenbild& inhalt, Zeichenflaeche& bild) {
    if (inhalt.achse.zahlen()) {
        Zahlenkurven(inhalt, bild).zeichne();
    } else {
        Wahlzeilen(inhalt, bild).zeichne();
    }
}

}  // namespace velmaris
