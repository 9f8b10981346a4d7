#pragma once

#include "climate/planes/A_Klima.h"
#include "planes/eingabeebenen.h"
#include "project/projektdatei.h"
#include "studies/ergebnisse.h"
#include "studies/stationsvorrat.h"
#include "studies/studienplan.h"
#include "toolkit/konsolenplattform.h"

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace velmaris {

/// What all workers of a study have in common; nobody changes it meanwhile but the stations, which look after
/// themselves.
struct Studiengrundlage {
    std::filesystem::path programmordner;
    std::string sprache;                    ///< "d" or "e"
    Projektposten basis;                    ///< what the rows do not set
    std::vector<const Feldzeile*> spalten;  ///< what they set
    std::vector<Ergebnis> ergebnisse;
    Stationsvorrat& stationen;
};

/// A place where rows are calculated, one at a time. Large; keep it on the heap.
class Rechenplatz {
  public:
    explicit Rechenplatz(const Studiengrundlage& grundlage);

    /// Sets the inputs of a row as the opening of a project file with these values does, in a program that
    /// has just been started, and calculates. What such a file could not hold and what cannot be calculated
    /// is a Laufzeitfehler that names the quantity.
    void rechnen(const Planzeile& zeile);

    /// The results of the row calculated last.
    [[nodiscard]] Rechenstand stand() const { return {ebenen_.p, kennwerte_, klima_.get()}; }

    /// The planes with the inputs of that row. Who sets them further says so in a row of its own: the next
    /// one begins anew.
    [[nodiscard]] Eingabeebenen& ebenen() { return ebenen_; }
    [[nodiscard]] const Eingabeebenen& ebenen() const { return ebenen_; }

  private:
    void posten_sammeln(const Planzeile& zeile);
    void einlesen();
    void station_einsetzen();
    void klimatexte_zeigen();

    const Studiengrundlage& g_;
    Konsolenplattform plattform_;
    Eingabeebenen ebenen_;
    std::unique_ptr<A_Klima> klima_;
    Kennwerte kennwerte_;
    Reihe<const Feldzeile*, 2, letzte_projektzeile> felder_;
    Reihe<const std::string*, 2, letzte_projektzeile> posten_;
    const Stationsabbild* station_ = nullptr;  ///< in the record
    int orient_ = 0;                           ///< that its radiation of the months belongs to
};

}  // namespace velmaris
