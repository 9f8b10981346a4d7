#include "studies/bildseite.h"

#include "charts/kurvenbild.h"
#include "charts/kurvenfarben.h"
#include "charts/rasterbild.h"
#include "studies/bildachsen.h"
#include "studies/ergebnisnamen.h"
#include "studies/seite.h"
#include "toolkit/auszeichnung.h"
#include "toolkit/zahlen.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <optional>
#include <span>
#include <utility>

namespace velmaris {
namespace {

constexpr double bildbreite = 900;
constexpr std::size_t hoechste_tabellenzeilen = 150;
constexpr std::size_t hoechste_tabellenspalten = 15;
constexpr std::size_t hoechste_rasterzeilen = 60;
constexpr std::size_t wahlen_je_bild = 40;
constexpr std::size_t feinstes_raster = 360;  ///< cells along an axis that surely have a pixel each

/// Decimals that give the largest number four digits; whole numbers have none.
int nachkommastellen(const std::vector<double>& werte) {
    double groesster = 0;
    bool ganz = true;
    for (const double wert : werte) {
        if (!std::isfinite(wert)) continue;
        groesster = std::max(groesster, std::fabs(wert));
        ganz = ganz && wert == std::floor(wert);
    }
    if (ganz) return 0;
    return std::clamp(3 - static_cast<int>(std::floor(std::log10(groesster))), 0, 6);
}

/// The page of a study, picture by picture.
class Bildseite {
  public:
    Bildseite(const Studienbild& studie, const std::string& projekt, std::string_view sprache)
        : s_(studie),
          projekt_(projekt),
          seite_(std::string(sprache), {"Velmaris - Studie", "Velmaris - study"}),
          b_(studie, sprache),
          x_(b_.achsen().front()) {}

    std::string html() {
        kopf();
        if (b_.leer()) {
            seite_.absatz(wort({"Keine Zeile konnte gerechnet werden.", "No row could be calculated."}));
        } else if (b_.achsen().size() == 1) {
            kurven();
        } else {
            for (std::size_t e = 0; e < s_.ergebnisse().size(); ++e)
                raster(e);
        }
        fehlerhafte();
        return seite_.html();
    }

  private:
    [[nodiscard]] std::string wort(const Wort& w) const { return seite_.wort(w); }

    [[nodiscard]] Ergebnisname name(std::size_t ergebnis) const {
        return ergebnisname(s_.ergebnisse()[ergebnis], seite_.sprache());
    }

    void kopf() {
        std::string text = wort({"Projekt: ", "Project: "}) + element("b", maskiert(projekt_));
        const bool feste_station = std::ranges::none_of(
            s_.eingaben(), [](const Bildeingabe& e) { return e.feld.name == "Klimadatei"; });
        if (feste_station && !s_.station().empty())
            text += wort({", Klimastation: ", ", climate station: "}) + element("b", maskiert(s_.station()));
        seite_.absatz(text);
        seite_.zeile("<ul>");
        for (const Eingabeachse& a : b_.achsen())
            seite_.zeile(element("li", variiert(a)));
        seite_.zeile("</ul>");
        if (s_.nachgegeben() > 0) nachgabe();
    }

    [[nodiscard]] std::string variiert(const Eingabeachse& a) const {
        const std::size_t zahl = a.texte.size();
        std::string text = wort({"Variiert: ", "Varied: "}) + element("b", maskiert(a.name));
        if (a.bild.zahlen() && zahl > 1)
            text += wort({" von ", " from "}) + a.texte.front() + wort({" bis ", " to "}) +
                    maskiert(a.text(zahl - 1));
        if (a.bild.zahlen() && zahl == 1) text += ", " + maskiert(a.text(0));
        const Wort was = a.bild.zahlen()
                             ? (zahl == 1 ? Wort{" Wert)", " value)"} : Wort{" Werte)", " values)"})
                             : Wort{" Möglichkeiten)", " choices)"};
        text += " (" + std::to_string(zahl) + wort(was);
        if (a.gerundet)
            text += wort({"; Werte zwischen den Stellungen des Reglers sind auf die nächste gerundet",
                          "; values between the positions of the slider are rounded to the nearest"});
        if (!a.basis.empty()) text += wort({"; Ausgangsfall: ", "; base: "}) + maskiert(a.basis);
        return text;
    }

