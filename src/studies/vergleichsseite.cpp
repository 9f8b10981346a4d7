#include "studies/vergleichsseite.h"

#include "charts/bilanzdiagramme.h"
#include "charts/c_sankey.h"
#include "charts/sankey_heizen.h"
#include "charts/sankey_kuehlen.h"
#include "charts/schema.h"
#include "charts/temperaturdiagramm.h"
#include "toolkit/svg_flaeche.h"
#include "toolkit/zahlen.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <functional>

namespace velmaris {
namespace {

/// The base is black; the others differ in hue and lightness, neighbours most.
constexpr std::array<Farbe, groesster_vergleich> kurvenfarben{{{0, 0, 0},
                                                               {213, 94, 0},
                                                               {0, 114, 178},
                                                               {0, 158, 115},
                                                               {204, 121, 167},
                                                               {230, 159, 0},
                                                               {86, 180, 233},
                                                               {120, 60, 20},
                                                               {110, 80, 180},
                                                               {150, 150, 0},
                                                               {90, 90, 90},
                                                               {240, 60, 60}}};

constexpr std::string_view stil = R"(
body{font:14px/1.4 "Liberation Sans",Arial,Helvetica,sans-serif;color:#1a1a1a;margin:24px auto;max-width:1100px;padding:0 16px}
h1{font-size:24px;color:#1f5fa8;margin:0 0 4px}
h2{font-size:17px;color:#1f5fa8;margin:26px 0 6px;border-bottom:1px solid #c4c8cc;break-after:avoid}
h3{font-size:14px;margin:14px 0 4px;break-after:avoid}
table{border-collapse:collapse;width:100%}
th,td{border-bottom:1px solid #dfe2e5;padding:3px 8px;text-align:right;vertical-align:top}
th:first-child,td:first-child,th:nth-child(2){text-align:left}
th{background:#f0f2f4}
td.einheit{text-align:left;color:#5a6068}
td.text{text-align:left}
td small{display:block;color:#5a6068;white-space:nowrap}
tr{break-inside:avoid}
.reihe{display:flex;flex-wrap:wrap;gap:14px}
figure{margin:0;break-inside:avoid}
figcaption{font-weight:bold;margin-bottom:2px}
figure.fluss{margin-bottom:12px}
svg{border:1px solid #dfe2e5;max-width:100%;height:auto}
.farbe{display:inline-block;width:18px;height:10px;margin:0 5px 0 14px}
@page{size:A4;margin:14mm}
@media print{body{margin:0;max-width:none;padding:0;font-size:11px}}
)";

std::string maskiert(std::string_view text) {
    std::string neu;
    for (const char c : text) {
        switch (c) {
            case '&':
                neu += "&amp;";
                break;
            case '<':
                neu += "&lt;";
                break;
            case '>':
                neu += "&gt;";
                break;
            case '"':
                neu += "&quot;";
                break;
            default:
                neu += c;
        }
    }
    return neu;
}

std::string hex(Farbe farbe) {
    std::array<char, 8> text{};
    std::snprintf(text.data(), text.size(), "#%02x%02x%02x", farbe.r, farbe.g, farbe.b);
    return text.data();
}

std::string element(std::string_view name, std::string_view inhalt, std::string_view klasse = {}) {
    std::string text = "<" + std::string(name);
    if (!klasse.empty()) text.append(" class=\"").append(klasse).append("\"");
    return text.append(">").append(inhalt).append("</").append(name).append(">");
}

std::string bild(double breite, double hoehe, const std::function<void(Zeichenflaeche&)>& zeichnen) {
    SvgFlaeche flaeche(breite, hoehe);
    zeichnen(flaeche);
    return flaeche.svg();
}

/// The page under construction.
class Seite {
  public:
    Seite(Projektreihe projekte, const Vergleich& v, int monat)
        : projekte_(projekte), v_(v), monat_(monat), sprache_(projekte[0]->p.Sprache) {}

    std::string text() {
        zeile("<!DOCTYPE html>\n<html lang=\"" + std::string(wort({"de", "en"})) + "\">\n<head>");
        zeile("<meta charset=\"utf-8\">");
        zeile("<meta name=\"viewport\" content=\"width=device-width\">");
        zeile(element("title", wort(titel)) + element("style", stil) + "</head>\n<body>");
        zeile(element("h1", wort(titel)));
        zeile(element("p", wort({"Ausgangsfall: ", "base: "}) + element("b", maskiert(v_.projekte[0]))));
        eingabentabelle();
        saetze();
        ergebnistabelle();
        bilanzen();
        energiefluesse();
        temperaturen();
        zeile("</body>\n</html>");
        return std::move(text_);
    }

  private:
    static constexpr Wort titel{"Velmaris - Vergleich", "Velmaris - comparison"};

    [[nodiscard]] std::string wort(const Wort& w) const { return std::string(w.in(sprache_)); }

    void zeile(std::string_view inhalt) { text_.append(inhalt).append("\n"); }

    void kopfzeile(std::initializer_list<Wort> vorn) {
        std::string koepfe;
        for (const Wort& kopf : vorn)
            koepfe += element("th", wort(kopf));
        for (const std::string& name : v_.projekte)
            koepfe += element("th", maskiert(name));
        zeile(element("thead", element("tr", koepfe)) + "<tbody>");
    }

    void eingabentabelle() {
        zeile(element("h2", wort({"Eingaben, die sich unterscheiden", "Inputs that differ"})));
        if (v_.eingaben.empty()) {
            zeile(element("p", wort({"Alle Eingaben sind gleich.", "All inputs are the same."})));
            return;
        }
        zeile("<table id=\"eingaben\">");
        kopfzeile({{"Eingabe", "input"}, {"Einheit", "unit"}});
        for (const Eingabevergleich& eingabe : v_.eingaben) {
            std::string zellen =
                element("td", maskiert(eingabe.name)) + element("td", maskiert(eingabe.einheit), "einheit");
            for (const std::string& wert : eingabe.werte)
                zellen += element("td", maskiert(wert), eingabe.zahl ? "" : "text");
            zeile(element("tr", zellen));
        }
        zeile("</tbody></table>");
    }

    void saetze() {
        zeile(element("h2", wort({"Was sich ändert", "What changes"})) + "<ul>");
        for (std::size_t i = 0; i < v_.saetze.size(); ++i)
            zeile(element("li", element("b", maskiert(v_.projekte[i + 1])) + ": " + maskiert(v_.saetze[i])));
        zeile("</ul>");
    }

    [[nodiscard]] static std::string ergebniszelle(const Ergebnisvergleich& e, std::size_t i) {
        std::string inhalt = muster(e.werte[i], e.stellen);
        if (i > 0) {
            inhalt += "<small>" + mit_vorzeichen(e.abweichung(i), e.stellen);
            if (e.werte[0] != 0) inhalt += " (" + mit_vorzeichen(e.prozent(i), 0) + " %)";
            inhalt += "</small>";
        }
        return element("td", inhalt);
    }

    void ergebnistabelle() {
        zeile(element("h2", wort({"Ergebnisse", "Results"})));
        zeile(element("p", wort({"Unter jedem Wert: Differenz zum Ausgangsfall, in Prozent.",
                                 "Below each value: difference to the base, in per cent."})));
        zeile("<table id=\"ergebnisse\">");
        kopfzeile({{"Größe", "quantity"}, {"Einheit", "unit"}});
        for (const Ergebnisvergleich& e : v_.ergebnisse) {
            std::string zellen =
                element("td", maskiert(e.name)) + element("td", maskiert(e.einheit), "einheit");
            for (std::size_t i = 0; i < e.werte.size(); ++i)
                zellen += ergebniszelle(e, i);
            zeile(element("tr", zellen));
        }
        zeile("</tbody></table>");
    }

    /// The largest of what a chart's scale goes by.
    [[nodiscard]] double groesster(double (*wert)(const Projekt&)) const {
        double M = 0;
        for (const auto& haupt : projekte_)
            M = std::max(M, wert(haupt->p));
        return M;
    }

    /// A chart of each project beside each other.
    void reihe(const Wort& name, double breite, double hoehe,
               const std::function<void(const Projekt&, Zeichenflaeche&)>& zeichnen,
               std::string_view klasse = {}) {
        zeile(element("h3", wort(name)));
        zeile(klasse.empty() ? "<div class=\"reihe\">" : "<div>");
        for (std::size_t i = 0; i < projekte_.size(); ++i) {
            const std::string svg =
                bild(breite, hoehe, [&](Zeichenflaeche& b) { zeichnen(projekte_[i]->p, b); });
            zeile(element("figure", element("figcaption", maskiert(v_.projekte[i])) + svg, klasse));
        }
        zeile("</div>");
    }

    void bilanzen() {
        zeile(element("h2", wort({"Heizen und Kühlen", "Heating and cooling"})));
        const double monat = groesster(groesster_monatsbedarf);
        const double jahr = groesster(groesster_jahresbedarf);
        const double verlust = groesster(groesster_jahresverlust);
        reihe({"Heizwärmebedarf (rot) und Kühlbedarf (blau) je Monat",
               "Heat demand (red) and cooling demand (blue) of each month"},
              monatsflaeche_breite, chart_hoehe,
              [&](const Projekt& p, Zeichenflaeche& b) { MonatsbilanzVergleichen(p, b, monat); });
        reihe({"Heizwärmebedarf (rot) und Kühlbedarf (blau) im Jahr",
               "Heat demand (red) and cooling demand (blue) of the year"},
              jahresflaeche_breite, chart_hoehe,
              [&](const Projekt& p, Zeichenflaeche& b) { JahresbedarfVergleichen(p, b, jahr); });
        reihe({"Verluste (Transmission, Lüftung) und ihre Deckung (Heizwärme, interne und solare Gewinne) im "
               "Jahr",
               "Losses (transmission, ventilation) and their supply (heat, internal and solar gains) of the "
               "year"},
              jahresflaeche_breite, chart_hoehe,
              [&](const Projekt& p, Zeichenflaeche& b) { JahrBilanzVergleichen(p, b, verlust); });
    }

    void energiefluesse() {
        const SvgFlaeche masse(sankey_breite, sankey_hoehe);
        double heizen = 0, kuehlen = 0;
        for (const auto& haupt : projekte_) {
            heizen = std::max(heizen, sankey_heizmasse(haupt->p, masse).S);
            kuehlen = std::max(kuehlen, sankey_kuehlmassstab(haupt->p, masse));
        }
        zeile(element("h2", wort({"Energieflüsse in einem Maßstab", "Energy flows at one scale"})));
        reihe(
            {"Heizen", "Heating"}, sankey_breite, sankey_hoehe,
            [&](const Projekt& p, Zeichenflaeche& b) { SankeyHeizen(p, b, heizen); }, "fluss");
        reihe(
            {"Kühlen", "Cooling"}, sankey_breite, sankey_hoehe,
            [&](const Projekt& p, Zeichenflaeche& b) { SankeyKuehlen(p, b, kuehlen); }, "fluss");
    }

    void temperaturen() {
        constexpr double breite = 900, hoehe = 320;
        constexpr Farbe aussen{190, 200, 215};
        const auto farbfeld = [](Farbe farbe) {
            return "<span class=\"farbe\" style=\"background:" + hex(farbe) + "\"></span>";
        };
        const Projekt& basis = projekte_[0]->p;
        std::vector<Temperaturkurve> kurven{
            {[&basis](int m, int d, int h) { return basis.Wetter(m, d, h).Ta; }, aussen}};
        std::string legende = farbfeld(aussen) + wort({"Außenluft (Ausgangsfall)", "outdoor air (base)"});
        for (std::size_t i = projekte_.size(); i-- > 0;) {
            const Projekt& p = projekte_[i]->p;
            kurven.push_back({[&p](int m, int d, int h) { return p.T_frei(m, d, h); }, kurvenfarben.at(i)});
        }
        for (std::size_t i = 0; i < projekte_.size(); ++i)
            legende += farbfeld(kurvenfarben.at(i)) + maskiert(v_.projekte[i]);
        zeile(element("h2", wort({"Raumtemperatur ohne Heizung und Kühlung im ",
                                  "Room temperature without heating and cooling in "}) +
                                maskiert(basis.Monat(monat_).Name)));
        zeile(element("p", legende));
        zeile(
            bild(breite, hoehe, [&](Zeichenflaeche& b) { TemperaturvergleichZeichnen(kurven, monat_, b); }));
    }

    Projektreihe projekte_;
    const Vergleich& v_;
    int monat_;
    std::string sprache_;
    std::string text_;
};

}  // namespace

std::string vergleichsseite(Projektreihe projekte, const Vergleich& vergleich, int monat) {
    return Seite(projekte, vergleich, monat).text();
}

}  // namespace velmaris
