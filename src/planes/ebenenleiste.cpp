#include "planes/ebenenleiste.h"

namespace velmaris {

void Ebenenleiste::aufnehmen(const std::string& knopf, Feld& ebene, std::function<void()> aktivieren) {
    Eintrag eintrag{std::make_unique<Knopf>(knopf), &ebene, std::move(aktivieren)};
    eintrag.knopf->gedrueckt = [this, knopf] { klicke(knopf); };
    eintraege_.push_back(std::move(eintrag));
}

void Ebenenleiste::Alle_Fenster_Schliessen() {
    if (vor_wechsel) vor_wechsel();
    for (const Eintrag& eintrag : eintraege_) {
        eintrag.ebene->zeige(false);
        eintrag.knopf->aktiviere(true);
    }
}

void Ebenenleiste::klicke(const std::string& knopf) {
    for (const Eintrag& eintrag : eintraege_) {
        if (eintrag.knopf->name != knopf) continue;
        Alle_Fenster_Schliessen();
        eintrag.ebene->zeige(true);
        eintrag.knopf->aktiviere(false);
        if (eintrag.aktivieren) eintrag.aktivieren();
        zuwenden();
        return;
    }
}

void Ebenenleiste::zuwenden() const {
    for (const Eintrag& eintrag : eintraege_) {
        if (zugewandt && eintrag.ebene->sichtbar()) zugewandt(*eintrag.ebene);
    }
}

}  // namespace velmaris