    /// Of rows whose inputs cannot all be as they were asked for.
    void nachgabe() {
        const Nachgabe& n = *s_.nachgabe();
        const Scrollzeile& regler = *s_.eingaben()[n.eingabe].groesse->regler;
        const auto zahl = [&](double wert) {
            return maskiert(mit_einheit(muster(wert, regler.stellen), std::string(regler.einheit)));
        };
        seite_.absatz(std::to_string(s_.nachgegeben()) +
                      wort({"-mal hat eine Eingabe einer anderen nachgegeben (zuerst: gefragt ",
                            " times an input gave way to another one (at first: asked for "}) +
                      zahl(n.gefragt) + wort({", gerechnet ", ", calculated "}) + zahl(n.gerechnet) +
                      wort({"); gezeichnet ist, wonach gefragt war.", "); drawn is what was asked for."}));
    }

    static std::string titel(const Ergebnisname& ergebnis) {
        return ergebnis.name + (ergebnis.einheit.empty() ? "" : ", ") + ergebnis.einheit;
    }

    void kurven() {
        std::vector<std::string> einheiten;
        for (std::size_t e = 0; e < s_.ergebnisse().size(); ++e) {
            if (std::ranges::find(einheiten, name(e).einheit) == einheiten.end())
                einheiten.push_back(name(e).einheit);
        }
        for (const std::string& einheit : einheiten) {
            std::vector<std::size_t> gruppe;
            for (std::size_t e = 0; e < s_.ergebnisse().size(); ++e) {
                if (name(e).einheit == einheit) gruppe.push_back(e);
            }
            const std::span<const std::size_t> alle(gruppe);
            for (std::size_t von = 0; von < alle.size(); von += kurvenfarben.size())
                kurven(einheit, alle.subspan(von, std::min(kurvenfarben.size(), alle.size() - von)));
        }
    }

    /// A chart of results of one unit, and their numbers.
    void kurven(const std::string& einheit, std::span<const std::size_t> ergebnisse) {
        Kurvenbild inhalt{
            .achse = x_.bild, .einheit = einheit, .basisname = wort({"Ausgangsfall", "base"}), .kurven = {}};
        for (const std::size_t e : ergebnisse)
            inhalt.kurven.push_back(
                {name(e).name, b_.werte(e), s_.basis() ? s_.basis()->ergebnisse[e] : kurvenluecke});
        const std::string ueberschrift = ergebnisse.size() == 1 ? titel(name(ergebnisse[0]))
                                         : einheit.empty()
                                             ? wort({"Ergebnisse", "Results"})
                                             : wort({"Ergebnisse in ", "Results in "}) + einheit;
        seite_.zeile(element("h2", maskiert(ueberschrift)));
        if (x_.bild.zahlen()) {
            zeichne(inhalt);
        } else {
            wahlen_zeichnen(inhalt);
        }
        basissatz(ergebnisse);
        zahlentabelle(ergebnisse);
    }

    void zeichne(const Kurvenbild& inhalt) {
        seite_.zeile(element("figure", bild(bildbreite, kurvenhoehe(inhalt),
                                            [&](Zeichenflaeche& b) { KurvenZeichnen(inhalt, b); })));
    }

    /// Many choices stand in several pictures of one scale, so that they find room on a sheet.
    void wahlen_zeichnen(const Kurvenbild& inhalt) {
        const auto ausschnitt = [](const auto& alle, std::size_t von, std::size_t zahl) {
            const auto anfang = alle.begin() + static_cast<std::ptrdiff_t>(von);
            return std::vector(anfang, anfang + static_cast<std::ptrdiff_t>(zahl));
        };
        const std::size_t alle = inhalt.achse.anzahl();
        for (std::size_t von = 0; von < alle; von += wahlen_je_bild) {
            const std::size_t zahl = std::min(wahlen_je_bild, alle - von);
            Kurvenbild teil = inhalt;
            teil.teilung = kurventeilung(inhalt.kurven);
            teil.achse.namen = ausschnitt(inhalt.achse.namen, von, zahl);
            if (teil.achse.basis) *teil.achse.basis -= static_cast<double>(von);
            for (Kurve& kurve : teil.kurven)
                kurve.werte = ausschnitt(kurve.werte, von, zahl);
            zeichne(teil);
        }
    }

