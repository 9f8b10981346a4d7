#include "charts/rasterbild.h"

#include "toolkit/zahlen.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <utility>

namespace velmaris {
namespace {

constexpr double namensbreite = 260;
constexpr double zeilenhoehe = 22;  ///< of a choice
constexpr double rand_oben = 26;
constexpr double rand_unten = 44;
constexpr int farbstufen = 64;
constexpr int konturen_hoechstens = 10;
constexpr Farbe luecke{215, 215, 215};

/// The finite values' range.
struct Spanne {
    double kleinster = std::numeric_limits<double>::infinity();
    double groesster = -std::numeric_limits<double>::infinity();
};

Spanne spanne(const std::vector<double>& werte) {
    Spanne s;
    for (const double wert : werte) {
        if (!std::isfinite(wert)) continue;
        s.kleinster = std::min(s.kleinster, wert);
        s.groesster = std::max(s.groesster, wert);
    }
    return s;
}

/// An axis on pixels: where its places lie and where its cells end. Cells of numbers meet half way between
/// them, those of choices are of one size.
class Rasterachse {
  public:
    /// From pixel `anfang` on, of `laenge` pixels; a negative one leads upward.
    Rasterachse(const Bildachse& achse, double anfang, double laenge) : anfang_(anfang), laenge_(laenge) {
        werte_ = achse.werte;
        if (!achse.zahlen()) {
            werte_.resize(achse.anzahl());
            std::iota(werte_.begin(), werte_.end(), 0.0);
        }
        const std::size_t n = werte_.size();
        const double einzeln = n > 1 ? 0 : std::max(std::fabs(werte_[0]), 1.0) / 2;
        grenzen_.push_back(n > 1 ? werte_[0] - (werte_[1] - werte_[0]) / 2 : werte_[0] - einzeln);
        for (std::size_t i = 1; i < n; ++i)
            grenzen_.push_back((werte_[i - 1] + werte_[i]) / 2);
        grenzen_.push_back(n > 1 ? werte_[n - 1] + (werte_[n - 1] - werte_[n - 2]) / 2 : werte_[0] + einzeln);
    }

    [[nodiscard]] double ort(double wert) const {
        return anfang_ + (wert - grenzen_.front()) / (grenzen_.back() - grenzen_.front()) * laenge_;
    }
    [[nodiscard]] bool enthaelt(double wert) const {
        return wert >= grenzen_.front() && wert <= grenzen_.back();
    }
    [[nodiscard]] const std::vector<double>& werte() const { return werte_; }
    [[nodiscard]] double von() const { return grenzen_.front(); }
    [[nodiscard]] double bis() const { return grenzen_.back(); }

    /// Each cell that has the centre of a pixel, with its first and last one.
    struct Zelle {
        std::size_t stelle;
        int erster, letzter;
    };
    [[nodiscard]] std::vector<Zelle> zellen() const {
        std::vector<Zelle> alle;
        for (std::size_t i = 0; i < werte_.size(); ++i) {
            const double a = std::min(ort(grenzen_[i]), ort(grenzen_[i + 1]));
            const double b = std::max(ort(grenzen_[i]), ort(grenzen_[i + 1]));
            const int erster = static_cast<int>(std::ceil(a - 0.5));
            const int letzter = static_cast<int>(std::ceil(b - 0.5)) - 1;
            if (erster <= letzter) alle.push_back({i, erster, letzter});
        }
        return alle;
    }

  private:
    double anfang_;
    double laenge_;
    std::vector<double> werte_;
    std::vector<double> grenzen_;
};

class Rasterzeichner {
  public:
    Rasterzeichner(const Rasterbild& inhalt, Zeichenflaeche& bild)
        : i_(inhalt),
          b_(bild),
          spanne_(spanne(inhalt.werte)),
          teilung_(spanne_.kleinster, spanne_.groesster, konturen_hoechstens),
          r_(rahmen()),
          x_(inhalt.waagerecht, r_.links, r_.rechts - r_.links),
          y_(senkrecht()) {}

    void zeichne() {
        zellen();
        if (i_.waagerecht.zahlen() && i_.senkrecht.zahlen()) konturen();
        achsen();
        basis();
        farbleiste();
    }

