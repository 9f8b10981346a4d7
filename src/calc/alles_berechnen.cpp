#include "calc/alles_berechnen.h"

#include "calc/geometrie.h"
#include "calc/monatsbilanz.h"
#include "calc/stundensimulation.h"
#include "toolkit/fehler.h"

#include <cfenv>

namespace velmaris {
namespace {

/// Clears the floating point exception flags now and when it goes.
class Merkerwache {
  public:
    Merkerwache() { std::feclearexcept(FE_ALL_EXCEPT); }
    Merkerwache(const Merkerwache&) = delete;
    Merkerwache& operator=(const Merkerwache&) = delete;
    ~Merkerwache() { std::feclearexcept(FE_ALL_EXCEPT); }
};

Zweisprachig art_des_fehlers(int merker) {
    if ((merker & FE_DIVBYZERO) != 0) return {"Division durch 0", "division by 0"};
    if ((merker & FE_OVERFLOW) != 0) return {"Überlauf einer Zahl", "overflow of a number"};
    return {"ungültige Rechenoperation", "invalid operation"};
}

/// Runs one stage of the calculation; an arithmetic fault in it is a Laufzeitfehler with the stage's name.
template <class Rechnung>
void stufe(const Zweisprachig& name, Rechnung&& rechne) {
    const Merkerwache wache;
    rechne();
    const int merker = std::fetestexcept(FE_DIVBYZERO | FE_OVERFLOW | FE_INVALID);
    if (merker == 0) return;
    const Zweisprachig art = art_des_fehlers(merker);
    throw Laufzeitfehler({name.de + " lässt sich mit diesen Eingaben nicht berechnen (" + art.de +
                              "). Bitte die zuletzt geänderten Eingaben prüfen.",
                          name.en + " cannot be calculated from these inputs (" + art.en +
                              "). Please check the inputs changed last."});
}

void rufe(const std::function<void()>& routine) {
    if (routine) routine();
}

void auffrischen(const std::vector<Auffrischung>& tabelle) {
    for (const Auffrischung& zeile : tabelle) {
        if (zeile.sichtbar()) zeile.zeichnen();
    }
}

}  // namespace

void geometrie_allein(Projekt& p, const Rechenplan& plan) {
    const Merkerwache wache;
    geometrie_berechnen(p);
    rufe(plan.geometrie_zeigen);
}

void alles_berechnen(Projekt& p, const Rechenplan& plan) {
    if (p.FormLoadGuard != 0) {
        geometrie_allein(p, plan);
        return;
    }
    const Merkerwache wache;
    stufe({"Die Geometrie des Gebäudes", "The geometry of the building"}, [&] { geometrie_berechnen(p); });
    rufe(plan.geometrie_zeigen);
    stufe({"Die Monatsbilanz", "The monthly balance"}, [&] { monatsbilanz(p); });
    rufe(plan.gebaeude_zeigen);
    stufe({"Die stündliche Temperatursimulation", "The hourly temperature simulation"},
          [&] { stundensimulation(p); });
    stufe({"Der End- und Primärenergiebedarf", "The end and primary energy demand"},
          [&] { rufe(plan.energie); });
    rufe(plan.energie_zeigen);
    auffrischen(plan.tabelle);
}

}  // namespace velmaris