    void basissatz(std::span<const std::size_t> ergebnisse) {
        if (!s_.basis()) return;
        std::string text = wort({"Ausgangsfall, ", "Base, "}) + maskiert(x_.basis) + ": ";
        for (const std::size_t e : ergebnisse) {
            std::vector<double> alle = b_.werte(e);
            alle.push_back(s_.basis()->ergebnisse[e]);
            if (e != ergebnisse.front()) text += "; ";
            text += maskiert(name(e).name) + " " + element("b", muster(alle.back(), nachkommastellen(alle)));
        }
        seite_.absatz(text + ".");
        if (const auto& basis = x_.bild.basis;
            x_.bild.zahlen() && (*basis < x_.bild.werte.front() || *basis > x_.bild.werte.back()))
            seite_.absatz(
                wort({"Er liegt neben dem Bereich des Bildes.", "It lies beside the range of the picture."}));
    }

    void zahlentabelle(std::span<const std::size_t> ergebnisse) {
        const Eingabeachse& a = x_;
        if (a.texte.size() > hoechste_tabellenzeilen) {
            zu_viele_zahlen();
            return;
        }
        std::vector<std::string> kopf{maskiert(a.bild.titel)};
        std::vector<std::vector<Zelle>> zeilen;
        for (const std::string& text : a.texte)
            zeilen.push_back({{maskiert(text), ""}});
        std::string id = "zahlen";
        for (const std::size_t e : ergebnisse) {
            kopf.push_back(maskiert(name(e).name) + element("small", maskiert(name(e).einheit)));
            id += "-" + s_.ergebnisse()[e].name;
            const std::vector<double> alle = b_.werte(e);
            for (std::size_t n = 0; n < alle.size(); ++n)
                zeilen[n].push_back({zahlzelle(alle[n], nachkommastellen(alle)), ""});
        }
        seite_.tabelle(id, kopf, zeilen);
    }

    [[nodiscard]] static std::string zahlzelle(double wert, int stellen) {
        return std::isfinite(wert) ? muster(wert, stellen) : "-";
    }

    void zu_viele_zahlen() {
        seite_.absatz(wort({"Für eine Tabelle sind es hier zu viele Zahlen; --ausgabe schreibt sie.",
                            "There are too many numbers for a table here; --ausgabe writes them."}));
    }

    /// The picture of a result over both inputs, its smallest and largest value, and its numbers.
    void raster(std::size_t e) {
        const Ergebnisname ergebnis = name(e);
        const Rasterbild inhalt{.waagerecht = x_.bild,
                                .senkrecht = b_.achsen()[1].bild,
                                .werte = b_.werte(e),
                                .einheit = ergebnis.einheit,
                                .basisname = wort({"Ausgangsfall", "base"})};
        seite_.zeile(element("h2", maskiert(titel(ergebnis))));
        const int stellen = nachkommastellen(inhalt.werte);
        if (ist_eben(inhalt.werte)) {
            ueberall_gleich(inhalt.werte, stellen, ergebnis.einheit);
        } else {
            seite_.zeile(element("figure", bild(bildbreite, rasterhoehe(inhalt),
                                                [&](Zeichenflaeche& b) { RasterZeichnen(inhalt, b); })));
            spaltennamen();
            enden(inhalt.werte, stellen, ergebnis.einheit);
        }
        if (s_.basis())
            seite_.absatz(wort({"Ausgangsfall, ", "Base, "}) + maskiert(x_.basis) + ", " +
                          maskiert(b_.achsen()[1].basis) + ": " +
                          element("b", mit_einheit(muster(s_.basis()->ergebnisse[e], stellen),
                                                   maskiert(ergebnis.einheit))) +
                          ".");
        if (std::max(x_.texte.size(), b_.achsen()[1].texte.size()) > feinstes_raster)
            seite_.absatz(
                wort({"Es sind mehr Kombinationen als Bildpunkte: jeder Punkt zeigt die unter "
                      "seiner Mitte, die Linien folgen allen.",
                      "There are more combinations than dots of the picture: each dot shows the "
                      "one under its centre, the lines follow all."}));
        rastertabelle(e, inhalt.werte, stellen);
    }

