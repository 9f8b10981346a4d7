#include "calc/rechenstufen.h"

#include "calc/geometrie.h"
#include "calc/monatsbilanz.h"
#include "calc/stundensimulation.h"
#include "energy/energiebilanz.h"
#include "toolkit/fehler.h"
#include "toolkit/wort.h"

#include <cfenv>
#include <string>

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

Wort art_des_fehlers(int merker) {
    if ((merker & FE_DIVBYZERO) != 0) return {"Division durch 0", "division by 0"};
    if ((merker & FE_OVERFLOW) != 0) return {"Überlauf einer Zahl", "overflow of a number"};
    return {"ungültige Rechenoperation", "invalid operation"};
}

[[noreturn]] void nicht_zu_berechnen(const Wort& stufe, const Wort& art) {
    throw Laufzeitfehler({std::string(stufe.de) + " lässt sich mit diesen Eingaben nicht berechnen (" +
                              std::string(art.de) + "). Bitte die zuletzt geänderten Eingaben prüfen.",
                          std::string(stufe.en) + " cannot be calculated from these inputs (" +
                              std::string(art.en) + "). Please check the inputs changed last."});
}

/// Runs one stage of the calculation; an arithmetic fault in it is a Laufzeitfehler with the stage's name.
template <class Rechnung>
void bewacht(const Wort& stufe, Rechnung&& rechne) {
    const Merkerwache wache;
    rechne();
    const int merker = std::fetestexcept(FE_DIVBYZERO | FE_OVERFLOW | FE_INVALID);
    if (merker != 0) nicht_zu_berechnen(stufe, art_des_fehlers(merker));
}

}  // namespace

void geometrie_stufe(Projekt& p) {
    bewacht({"Die Geometrie des Gebäudes", "The geometry of the building"}, [&] { geometrie_berechnen(p); });
}

void bilanz_stufe(Projekt& p) {
    bewacht({"Die Monatsbilanz", "The monthly balance"}, [&] { monatsbilanz(p); });
}

void simulation_stufe(Projekt& p) {
    bewacht({"Die stündliche Temperatursimulation", "The hourly temperature simulation"},
            [&] { stundensimulation(p); });
}

Kennwerte energie_stufe(Projekt& p) {
    Kennwerte kennwerte;
    bewacht({"Der End- und Primärenergiebedarf", "The end and primary energy demand"},
            [&] { kennwerte = energ_refresh(p); });
    return kennwerte;
}

void geometrie_ohne_pruefung(Projekt& p) {
    const Merkerwache wache;
    geometrie_berechnen(p);
}

}  // namespace velmaris
