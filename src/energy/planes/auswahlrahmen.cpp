#include "energy/planes/auswahlrahmen.h"

#include <cstddef>

namespace velmaris {

Auswahlrahmen::Auswahlrahmen()
    : Label_Auswahl_{Anzeige("Label_Auswahl1"), Anzeige("Label_Auswahl2"), Anzeige("Label_Auswahl3"),
                     Anzeige("Label_Auswahl4"), Anzeige("Label_Auswahl5"), Anzeige("Label_Auswahl6"),
                     Anzeige("Label_Auswahl7"), Anzeige("Label_Auswahl8"), Anzeige("Label_Auswahl9")} {
    Frame_Auswahl.zeige(false);
}

Anzeige& Auswahlrahmen::Label_Auswahl(int i) {
    return Label_Auswahl_.at(static_cast<std::size_t>(i - 1));
}

void Auswahlrahmen::oeffne(const Anzeige& feld, const std::vector<std::string>& texte, int gewaehlt) {
    const bool derselbe = offen() && feld_ == feld.name;
    schliesse();
    if (derselbe) return;
    fuelle(texte);
    feld_ = feld.name;
    for (int i = eintraege; i >= 1; --i) {
        if (gezeigt(i)) marke_ = i;
    }
    if (marke_ == 0) return;
    if (gezeigt(gewaehlt)) marke_ = gewaehlt;
    hoehe_ = stapeln() + abstand;
    platz_ = unterkante ? unterkante(feld) : Platz{};
    Frame_Auswahl.zeige(true);
}

void Auswahlrahmen::schliesse() {
    marke_ = 0;
    Frame_Auswahl.zeige(false);
}

void Auswahlrahmen::markiere(int i) {
    if (!offen() || !gezeigt(i) || i == marke_) return;
    marke_ = i;
    if (Frame_Auswahl.ansicht) Frame_Auswahl.ansicht();
}

void Auswahlrahmen::ruecke(int schritte) {
    const int richtung = schritte < 0 ? -1 : 1;
    int ziel = marke_;
    for (int i = marke_ + richtung; i >= 1 && i <= eintraege && schritte != 0; i += richtung) {
        if (!gezeigt(i)) continue;
        ziel = i;
        schritte -= richtung;
    }
    markiere(ziel);
}

bool Auswahlrahmen::gezeigt(int i) const {
    return i >= 1 && i <= eintraege && Label_Auswahl_[static_cast<std::size_t>(i - 1)].sichtbar();
}

void Auswahlrahmen::fuelle(const std::vector<std::string>& texte) {
    for (std::size_t i = 0; i < Label_Auswahl_.size(); ++i) {
        Label_Auswahl_[i].schreibe(i < texte.size() ? texte[i] : std::string());
        Label_Auswahl_[i].zeige(!Label_Auswahl_[i].text().empty());
    }
}

/// Places the entries in use one below the other and returns where the last one ends.
double Auswahlrahmen::stapeln() {
    double ende = 0;
    for (Anzeige& eintrag : Label_Auswahl_) {
        if (!eintrag.sichtbar()) continue;
        const double oben = ende > 0 ? ende + abstand : 0;
        eintrag.setze({0, oben});
        ende = oben + (eintragshoehe ? eintragshoehe(eintrag) : zeilenhoehe);
    }
    return ende;
}

}  // namespace velmaris
