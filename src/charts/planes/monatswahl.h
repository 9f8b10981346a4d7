#pragma once

#include "charts/planes/monatsleiste.h"
#include "project/c_glob.h"
#include "toolkit/felder.h"

#include <vector>

namespace velmaris {

/// The one month whose temperatures are shown, and all that shows it: rows of month buttons and charts.
class Monatswahl {
  public:
    explicit Monatswahl(Projekt& p) : p_(p) {}

    /// Makes a row of buttons choose the month and a surface show its temperatures; both must live as long.
    void nimm_auf(Monatsleiste& leiste, Bildfeld& temperaturen);

    /// Chooses month m (1..12): marks it in all rows and draws all charts anew.
    void Monatsbutton_Click(int m);

    /// Marks the month in all rows, as after a change of their places.
    void markiere() const;

  private:
    struct Teilnehmer {
        Monatsleiste* leiste;
        Bildfeld* temperaturen;
    };

    Projekt& p_;
    std::vector<Teilnehmer> teilnehmer_;
};

}  // namespace velmaris
