#include "toolkit/felder.h"

#include "toolkit/fehler.h"

#include <algorithm>
#include <string_view>

namespace velmaris {
namespace {

/// The quantity behind a control: the control's name without its ending "_sb" or "_cb".
std::string groesse(const std::string& name) {
    for (const char* endung : {"_sb", "_Sb", "_cb"}) {
        if (name.size() > 3 && name.ends_with(endung)) return name.substr(0, name.size() - 3);
    }
    return name;
}

[[noreturn]] void ausserhalb(const std::string& name, int wert, int minimum, int maximum) {
    const std::string zahlen =
        std::to_string(wert) + " (" + std::to_string(minimum) + " .. " + std::to_string(maximum) + ")";
    throw Laufzeitfehler({"Stellung außerhalb des Bereichs: " + zahlen, "position out of range: " + zahlen},
                         groesse(name));
}

void rufe(const std::function<void()>& handler) {
    if (handler) handler();
}

}  // namespace

void Feld::melden() const {
    rufe(ansicht);
}

void Feld::zeige(bool sichtbar) {
    if (sichtbar_ == sichtbar) return;
    sichtbar_ = sichtbar;
    melden();
}

void Feld::aktiviere(bool aktiv) {
    if (aktiv_ == aktiv) return;
    aktiv_ = aktiv;
    melden();
}

void Feld::lege(const Rechteck& lage) {
    if (lage_ == lage) return;
    lage_ = lage;
    melden();
}

Scrollfeld::Scrollfeld(std::string feldname, int minimum, int maximum, int klein, int gross)
    : Feld(std::move(feldname)),
      minimum_(minimum),
      maximum_(maximum),
      klein_(klein),
      gross_(gross),
      position_(std::clamp(0, minimum, maximum)) {}

void Scrollfeld::setze(int position) {
    if (position < minimum_ || position > maximum_) ausserhalb(name, position, minimum_, maximum_);
    if (position == position_) return;
    position_ = position;
    melden();
    rufe(geaendert);
}

void Scrollfeld::bewege(int position) {
    setze(std::clamp(position, minimum_, maximum_));
}

void Scrollfeld::bereich(int minimum, int maximum) {
    minimum_ = minimum;
    maximum_ = std::max(minimum, maximum);
    position_ = std::clamp(position_, minimum_, maximum_);
    melden();
}

void Auswahlliste::fuelle(std::vector<std::string> eintraege) {
    eintraege_ = std::move(eintraege);
    markiere(-1);
}

void Auswahlliste::setze(int index) {
    pruefe(index);
    markiere(index);
    rufe(gewaehlt);
}

void Auswahlliste::pruefe(int index) const {
    const int zahl = static_cast<int>(eintraege_.size());
    if (index < 0 || index >= zahl) ausserhalb(groesse_, index, 0, zahl - 1);
}

void Auswahlliste::markiere(int index) {
    const bool vorhanden = index >= 0 && index < static_cast<int>(eintraege_.size());
    index_ = vorhanden ? index : -1;
    text_ = vorhanden ? eintraege_[static_cast<std::size_t>(index)] : std::string();
    melden();
}

void Auswahlliste::schreibe(std::string text) {
    index_ = -1;
    text_ = std::move(text);
    melden();
}

void Pruefeld::setze(int wert) {
    const bool anders = wert != wert_;
    markiere(wert);
    if (anders) rufe(geklickt);
}

void Pruefeld::setze_verneint(int groesse) {
    pruefe(groesse);
    setze(1 - groesse);
}

void Pruefeld::pruefe(int wert) const {
    if (wert != 0 && wert != 1) ausserhalb(name, wert, 0, 1);
}

void Pruefeld::markiere(int wert) {
    pruefe(wert);
    if (wert == wert_) return;
    wert_ = wert;
    melden();
}

void Optionsgruppe::pruefe(int option) const {
    if (option < erste_ || option >= erste_ + anzahl_) ausserhalb(name, option, erste_, erste_ + anzahl_ - 1);
}

void Optionsgruppe::setze(int option) {
    pruefe(option);
    if (gesetzt_ == option) return;
    markiere(option);
    if (geklickt) geklickt(option);
}

void Optionsgruppe::markiere(std::optional<int> option) {
    gesetzt_ = option;
    melden();
}

void Anzeige::schreibe(std::string text) {
    if (text_ == text) return;
    text_ = std::move(text);
    melden();
}

void Anzeige::faerbe(std::optional<Farbe> farbe) {
    if (farbe_ == farbe) return;
    farbe_ = farbe;
    melden();
}

void Anzeige::verberge(bool verborgen) {
    if (verborgen_ == verborgen) return;
    verborgen_ = verborgen;
    melden();
}

void Anzeige::setze(Platz platz) {
    if (platz_ == platz) return;
    platz_ = platz;
    melden();
}

void Knopf::schreibe(std::string text) {
    if (text_ == text) return;
    text_ = std::move(text);
    melden();
}

void Knopf::druecke() const {
    if (aktiv()) rufe(gedrueckt);
}

void Menuepunkt::kreuze_an(bool angekreuzt) {
    if (angekreuzt_ == angekreuzt) return;
    angekreuzt_ = angekreuzt;
    melden();
}

void Bildfeld::lade(std::filesystem::path bild) {
    if (bild_ == bild) return;
    bild_ = std::move(bild);
    melden();
}

}  // namespace velmaris
