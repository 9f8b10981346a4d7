#include "studies/studienbild.h"

#include "toolkit/fehler.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace velmaris {
namespace {

constexpr std::size_t hoechste_achsenzahl = 2;
constexpr std::size_t genannte_fehler = 20;

void ergebnisse_pruefen(const std::vector<Ergebnis>& ergebnisse) {
    for (const Ergebnis& ergebnis : ergebnisse) {
        if (!ist_zahl(ergebnis))
            throw Laufzeitfehler({"ein Text lässt sich nicht zeichnen", "a text cannot be drawn"},
                                 ergebnis.name);
    }
    if (ergebnisse.size() > hoechste_bildergebnisse)
        throw Laufzeitfehler({"mehr als " + std::to_string(hoechste_bildergebnisse) + " Ergebnisse",
                              "more than " + std::to_string(hoechste_bildergebnisse) + " results"});
}

std::string aufzaehlung(const std::vector<Bildeingabe>& eingaben) {
    std::string text;
    for (const Bildeingabe& eingabe : eingaben)
        text.append(text.empty() ? "" : ", ").append(eingabe.feld.name);
    return text;
}

Bildstelle stelle(const Bildeingabe& eingabe, const std::string& gefragt) {
    Bildstelle neu{.gefragt = gefragt, .zahl = {}, .name = gefragt};
    if (eingabe.ist_zahl()) neu.zahl = gefragter_reglerwert(*eingabe.groesse->regler, gefragt);
    return neu;
}

}  // namespace

Studienbild::Studienbild(Studienplan& plan, std::vector<Ergebnis> ergebnisse)
    : ergebnisse_(std::move(ergebnisse)), anzahl_(plan.anzahl()) {
    ergebnisse_pruefen(ergebnisse_);
    if (plan.anzahl() == 0) throw Laufzeitfehler({"der Plan hat keine Zeilen", "the plan has no rows"});
    if (plan.anzahl() > hoechste_bildzeilen)
        throw Laufzeitfehler(
            {"mehr als " + std::to_string(hoechste_bildzeilen) + " Zeilen lassen sich nicht zeichnen",
             "more than " + std::to_string(hoechste_bildzeilen) + " rows cannot be drawn"});
    plan_lesen(plan);
    eingaben_waehlen(plan);
    std::size_t zellen = 1;
    for (const Bildeingabe& eingabe : eingaben_)
        zellen *= eingabe.stellen.size();
    if (zellen / 2 > plan.anzahl())
        throw Laufzeitfehler(
            {"die Zeilen bilden kein Gitter: es fehlen mehr als die Hälfte aller Kombinationen von " +
                 aufzaehlung(eingaben_),
             "the rows make no grid: more than half of all combinations are missing of " +
                 aufzaehlung(eingaben_)});
    werte_.assign(zellen * ergebnisse_.size(), std::numeric_limits<float>::quiet_NaN());
}

/// Notes for each column what it is asked for.
void Studienbild::plan_lesen(Studienplan& plan) {
    for (std::size_t i = 0; i < plan.spalten().size(); ++i) {
        const Feldzeile& feld = *plan.spalten()[i];
        eingaben_.push_back({.feld = feld, .groesse = eingabegroesse(feld.name), .spalte = i});
    }
    plaetze_.resize(eingaben_.size());
    for (Planzeile zeile; plan.naechste(zeile);) {
        for (std::size_t i = 0; i < eingaben_.size() && !zeile.fehler; ++i) {
            const std::string& zelle = zeile.zellen[i];
            std::vector<Bildstelle>& stellen = eingaben_[i].stellen;
            if (plaetze_[i].try_emplace(zelle, stellen.size()).second)
                stellen.push_back(stelle(eingaben_[i], zelle));
        }
    }
}

