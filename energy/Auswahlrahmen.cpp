#include "energy/Auswahlrahmen.h"

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

void Auswahlrahmen::oeffne(const Anzeige& feld, const std::vector<std::string>& texte) {
    for (std::size_t i = 0; i < Label_Auswahl_.size(); ++i) {
        Label_Auswahl_[i].schreibe(i < texte.size() ? texte[i] : std::string());
        Label_Auswahl_[i].zeige(!Label_Auswahl_[i].text().empty());
    }
    hoehe_ = stapeln() + abstand;
    platz_ = unterkante ? unterkante(feld) : Platz{};
    feld_ = feld.name;
    Frame_Auswahl.zeige(!Frame_Auswahl.sichtbar());
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
