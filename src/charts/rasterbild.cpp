#include "charts/rasterbild.h"

#include "charts/konturbild.h"
#include "charts/rasterachse.h"
#include "toolkit/kuerzen.h"
#include "toolkit/zahlen.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>

namespace velmaris {
namespace {

constexpr double namensbreite = 260;
constexpr double zeilenhoehe = 22;  ///< of a choice
constexpr double rand_oben = 26;
constexpr double rand_unten = 44;
constexpr int farbstufen = 64;
constexpr int konturen_hoechstens = 10;
constexpr double basisabstand = 10;  ///< of its name from its mark
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

    /// The base's mark and name keep free of numbers.
    void konturen() {
        std::vector<Ort> belegt;
        if (const auto ort = basisort())
            belegt = {*ort, {ort->x + (basistext_rechts(*ort) ? 1 : -1) * basisabstand * 3, ort->y}};
        konturen_zeichnen(b_, {x_.werte(), y_.werte(), i_.werte}, teilung_, r_,
                          {[this](const Ort& o) {
                               return Ort{x_.ort(o.x), y_.ort(o.y)};
                           },
                           belegt});
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
            senkrechte_zahl(static_cast<double>(i), kuerzen(namen[i], namensbreite, b_));
    }

    [[nodiscard]] std::optional<Ort> basisort() const {
        const std::optional<double>&x = i_.waagerecht.basis, &y = i_.senkrecht.basis;
        if (!x || !y || !x_.enthaelt(*x) || !y_.enthaelt(*y)) return std::nullopt;
        return Ort{x_.ort(*x), y_.ort(*y)};
    }

    [[nodiscard]] bool basistext_rechts(const Ort& ort) const {
        return ort.x + basisabstand + b_.textbreite(i_.basisname) < r_.rechts;
    }

    void basis() {
        const std::optional<Ort> ort = basisort();
        if (!ort) return;
        b_.kreis(ort->x, ort->y, 6, farben::weiss, std::nullopt);
        b_.kreis(ort->x, ort->y, 5, farben::schwarz, farben::weiss);
        b_.kreis(ort->x, ort->y, 1.5, farben::schwarz, farben::schwarz);
        Schrift schrift = bildstil::schrift;
        schrift.hof = farben::weiss;
        schrift.fett = true;
        b_.schrift(schrift);
        b_.text(basistext_rechts(*ort) ? ort->x + basisabstand
                                       : ort->x - basisabstand - b_.textbreite(i_.basisname),
                std::clamp(ort->y - zeile_ / 2, r_.oben + 2, r_.unten - zeile_ - 2), i_.basisname);
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
