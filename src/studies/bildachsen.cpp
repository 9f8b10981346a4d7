#include "studies/bildachsen.h"

#include "toolkit/zahlen.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace velmaris {
namespace {

/// The asked numbers that have a place, with their places among what was asked.
std::vector<std::pair<double, std::size_t>> zahlen_mit_platz(const Bildeingabe& eingabe, bool mit_luecken) {
    double kleinste = std::numeric_limits<double>::infinity(), groesste = -kleinste;
    for (const Bildstelle& stelle : eingabe.stellen) {
        if (!stelle.gerechnet) continue;
        kleinste = std::min(kleinste, *stelle.zahl);
        groesste = std::max(groesste, *stelle.zahl);
    }
    std::vector<std::pair<double, std::size_t>> zahlen;
    for (std::size_t k = 0; k < eingabe.stellen.size(); ++k) {
        const Bildstelle& stelle = eingabe.stellen[k];
        const bool luecke =
            mit_luecken && stelle.zahl && *stelle.zahl >= kleinste && *stelle.zahl <= groesste;
        if (stelle.gerechnet || luecke) zahlen.emplace_back(*stelle.zahl, k);
    }
    std::ranges::stable_sort(zahlen, {}, &std::pair<double, std::size_t>::first);
    return zahlen;
}

bool liegt_daneben(const Bildstelle& stelle, const Scrollzeile& regler) {
    const auto gefragt = zahl_pruefen(stelle.gefragt);
    return stelle.gerechnet && gefragt && f32(*gefragt) != f32(*stelle.zahl / regler.anzeigefaktor);
}

void zahlen_ordnen(Eingabeachse& a, const Bildeingabe& eingabe, bool mit_luecken) {
    const Scrollzeile& regler = *eingabe.groesse->regler;
    for (const auto& [zahl, stelle] : zahlen_mit_platz(eingabe, mit_luecken)) {
        if (!a.bild.werte.empty() && zahl == a.bild.werte.back()) continue;
        a.bild.werte.push_back(zahl);
        a.stellen.push_back(stelle);
        a.texte.push_back(muster(zahl, regler.stellen));
    }
    a.einheit = regler.einheit;
    a.bild.nachkomma = regler.stellen;
    if (!a.einheit.empty()) a.bild.titel += " [" + a.einheit + "]";
    a.gerundet =
        std::ranges::any_of(eingabe.stellen, [&](const Bildstelle& s) { return liegt_daneben(s, regler); });
}

void wahlen_ordnen(Eingabeachse& a, const Bildeingabe& eingabe, bool mit_luecken) {
    for (std::size_t k = 0; k < eingabe.stellen.size(); ++k) {
        if (!eingabe.stellen[k].gerechnet && !mit_luecken) continue;
        a.bild.namen.push_back(eingabe.stellen[k].name);
        a.stellen.push_back(k);
    }
    a.texte = a.bild.namen;
}

void basis_eintragen(Eingabeachse& a, const Bildeingabe& eingabe, double zahl, const std::string& name) {
    if (eingabe.ist_zahl()) {
        a.bild.basis = zahl;
        a.basis = mit_einheit(muster(zahl, eingabe.groesse->regler->stellen), a.einheit);
        return;
    }
    a.basis = name;
    const auto treffer = std::ranges::find(a.bild.namen, name);
    if (treffer != a.bild.namen.end()) a.bild.basis = static_cast<double>(treffer - a.bild.namen.begin());
}

Eingabeachse achse(const Studienbild& bild, std::size_t i, std::string_view sprache) {
    const Bildeingabe& eingabe = bild.eingaben()[i];
    const bool einzige = bild.eingaben().size() == 1;
    Eingabeachse a;
    a.name =
        eingabe.groesse == nullptr ? std::string(eingabe.feld.name) : eingabe.groesse->bezeichnung(sprache);
    a.bild.titel = a.name;
    if (eingabe.ist_zahl()) {
        zahlen_ordnen(a, eingabe, einzige);
    } else {
        wahlen_ordnen(a, eingabe, einzige);
    }
    if (bild.basis()) basis_eintragen(a, eingabe, bild.basis()->zahlen[i], bild.basis()->namen[i]);
    return a;
}

}  // namespace

std::string Eingabeachse::text(std::size_t platz) const {
    return mit_einheit(texte[platz], einheit);
}

Bildachsen::Bildachsen(const Studienbild& bild, std::string_view sprache) : bild_(bild) {
    for (std::size_t i = 0; i < bild.eingaben().size(); ++i)
        achsen_.push_back(achse(bild, i, sprache));
    if (achsen_.size() < 2 || bild.eingaben()[0].ist_zahl()) return;
    getauscht_ = bild.eingaben()[1].ist_zahl() || achsen_[0].texte.size() > achsen_[1].texte.size();
    if (getauscht_) std::swap(achsen_[0], achsen_[1]);
}

bool Bildachsen::leer() const {
    return bild_.fehlerhafte() == bild_.zeilen();
}

std::vector<double> Bildachsen::werte(std::size_t ergebnis) const {
    std::vector<double> alle;
    const std::vector<std::size_t> erste{0};
    for (const std::size_t b : achsen_.size() > 1 ? achsen_[1].stellen : erste) {
        for (const std::size_t a : achsen_[0].stellen)
            alle.push_back(getauscht_ ? bild_.wert(ergebnis, b, a) : bild_.wert(ergebnis, a, b));
    }
    return alle;
}

std::string Bildachsen::ort(std::size_t n) const {
    const std::size_t breite = achsen_[0].texte.size();
    return achsen_[0].name + " " + achsen_[0].text(n % breite) + ", " + achsen_[1].name + " " +
           achsen_[1].text(n / breite);
}

}  // namespace velmaris