  private:
    Bildrahmen rahmen() {
        b_.Cls();
        b_.schrift(bildstil::schrift);
        zeile_ = b_.texthoehe("0");
        const Bildachse& s = i_.senkrecht;
        const double beschriftung = s.zahlen()
                                        ? std::max(b_.textbreite(muster(s.werte.front(), s.nachkomma + 1)),
                                                   b_.textbreite(muster(s.werte.back(), s.nachkomma + 1)))
                                        : std::min(namensbreite, breitester(b_, s.namen));
        const double leiste = breitester(b_, strichzahlen(teilung_, teilung_.striche()));
        return {.links = std::round(16 + beschriftung),
                .oben = rand_oben,
                .rechts = std::round(b_.breite() - 70 - std::max(leiste, b_.textbreite(i_.einheit) - 24)),
                .unten = b_.hoehe() - rand_unten};
    }

    /// Numbers rise upward, choices stand in their order from the top.
    [[nodiscard]] Rasterachse senkrecht() const {
        const double hoehe = r_.unten - r_.oben;
        return i_.senkrecht.zahlen() ? Rasterachse(i_.senkrecht, r_.unten, -hoehe)
                                     : Rasterachse(i_.senkrecht, r_.oben, hoehe);
    }

    [[nodiscard]] double anteil(double wert) const {
        return (wert - spanne_.kleinster) / (spanne_.groesster - spanne_.kleinster);
    }

    /// Runs of one colour, and colour by colour, so that a file of the picture stays small.
    void zellen() {
        struct Lauf {
            int links, oben, rechts, unten;
        };
        std::array<std::vector<Lauf>, farbstufen + 1> laeufe;
        const std::vector<Rasterachse::Zelle> spalten = x_.zellen();
        for (const Rasterachse::Zelle& zeile : y_.zellen()) {
            std::size_t vorige = laeufe.size();
            for (const Rasterachse::Zelle& spalte : spalten) {
                const std::size_t stufe = farbstufe(spalte.stelle, zeile.stelle);
                if (stufe != vorige)
                    laeufe.at(stufe).push_back({spalte.erster, zeile.erster, spalte.letzter, zeile.letzter});
                laeufe.at(stufe).back().rechts = spalte.letzter;
                vorige = stufe;
            }
        }
        for (std::size_t stufe = 0; stufe < laeufe.size(); ++stufe) {
            const Farbe farbe =
                stufe == farbstufen ? luecke : rasterfarbe(static_cast<double>(stufe) / (farbstufen - 1));
            for (const Lauf& lauf : laeufe.at(stufe))
                b_.flaeche(lauf.links, lauf.oben, lauf.rechts, lauf.unten, farbe);
        }
        luecken(spalten);
    }

    [[nodiscard]] std::size_t farbstufe(std::size_t i, std::size_t k) const {
        const double wert = i_.werte[k * i_.waagerecht.anzahl() + i];
        if (!std::isfinite(wert)) return farbstufen;
        return static_cast<std::size_t>(
            std::min(std::floor(anteil(wert) * farbstufen), double{farbstufen - 1}));
    }

    void luecken(const std::vector<Rasterachse::Zelle>& spalten) {
        constexpr int kleinste = 7;  // cell in which a cross can be told
        for (const Rasterachse::Zelle& y : y_.zellen()) {
            for (const Rasterachse::Zelle& x : spalten) {
                if (farbstufe(x.stelle, y.stelle) != farbstufen || x.letzter - x.erster < kleinste ||
                    y.letzter - y.erster < kleinste)
                    continue;
                b_.linie(x.erster, y.erster, x.letzter, y.letzter, bildstil::achse);
                b_.linie(x.erster, y.letzter, x.letzter, y.erster, bildstil::achse);
            }
        }
    }

    void konturen() {
        const Wertegitter gitter{x_.werte(), y_.werte(), i_.werte};
        struct Marke {
            Ort ort;
            std::string text;
        };
        std::vector<Marke> marken;
        for (const double niveau : teilung_.striche()) {
            for (std::vector<Ort>& linie : konturlinien(gitter, niveau)) {
                for (Ort& ort : linie)
                    ort = {x_.ort(ort.x), y_.ort(ort.y)};
                linienzug_zeichnen(b_, linie, farben::weiss, 2.6);
                linienzug_zeichnen(b_, linie, farben::schwarz, 1.1);
                const std::string text = teilung_.zahl(niveau);
                const auto frei = [&](const Ort& ort) {
                    return std::ranges::all_of(marken, [&](const Marke& m) {
                        return std::fabs(m.ort.x - ort.x) > 50 || std::fabs(m.ort.y - ort.y) > 16;
                    });
                };
                if (const auto ort = markenort(linie, b_.textbreite(text), frei))
                    marken.push_back({*ort, text});
            }
        }
        Schrift schrift = bildstil::schrift;
        schrift.hof = farben::weiss;
        b_.schrift(schrift);
        for (const Marke& m : marken)
            mittig_zeichnen(b_, m.ort.x, m.ort.y - zeile_ / 2, m.text);
        b_.schrift(bildstil::schrift);
    }