/// Keeps the inputs that vary; where none does, the first one.
void Studienbild::eingaben_waehlen(const Studienplan& plan) {
    std::vector<Bildeingabe> achsen;
    std::vector<std::unordered_map<std::string, std::size_t>> plaetze;
    for (std::size_t i = 0; i < eingaben_.size(); ++i) {
        const bool letzte = i + 1 == eingaben_.size() && achsen.empty();
        if (eingaben_[i].stellen.size() < 2 && !letzte) continue;
        achsen.push_back(std::move(eingaben_[i]));
        plaetze.push_back(std::move(plaetze_[i]));
    }
    if (achsen.size() > hoechste_achsenzahl) {
        const std::string zahl = std::to_string(achsen.size());
        throw Laufzeitfehler(
            {"gezeichnet werden eine oder zwei Eingaben, die sich ändern; hier sind es " + zahl + ": " +
                 aufzaehlung(achsen),
             "one or two inputs that vary can be drawn; here they are " + zahl + ": " + aufzaehlung(achsen)});
    }
    if (achsen.front().stellen.empty())
        throw Dateifehler(plan.name(), {"keine Zeile lässt sich lesen", "no row can be read"});
    eingaben_ = std::move(achsen);
    plaetze_ = std::move(plaetze);
}

Zeilenwerte Studienbild::lesen(const Rechenplatz& platz) const {
    Zeilenwerte werte;
    const Rechenstand stand = platz.stand();
    for (const Bildeingabe& eingabe : eingaben_) {
        const bool zahl = eingabe.ist_zahl();
        werte.zahlen.push_back(zahl ? reglerwert(*eingabe.groesse->regler, stand.p) : 0);
        werte.namen.push_back(zahl || eingabe.groesse == nullptr ? std::string()
                                                                 : eingabe.groesse->wert(platz.ebenen()));
    }
    for (const Ergebnis& ergebnis : ergebnisse_)
        werte.ergebnisse.push_back(ergebniswert(ergebnis, stand));
    return werte;
}

void Studienbild::nimm(const Planzeile& zeile, const Zeilenwerte& werte) {
    ++zeilen_;
    if (werte.ergebnisse.empty()) {
        fehler_aufnehmen(zeile, werte.grund);
        return;
    }
    std::size_t ort = 0, mal = 1;
    for (std::size_t i = 0; i < eingaben_.size(); ++i) {
        const std::size_t platz = plaetze_[i].at(zeile.zellen[eingaben_[i].spalte]);
        stelle_aufnehmen(i, eingaben_[i].stellen[platz], werte);
        ort += platz * mal;
        mal *= eingaben_[i].stellen.size();
    }
    std::ranges::copy(werte.ergebnisse,
                      werte_.begin() + static_cast<std::ptrdiff_t>(ort * ergebnisse_.size()));
}

void Studienbild::fehler_aufnehmen(const Planzeile& zeile, const std::string& grund) {
    if (++fehlerhafte_ > genannte_fehler) return;
    std::string gefragt;
    for (const Bildeingabe& eingabe : eingaben_)
        gefragt.append(gefragt.empty() ? "" : ", ")
            .append(eingabe.feld.name)
            .append(" = ")
            .append(zeile.zellen[eingabe.spalte]);
    fehler_.push_back({zeile.nummer, gefragt, grund});
}

/// What a choice is called may depend on the other input: then it has all these names.
void Studienbild::stelle_aufnehmen(std::size_t eingabe, Bildstelle& stelle, const Zeilenwerte& werte) {
    const std::string& name = werte.namen[eingabe];
    if (stelle.zahl && *stelle.zahl != werte.zahlen[eingabe] && ++nachgegeben_ == 1)
        nachgabe_ = {eingabe, *stelle.zahl, werte.zahlen[eingabe]};
    if (!name.empty() && !stelle.gerechnet) {
        stelle.name = name;
    } else if (!name.empty() && stelle.name.find(name) == std::string::npos) {
        stelle.name += " / " + name;
    }
    stelle.gerechnet = true;
}

void Studienbild::nimm_basis(const Rechenplatz& platz) {
    basis_ = lesen(platz);
    station_ = platz.stand().p.Stationsname;
}

}  // namespace velmaris
