#include "studies/eingabegroessen.h"

#include "language/beschriftungen.h"
#include "toolkit/zahlen.h"

#include <algorithm>
#include <array>
#include <variant>
#include <vector>

namespace velmaris {
namespace {

/// The facades in the order of the fields of an input that has one for each.
constexpr std::array<Wort, 4> fassaden{
    {{"Nord", "north"}, {"Süd", "south"}, {"Ost", "east"}, {"West", "west"}}};
constexpr Wort alle_fassaden{"alle Fassaden", "all facades"};
constexpr std::size_t suedseite = 1;

using Wertetext = std::function<std::string(const Eingabeebenen&)>;

/// An input that no scroll field moves: the field by which the plane's hints know it, the quantity behind it,
/// and what it says.
struct Wahl {
    std::string_view ebene;
    std::string_view feld;
    std::string_view groesse;
    Wertetext text;
    Wort name = {};  ///< in place of the hint's where that is of two inputs
};

std::string option(const Eingabeebenen& e, std::string_view ebene, const Optionsgruppe& gruppe) {
    const std::optional<int> nummer = gruppe.gesetzt();
    return nummer ? beschriftung(std::string(ebene), gruppe.name + std::to_string(*nummer), e.p.Sprache)
                  : std::string();
}

Wahl haken(std::string_view ebene, std::string_view feld, std::string_view groesse,
           std::function<const Pruefeld&(const Eingabeebenen&)> kasten) {
    return {ebene, feld, groesse, [kasten = std::move(kasten)](const Eingabeebenen& e) {
                const bool ja = kasten(e).wert() != 0;
                return std::string((ja ? Wort{"ja", "yes"} : Wort{"nein", "no"}).in(e.p.Sprache));
            }};
}

std::vector<Wahl> gebaeudewahlen() {
    using E = const Eingabeebenen&;
    return {
        haken(
            "E_Gebaeude", "awn_cb", "awn", [](E e) -> auto& { return e.e_gebaeude.awn_cb; }),
        haken(
            "E_Gebaeude", "aws_cb", "aws", [](E e) -> auto& { return e.e_gebaeude.aws_cb; }),
        haken(
            "E_Gebaeude", "awo_cb", "awo", [](E e) -> auto& { return e.e_gebaeude.awo_cb; }),
        haken(
            "E_Gebaeude", "aww_cb", "aww", [](E e) -> auto& { return e.e_gebaeude.aww_cb; }),
        {"E_Gebaeude",
         "Aussenwandart",
         "Aussenwandart",
         [](E e) { return e.e_gebaeude.Aussenwandart.text(); },
         {"Art der Außenwände", "construction types of exterior walls"}},
        {"E_Gebaeude",
         "Innenwandart",
         "Innenwandart",
         [](E e) { return e.e_gebaeude.Innenwandart.text(); },
         {"Art der Innenwände", "construction types of interior walls"}},
    };
}

std::vector<Wahl> fensterwahlen() {
    using E = const Eingabeebenen&;
    const auto typ = [](std::string_view groesse, auto seite) {
        return Wahl{"E_Fenster", groesse, groesse, [seite](E e) { return (e.e_fenster.*seite).typ.text(); }};
    };
    return {
        {"E_Fenster", "Option1", "Option1", [](E e) { return option(e, "E_Fenster", e.e_fenster.Option1); }},
        typ("fenstern_typ", &E_Fenster::nord),
        typ("fensters_typ", &E_Fenster::sued),
        typ("fenstero_typ", &E_Fenster::ost),
        typ("fensterw_typ", &E_Fenster::west),
    };
}

std::vector<Wahl> wahlen() {
    using E = const Eingabeebenen&;
    std::vector<Wahl> alle{
        haken(
            "E_Geometrie", "Check_Dachgeschoss", "Check_Dachgeschoss",
            [](E e) -> auto& { return e.e_geometrie.Check_Dachgeschoss; }),
        {"E_Geometrie", "Option_Dachfirst", "Option_Dachfirst",
         [](E e) { return option(e, "E_Geometrie", e.e_geometrie.Option_Dachfirst); }},
        {"E_Daemmung", "ogd", "Dachraum_typ",
         [](E e) {
             const E_Daemmung& d = e.e_daemmung;
             return d.ogd.sichtbar() ? d.ogd.text() : d.ogd_Dach.text();
         }},
        {"E_Daemmung", "ugd", "ugd_typ", [](E e) { return e.e_daemmung.ugd.text(); }},
        haken(
            "E_Daemmung", "cbk_hDach", "cbk_hDach", [](E e) -> auto& { return e.e_daemmung.cbk_hDach; }),
        {"E_Daemmung", "Waermebruecken_opt", "Waermebruecken",
         [](E e) { return option(e, "E_Daemmung", e.e_daemmung.Waermebruecken_opt); }},
        {"E_Klima", "Klimaregionwahl2", "Klimadatei", [](E e) { return e.p.Stationsname; }},
        {"E_Energie", "Label_System", "Heizsystem", [](E e) { return e.e_energie.Label_System.text(); }},
        {"E_Energie", "Label_Übergabe", "Uebergabe", [](E e) { return e.e_energie.Label_Übergabe.text(); }},
        {"E_Energie", "Label_Energieträger", "Energietraeger",
         [](E e) { return e.e_energie.Label_Energieträger.text(); }},
    };
    for (const auto& weitere : {fensterwahlen(), gebaeudewahlen()})
        alle.insert(alle.end(), weitere.begin(), weitere.end());
    return alle;
}

/// The input that a field of a hint moves, if it moves any.
std::optional<Eingabegroesse> groesse_des_feldes(const Eingabehinweis& hinweis, std::string_view feld,
                                                 const std::vector<Wahl>& alle) {
    if (const Scrollzeile* regler = scrollzeile(feld)) {
        return Eingabegroesse{
            std::string(feld.substr(0, feld.size() - 3)),
            hinweis,
            {},
            regler,
            hinweis.name,
            [regler](const Eingabeebenen& e) { return muster(reglerwert(*regler, e.p), regler->stellen); }};
    }
    const auto wahl =
        std::ranges::find_if(alle, [&](const Wahl& w) { return w.ebene == hinweis.ebene && w.feld == feld; });
    if (wahl == alle.end()) return std::nullopt;
    return Eingabegroesse{std::string(wahl->groesse),
                          hinweis,
                          {},
                          nullptr,
                          wahl->name.de.empty() ? hinweis.name : wahl->name,
                          [text = wahl->text](const Eingabeebenen& e) {
                              const std::string wert = text(e);
                              return wert.empty() ? "-" : wert;
                          }};
}

std::vector<Eingabegroesse> alle_groessen() {
    const std::vector<Wahl> alle = wahlen();
    std::vector<Eingabegroesse> groessen;
    for (const Eingabehinweis& hinweis : eingabehinweise()) {
        for (std::size_t i = 0; i < hinweis.felder.size(); ++i) {
            auto groesse = groesse_des_feldes(hinweis, hinweis.felder[i], alle);
            if (!groesse) continue;
            if (hinweis.felder.size() == fassaden.size()) groesse->fassade = i;
            groessen.push_back(*std::move(groesse));
        }
    }
    return groessen;
}

}  // namespace

std::string Eingabegroesse::bezeichnung(std::string_view sprache, bool gleiche_fenster) const {
    std::string text(name.in(sprache));
    if (!fassade) return text;
    const Wort& wo = gleiche_fenster && fenstereigenschaft() ? alle_fassaden : fassaden.at(*fassade);
    return text.append(" ").append(wo.in(sprache));
}

bool Eingabegroesse::fenstereigenschaft() const {
    return fassade && hinweis.ebene == "E_Fenster" && hinweis.felder.front() != "fn_sb";
}

bool Eingabegroesse::folgt_dem_sueden() const {
    return fenstereigenschaft() && fassade != suedseite;
}

std::string Eingabegroesse::einheit() const {
    return regler == nullptr ? std::string() : std::string(regler->einheit);
}

std::string aufzaehlung(std::span<const Eingabeaenderung> aenderungen, std::string_view sprache) {
    constexpr std::size_t genannt = 5;
    std::string text;
    for (const Eingabeaenderung& eine : aenderungen.first(std::min(genannt, aenderungen.size()))) {
        if (!text.empty()) text += "; ";
        text += eine.name + " " + eine.von + " → " + eine.nach;
        if (!eine.einheit.empty()) text += " " + eine.einheit;
    }
    if (aenderungen.size() > genannt)
        text += std::string(Wort{"; weitere Eingaben: ", "; further inputs: "}.in(sprache)) +
                std::to_string(aenderungen.size() - genannt);
    return text;
}

std::span<const Eingabegroesse> eingabegroessen() {
    static const std::vector<Eingabegroesse> groessen = alle_groessen();
    return groessen;
}

const Eingabegroesse* eingabegroesse(std::string_view groesse) {
    const auto alle = eingabegroessen();
    const auto treffer = std::ranges::find(alle, groesse, &Eingabegroesse::groesse);
    return treffer == alle.end() ? nullptr : &*treffer;
}

double reglerwert(const Scrollzeile& regler, const Projekt& p) {
    double wert = 0;
    if (const auto* gleitzahl = std::get_if<float Projekt::*>(&regler.ziel)) wert = p.*(*gleitzahl);
    if (const auto* ganzzahl = std::get_if<std::int16_t Projekt::*>(&regler.ziel)) wert = p.*(*ganzzahl);
    return wert * regler.anzeigefaktor;
}

std::optional<double> gefragter_reglerwert(const Scrollzeile& regler, std::string_view zahl) {
    const auto wert = zahl_pruefen(zahl);
    if (!wert) return std::nullopt;
    const double stellung = runden(f32(*wert) * regler.teiler);
    return f32(stellung / regler.teiler + 0.0) * regler.anzeigefaktor;
}

}  // namespace velmaris