    /// A place in the line with room for the number, near to its middle; nothing in a short line.
    template <class Frei>
    [[nodiscard]] std::optional<Ort> markenort(const std::vector<Ort>& linie, double breite,
                                               const Frei& frei) const {
        std::vector<double> wege{0};
        for (std::size_t i = 1; i < linie.size(); ++i)
            wege.push_back(wege.back() +
                           std::hypot(linie[i].x - linie[i - 1].x, linie[i].y - linie[i - 1].y));
        if (wege.back() < 2 * breite) return std::nullopt;
        for (const double anteil : {0.5, 0.4, 0.6, 0.3, 0.7, 0.2, 0.8}) {
            const auto ende = std::ranges::lower_bound(wege, anteil * wege.back());
            const Ort& ort = linie[static_cast<std::size_t>(ende - wege.begin())];
            const bool innen = ort.x - breite / 2 > r_.links + 2 && ort.x + breite / 2 < r_.rechts - 2 &&
                               ort.y - zeile_ / 2 > r_.oben + 2 && ort.y + zeile_ / 2 < r_.unten - 2;
            if (innen && frei(ort)) return ort;
        }
        return std::nullopt;
    }

    void achsen() {
        if (i_.waagerecht.zahlen()) {
            zahlen_waagerecht();
        } else {
            namen_waagerecht();
        }
        if (i_.senkrecht.zahlen()) {
            zahlen_senkrecht();
        } else {
            namen_senkrecht();
        }
        b_.kasten(r_.links - 1, r_.oben - 1, r_.rechts, r_.unten, bildstil::achse);
        b_.text(6, r_.oben - 8 - zeile_, i_.senkrecht.titel);
        mittig_zeichnen(b_, (r_.links + r_.rechts) / 2, b_.hoehe() - 6 - zeile_, i_.waagerecht.titel);
    }

    void senkrechte_zahl(double wert, const std::string& text) {
        const double y = y_.ort(wert);
        b_.linie(r_.links - 6, y, r_.links - 1, y, bildstil::achse);
        rechtsbuendig_zeichnen(b_, r_.links - 8, y - zeile_ / 2, text);
    }

    void zahlen_senkrecht() {
        const Achsenteilung teilung(y_.von(), y_.bis(), konturen_hoechstens);
        const auto ort = [this](double wert) { return y_.ort(wert); };
        const auto platz = [this](const std::string&) { return zeile_ + 2; };
        for (const auto& [wert, text] : achsenstriche(i_.senkrecht, teilung, ort, platz))
            senkrechte_zahl(wert, text);
    }

    void zahlen_waagerecht() {
        const Achsenteilung teilung(x_.von(), x_.bis(), konturen_hoechstens + 5);
        const auto ort = [this](double wert) { return x_.ort(wert); };
        const auto platz = [this](const std::string& text) { return b_.textbreite(text) + 8; };
        for (const auto& [wert, text] : achsenstriche(i_.waagerecht, teilung, ort, platz)) {
            const double x = x_.ort(wert);
            b_.linie(x, r_.unten + 1, x, r_.unten + 6, bildstil::achse);
            mittig_zeichnen(b_, x, r_.unten + 7, text);
        }
    }

    /// Names where all of them fit below their columns, else their numbers.
    void namen_waagerecht() {
        const std::vector<std::string>& namen = i_.waagerecht.namen;
        const double platz = (r_.rechts - r_.links) / static_cast<double>(namen.size());
        const bool passen = breitester(b_, namen) < platz - 6;
        const auto jeder = static_cast<std::size_t>(std::ceil(24 / std::max(platz, 0.01)));
        for (std::size_t i = 0; i < namen.size(); i += passen ? 1 : jeder)
            mittig_zeichnen(b_, x_.ort(static_cast<double>(i)), r_.unten + 6,
                            passen ? namen[i] : std::to_string(i + 1));
    }

