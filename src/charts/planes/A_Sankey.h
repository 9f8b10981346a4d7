#pragma once

#include "project/sitzung.h"
#include "toolkit/felder.h"

namespace velmaris {

/// The plane of the energy flows: one diagram for heating, one for cooling. Both surfaces are white.
struct A_Sankey {
    explicit A_Sankey(Sitzung& sitzung);

    Feld ebene{"A_Sankey"};  ///< the plane itself, hidden at first

    Anzeige Label1{"Label1"}, Label2{"Label2"};  ///< headings
    Bildfeld Sankey{"Sankey"}, Sankey_Kühlen{"Sankey_Kühlen"};

    /// Captions in the language of the run.
    void laden();

    /// The plane has come to the front: shows the record as it stands.
    void aktiviert() const;

    /// Draw anew.
    void SankeyHeizen() const;
    void SankeyKuehlen() const;

  private:
    void anordnen();

    Sitzung& sitzung_;
};

}  // namespace velmaris
