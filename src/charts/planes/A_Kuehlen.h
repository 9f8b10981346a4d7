#pragma once

#include "charts/tooltip.h"
#include "project/sitzung.h"
#include "toolkit/felder.h"

#include <string>

namespace velmaris {

/// The cooling plane: hours of overheating, cooling demand and cooling degree hours.
struct A_Kuehlen {
    explicit A_Kuehlen(Sitzung& sitzung);

    Feld ebene{"A_Kuehlen"};  ///< the plane itself, hidden at first

    Anzeige Label1{"Label1"};  ///< heading of each pair of charts
    Bildfeld StundenProTagMonat{"StundenProTagMonat"}, StundenProTagJahr{"StundenProTagJahr"};
    Anzeige Label10{"Label10"};
    Bildfeld KuehlbedarfMonat{"KuehlbedarfMonat"}, KuehlbedarfJahr{"KuehlbedarfJahr"};
    Anzeige Label2{"Label2"};
    Bildfeld KuehlGradStundenMonat{"KuehlGradStundenMonat"}, KuehlGradStundenJahr{"KuehlGradStundenJahr"};

    Tooltip tooltip;

    /// Captions in the language of the run.
    void laden();

    /// The plane has come to the front: shows the record as it stands.
    void aktiviert();

    /// Draw anew, both surfaces of each pair.
    void StundenProTagZeichnen() const;
    void KuehlBedarfZeichnen() const;
    void KuehlGradStundenZeichnen() const;

    /// Tooltip texts; m is 1..12.
    [[nodiscard]] std::string tipp_stunden_monat(int m) const;
    [[nodiscard]] std::string tipp_stunden_jahr() const;
    [[nodiscard]] std::string tipp_bedarf_monat(int m) const;
    [[nodiscard]] std::string tipp_bedarf_jahr() const;
    [[nodiscard]] std::string tipp_gradstunden_monat(int m) const;
    [[nodiscard]] std::string tipp_gradstunden_jahr() const;

  private:
    void bilder_verbinden();
    void tipps_verbinden();
    void anordnen();

    Sitzung& sitzung_;
};

}  // namespace velmaris