    void ueberall_gleich(const std::vector<double>& werte, int stellen, const std::string& einheit) {
        const auto erster = std::ranges::find_if(werte, [](double w) { return std::isfinite(w); });
        seite_.absatz(wort({"Überall gleich: ", "The same everywhere: "}) +
                      element("b", mit_einheit(muster(*erster, stellen), maskiert(einheit))) + ".");
    }

    void enden(const std::vector<double>& werte, int stellen, const std::string& einheit) {
        std::size_t kleinster = werte.size(), groesster = werte.size();
        for (std::size_t n = 0; n < werte.size(); ++n) {
            if (!std::isfinite(werte[n])) continue;
            if (kleinster == werte.size() || werte[n] < werte[kleinster]) kleinster = n;
            if (groesster == werte.size() || werte[n] > werte[groesster]) groesster = n;
        }
        const auto wert = [&](std::size_t n) {
            const bool mehrere = std::ranges::count(werte, werte[n]) > 1;
            return element("b", mit_einheit(muster(werte[n], stellen), maskiert(einheit))) + " (" +
                   (mehrere ? wort({"zum Beispiel ", "for example "}) : "") + maskiert(b_.ort(n)) + ")";
        };
        seite_.absatz(wort({"Kleinster Wert ", "Smallest value "}) + wert(kleinster) +
                      wort({", größter ", ", largest "}) + wert(groesster) + ".");
    }

    /// Choices below the columns, which the picture may have as numbers.
    void spaltennamen() {
        if (x_.bild.zahlen()) return;
        std::string text = wort({"Spalten: ", "Columns: "});
        for (std::size_t i = 0; i < x_.texte.size(); ++i)
            text += (i > 0 ? ", " : "") + std::to_string(i + 1) + " " + maskiert(x_.texte[i]);
        seite_.absatz(text + ".");
    }

    void rastertabelle(std::size_t e, const std::vector<double>& werte, int stellen) {
        const Eingabeachse &x = x_, &y = b_.achsen()[1];
        if (x.texte.size() > hoechste_tabellenspalten || y.texte.size() > hoechste_rasterzeilen) {
            zu_viele_zahlen();
            return;
        }
        std::vector<std::string> kopf{maskiert(y.bild.titel) + " \\ " + maskiert(x.bild.titel)};
        for (const std::string& text : x.texte)
            kopf.push_back(maskiert(text));
        std::vector<std::vector<Zelle>> zeilen;
        for (std::size_t k = 0; k < y.texte.size(); ++k) {
            std::vector<Zelle>& zeile = zeilen.emplace_back(std::vector<Zelle>{{maskiert(y.texte[k]), ""}});
            for (std::size_t i = 0; i < x.texte.size(); ++i)
                zeile.push_back({zahlzelle(werte[k * x.texte.size() + i], stellen), ""});
        }
        seite_.tabelle("zahlen-" + s_.ergebnisse()[e].name, kopf, zeilen);
    }

    void fehlerhafte() {
        if (s_.fehlerhafte() == 0) return;
        seite_.abschnitt({"Zeilen ohne Ergebnis", "Rows without a result"});
        seite_.zeile("<ul>");
        for (const Bildfehler& f : s_.fehler())
            seite_.zeile(element("li", wort({"Zeile ", "Row "}) + std::to_string(f.nummer) + " (" +
                                           maskiert(f.zeile) + "): " + maskiert(f.grund)));
        seite_.zeile("</ul>");
        if (s_.fehlerhafte() > s_.fehler().size())
            seite_.absatz(wort({"Insgesamt: ", "Altogether: "}) + std::to_string(s_.fehlerhafte()) + ".");
    }

    static constexpr double kurvenluecke = std::numeric_limits<double>::quiet_NaN();

    const Studienbild& s_;
    const std::string& projekt_;
    Seite seite_;
    Bildachsen b_;
    const Eingabeachse& x_;  ///< along which curves and columns stand
};

}  // namespace

std::string bildseite(const Studienbild& bild, const std::string& projekt, std::string_view sprache) {
    return Bildseite(bild, projekt, sprache).html();
}

}  // namespace velmaris
