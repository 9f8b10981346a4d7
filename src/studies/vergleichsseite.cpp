#include "studies/vergleichsseite.h"

#include "charts/bilanzdiagramme.h"
#include "charts/c_sankey.h"
#include "charts/kurvenfarben.h"
#include "charts/sankey_heizen.h"
#include "charts/sankey_kuehlen.h"
#include "charts/schema.h"
#include "charts/temperaturdiagramm.h"
#include "studies/seite.h"
#include "toolkit/auszeichnung.h"
#include "toolkit/svg_flaeche.h"
#include "toolkit/zahlen.h"

#include <algorithm>
#include <functional>

namespace velmaris {
namespace {

static_assert(kurvenfarben.size() >= groesster_vergleich);

/// The page of a comparison, section by section.
class Vergleichsseite {
  public:
    Vergleichsseite(Projektreihe projekte, const Vergleich& v, int monat)
        : projekte_(projekte),
          v_(v),
          monat_(monat),
          seite_(projekte[0]->p.Sprache, {"Velmaris - Vergleich", "Velmaris - comparison"}) {}

    std::string html() {
        seite_.absatz(wort({"Ausgangsfall: ", "base: "}) + element("b", maskiert(v_.projekte[0])));
        eingabentabelle();
        saetze();
        ergebnistabelle();
        bilanzen();
        energiefluesse();
        temperaturen();
        return seite_.html();
    }

  private:
    [[nodiscard]] std::string wort(const Wort& w) const { return seite_.wort(w); }

    [[nodiscard]] std::vector<std::string> kopfzeile(const Wort& groesse) const {
        std::vector<std::string> kopf{wort(groesse), wort({"Einheit", "unit"})};
        for (const std::string& name : v_.projekte)
            kopf.push_back(maskiert(name));
        return kopf;
    }

    void eingabentabelle() {
        seite_.abschnitt({"Eingaben, die sich unterscheiden", "Inputs that differ"});
        if (v_.eingaben.empty()) {
            seite_.absatz(wort({"Alle Eingaben sind gleich.", "All inputs are the same."}));
            return;
        }
        std::vector<std::vector<Zelle>> zeilen;
        for (const Eingabevergleich& eingabe : v_.eingaben) {
            std::vector<Zelle>& zeile = zeilen.emplace_back(benennung(eingabe.name, eingabe.einheit));
            for (const std::string& wert : eingabe.werte)
                zeile.push_back({maskiert(wert), eingabe.zahl ? "" : "text"});
        }
        seite_.tabelle("eingaben", kopfzeile({"Eingabe", "input"}), zeilen);
    }

    void saetze() {
        seite_.abschnitt({"Was sich ändert", "What changes"});
        seite_.zeile("<ul>");
        for (std::size_t i = 0; i < v_.saetze.size(); ++i)
            seite_.zeile(
                element("li", element("b", maskiert(v_.projekte[i + 1])) + ": " + maskiert(v_.saetze[i])));
        seite_.zeile("</ul>");
    }

    [[nodiscard]] static std::vector<Zelle> benennung(const std::string& name, const std::string& einheit) {
        return {{maskiert(name), ""}, {maskiert(einheit), "einheit"}};
    }

    [[nodiscard]] static Zelle ergebniszelle(const Ergebnisvergleich& e, std::size_t i) {
        std::string inhalt = muster(e.werte[i], e.stellen);
        if (i > 0) {
            std::string abweichung = mit_vorzeichen(e.abweichung(i), e.stellen);
            if (e.werte[0] != 0) abweichung += " (" + mit_vorzeichen(e.prozent(i), 0) + " %)";
            inhalt += element("small", abweichung);
        }
        return {inhalt, ""};
    }

    void ergebnistabelle() {
        seite_.abschnitt({"Ergebnisse", "Results"});
        seite_.absatz(wort({"Unter jedem Wert: Differenz zum Ausgangsfall, in Prozent.",
                            "Below each value: difference to the base, in per cent."}));
        std::vector<std::vector<Zelle>> zeilen;
        for (const Ergebnisvergleich& e : v_.ergebnisse) {
            std::vector<Zelle>& zeile = zeilen.emplace_back(benennung(e.name, e.einheit));
            for (std::size_t i = 0; i < e.werte.size(); ++i)
                zeile.push_back(ergebniszelle(e, i));
        }
        seite_.tabelle("ergebnisse", kopfzeile({"Größe", "quantity"}), zeilen);
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
        seite_.unterabschnitt(name);
        seite_.zeile(klasse.empty() ? "<div class=\"reihe\">" : "<div>");
        for (std::size_t i = 0; i < projekte_.size(); ++i) {
            const std::string svg =
                bild(breite, hoehe, [&](Zeichenflaeche& b) { zeichnen(projekte_[i]->p, b); });
            seite_.zeile(bildtafel(maskiert(v_.projekte[i]), svg, klasse));
        }
        seite_.zeile("</div>");
    }

    void bilanzen() {
        seite_.abschnitt({"Heizen und Kühlen", "Heating and cooling"});
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
        seite_.abschnitt({"Energieflüsse in einem Maßstab", "Energy flows at one scale"});
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
        const Projekt& basis = projekte_[0]->p;
        std::vector<Temperaturkurve> kurven{{aussenluft(basis), aussen}};
        std::string legende = farbfeld(aussen) + wort({"Außenluft (Ausgangsfall)", "outdoor air (base)"});
        for (std::size_t i = projekte_.size(); i-- > 0;) {
            const Projekt& p = projekte_[i]->p;
            kurven.push_back({raumluft(p), kurvenfarben.at(i)});
        }
        for (std::size_t i = 0; i < projekte_.size(); ++i)
            legende += farbfeld(kurvenfarben.at(i)) + maskiert(v_.projekte[i]);
        seite_.zeile(element("h2", wort({"Raumtemperatur ohne Heizung und Kühlung im ",
                                         "Room temperature without heating and cooling in "}) +
                                       maskiert(basis.Monat(monat_).Name)));
        seite_.absatz(legende);
        seite_.zeile(
            bild(breite, hoehe, [&](Zeichenflaeche& b) { TemperaturvergleichZeichnen(kurven, monat_, b); }));
    }

    Projektreihe projekte_;
    const Vergleich& v_;
    int monat_;
    Seite seite_;
};

}  // namespace

std::string vergleichsseite(Projektreihe projekte, const Vergleich& vergleich, int monat) {
    return Vergleichsseite(projekte, vergleich, monat).html();
}

}  // namespace velmaris
