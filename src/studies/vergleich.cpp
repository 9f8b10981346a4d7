#include "studies/vergleich.h"

#include "studies/eingabegroessen.h"
#include "studies/jahresergebnisse.h"
#include "toolkit/csv.h"
#include "toolkit/text.h"
#include "toolkit/zahlen.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <set>

namespace velmaris {
namespace {

/// The inputs of which the projects do not all say the same.
std::vector<Eingabevergleich> eingaben(Projektreihe projekte) {
    const bool gleiche_fenster =
        std::ranges::all_of(projekte, [](const auto& haupt) { return haupt->p.Option1 == 0; });
    std::vector<Eingabevergleich> ungleiche;
    for (const Eingabegroesse& groesse : eingabegroessen()) {
        if (gleiche_fenster && groesse.folgt_dem_sueden()) continue;
        Eingabevergleich zeile{groesse.bezeichnung(projekte[0]->p.Sprache, gleiche_fenster),
                               groesse.einheit(),
                               groesse.regler != nullptr,
                               {}};
        for (const auto& haupt : projekte)
            zeile.werte.push_back(groesse.wert(*haupt));
        if (std::ranges::adjacent_find(zeile.werte, std::not_equal_to{}) != zeile.werte.end())
            ungleiche.push_back(std::move(zeile));
    }
    return ungleiche;
}

std::vector<Ergebnisvergleich> ergebnisse(Projektreihe projekte) {
    std::vector<Ergebnisvergleich> alle;
    for (const Ergebniszeile& zeile : jahresergebnisse()) {
        Ergebnisvergleich ergebnis{
            std::string(zeile.name.in(projekte[0]->p.Sprache)), zeile.einheit, zeile.stellen, {}};
        for (const auto& haupt : projekte)
            ergebnis.werte.push_back(zeile.wert(haupt->p));
        alle.push_back(std::move(ergebnis));
    }
    return alle;
}

/// What changed in project i.
std::string aenderungen(const Vergleich& v, std::size_t i, std::string_view sprache) {
    std::vector<Eingabeaenderung> alle;
    for (const Eingabevergleich& eingabe : v.eingaben) {
        if (eingabe.werte[i] != eingabe.werte[0])
            alle.push_back({eingabe.name, eingabe.werte[0], eingabe.werte[i], eingabe.einheit});
    }
    if (alle.empty()) return std::string(Wort{"gleiche Eingaben", "the same inputs"}.in(sprache));
    return aufzaehlung(alle, sprache);
}

std::string satz(const Vergleich& v, std::size_t i, std::string_view sprache) {
    constexpr std::size_t genannt = 2;  // heat and cooling demand
    std::string text = aenderungen(v, i, sprache) + ": ";
    for (std::size_t k = 0; k < genannt; ++k) {
        const Ergebnisvergleich& e = v.ergebnisse[k];
        if (k > 0) text += ", ";
        text += e.name + " " + mit_vorzeichen(e.abweichung(i), e.stellen) + " " + e.einheit;
    }
    return text + ".";
}

/// Names of the files, with their folders where two have the same name.
std::vector<std::string> projektnamen(Projektreihe projekte) {
    std::vector<std::string> namen;
    for (const auto& haupt : projekte)
        namen.push_back(pfadtext(pfad(haupt->p.Datei).stem()));
    if (std::set<std::string>(namen.begin(), namen.end()).size() == namen.size()) return namen;
    for (std::size_t i = 0; i < namen.size(); ++i)
        namen[i] = projekte[i]->p.Datei;
    return namen;
}

}  // namespace

std::string mit_vorzeichen(double wert, int stellen) {
    const std::string zahl = muster(wert, stellen);
    return zahl.starts_with('-') ? zahl : "+" + zahl;
}

double Ergebnisvergleich::prozent(std::size_t i) const {
    return werte[0] == 0 ? std::numeric_limits<double>::quiet_NaN() : 100 * abweichung(i) / werte[0];
}

Vergleich vergleichen(Projektreihe projekte) {
    Vergleich v{projektnamen(projekte), eingaben(projekte), ergebnisse(projekte), {}};
    for (std::size_t i = 1; i < projekte.size(); ++i)
        v.saetze.push_back(satz(v, i, projekte[0]->p.Sprache));
    return v;
}

std::string vergleich_csv(const Vergleich& v, std::string_view sprache) {
    Csvtext tabelle;
    const std::size_t n = v.projekte.size();
    for (const Wort& kopf : {Wort{"Art", "kind"}, Wort{"Größe", "quantity"}, Wort{"Einheit", "unit"}})
        tabelle.zelle(kopf.in(sprache));
    for (const std::string& name : v.projekte)
        tabelle.zelle(name);
    for (const Wort& art : {Wort{"Differenz ", "difference "}, Wort{"Prozent ", "per cent "}}) {
        for (std::size_t i = 1; i < n; ++i)
            tabelle.zelle(std::string(art.in(sprache)) + v.projekte[i]);
    }
    tabelle.zeilenende();
    for (const Eingabevergleich& eingabe : v.eingaben) {
        for (const std::string_view text :
             {Wort{"Eingabe", "input"}.in(sprache), std::string_view(eingabe.name),
              std::string_view(eingabe.einheit)})
            tabelle.zelle(text);
        for (const std::string& wert : eingabe.werte)
            tabelle.zelle(wert);
        for (std::size_t i = 0; i < 2 * (n - 1); ++i)
            tabelle.zelle("");
        tabelle.zeilenende();
    }
    for (const Ergebnisvergleich& e : v.ergebnisse) {
        for (const std::string_view text :
             {Wort{"Ergebnis", "result"}.in(sprache), std::string_view(e.name), std::string_view(e.einheit)})
            tabelle.zelle(text);
        for (const double wert : e.werte)
            tabelle.zelle(static_cast<float>(wert));
        for (std::size_t i = 1; i < n; ++i)
            tabelle.zelle(static_cast<float>(e.abweichung(i)));
        for (std::size_t i = 1; i < n; ++i) {
            if (e.werte[0] == 0) {
                tabelle.zelle("");
            } else {
                tabelle.zelle(static_cast<float>(e.prozent(i)));
            }
        }
        tabelle.zeilenende();
    }
    return tabelle.text();
}

}  // namespace velmaris