    void namen_senkrecht() {
        const std::vector<std::string>& namen = i_.senkrecht.namen;
        const double platz = (r_.unten - r_.oben) / static_cast<double>(namen.size());
        const auto jeder = static_cast<std::size_t>(std::ceil(zeile_ / platz));
        for (std::size_t i = 0; i < namen.size(); i += jeder)
            senkrechte_zahl(static_cast<double>(i), gekuerzt(b_, namen[i], namensbreite));
    }

    void basis() {
        const std::optional<double>&x = i_.waagerecht.basis, &y = i_.senkrecht.basis;
        if (!x || !y || !x_.enthaelt(*x) || !y_.enthaelt(*y)) return;
        const Ort ort{x_.ort(*x), y_.ort(*y)};
        b_.kreis(ort.x, ort.y, 6, farben::weiss, std::nullopt);
        b_.kreis(ort.x, ort.y, 5, farben::schwarz, farben::weiss);
        b_.kreis(ort.x, ort.y, 1.5, farben::schwarz, farben::schwarz);
        Schrift schrift = bildstil::schrift;
        schrift.hof = farben::weiss;
        schrift.fett = true;
        b_.schrift(schrift);
        const double breite = b_.textbreite(i_.basisname);
        const bool rechts = ort.x + 10 + breite < r_.rechts;
        b_.text(rechts ? ort.x + 10 : ort.x - 10 - breite,
                std::clamp(ort.y - zeile_ / 2, r_.oben + 2, r_.unten - zeile_ - 2), i_.basisname);
        b_.schrift(bildstil::schrift);
    }

    void farbleiste() {
        constexpr double breite = 16;
        const double links = r_.rechts + 24, hoehe = r_.unten - r_.oben;
        const auto y = [&](double teil) { return r_.unten - teil * hoehe; };
        for (int stufe = 0; stufe < farbstufen; ++stufe)
            b_.flaeche(links, std::ceil(y(static_cast<double>(stufe + 1) / farbstufen) - 0.5), links + breite,
                       std::ceil(y(static_cast<double>(stufe) / farbstufen) - 0.5) - 1,
                       rasterfarbe(static_cast<double>(stufe) / (farbstufen - 1)));
        b_.kasten(links - 1, r_.oben - 1, links + breite + 1, r_.unten, bildstil::achse);
        for (const double strich : teilung_.striche()) {
            b_.linie(links + breite + 1, y(anteil(strich)), links + breite + 6, y(anteil(strich)),
                     bildstil::achse);
            b_.text(links + breite + 9, y(anteil(strich)) - zeile_ / 2, teilung_.zahl(strich));
        }
        b_.text(links, r_.oben - 8 - zeile_, i_.einheit);
    }

    const Rasterbild& i_;
    Zeichenflaeche& b_;
    Spanne spanne_;
    Achsenteilung teilung_;
    double zeile_ = 0;  ///< height of a line of text
    Bildrahmen r_;
    Rasterachse x_;
    Rasterachse y_;
};

}  // namespace

Farbe rasterfarbe(double anteil) {
    constexpr std::array<std::array<double, 3>, 5> stuetzen{
        {{255, 251, 214}, {190, 226, 160}, {92, 178, 168}, {40, 116, 168}, {28, 52, 118}}};
    const double lage = std::clamp(anteil, 0.0, 1.0) * (stuetzen.size() - 1);
    const auto i = std::min(static_cast<std::size_t>(lage), stuetzen.size() - 2);
    const double rest = lage - static_cast<double>(i);
    const auto kanal = [&](std::size_t n) {
        return static_cast<std::uint8_t>(
            std::lround(stuetzen.at(i).at(n) * (1 - rest) + stuetzen.at(i + 1).at(n) * rest));
    };
    return {kanal(0), kanal(1), kanal(2)};
}

bool ist_eben(const std::vector<double>& werte) {
    constexpr double rundung = 1e-5;
    const auto [kleinster, groesster] = spanne(werte);
    return !(groesster - kleinster > rundung * std::max(std::fabs(kleinster), std::fabs(groesster)));
}

double rasterhoehe(const Rasterbild& inhalt) {
    constexpr double kleinste = 300, groesste = 900;
    if (inhalt.senkrecht.zahlen()) return 440;
    const double zeilen = zeilenhoehe * static_cast<double>(inhalt.senkrecht.anzahl());
    return rand_oben + rand_unten + std::clamp(zeilen, kleinste, groesste);
}

void RasterZeichnen(const Rasterbild& inhalt, Zeichenflaeche& bild) {
    Rasterzeichner(inhalt, bild).zeichne();
}

}  // namespace velmaris
