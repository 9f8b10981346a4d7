#pragma once

#include "project/c_glob.h"
#include "toolkit/felder.h"

#include <array>

namespace velmaris {

/// The plane "Klima / Gebäude": labels with the climate in force and the figures of the building. Each
/// label keeps its text until its writer runs again.
struct A_Klima {
    A_Klima() { ebene.zeige(false); }

    Feld ebene{"A_Klima"};  ///< the plane itself, hidden at first

    Anzeige anz_klimaregion{"anz_klimaregion"};
    Anzeige anz_MaxMonatName{"anz_MaxMonatName"};
    Anzeige anz_MinMonatName{"anz_MinMonatName"};
    Anzeige anz_MaxMonatTemp{"anz_MaxMonatTemp"};      ///< degC
    Anzeige anz_MinMonatTemp{"anz_MinMonatTemp"};      ///< degC
    Anzeige anz_MittelJahrTemp{"anz_MittelJahrTemp"};  ///< degC
    Anzeige anz_MaxJahrTemp{"anz_MaxJahrTemp"};        ///< degC
    Anzeige anz_MinJahrTemp{"anz_MinJahrTemp"};        ///< degC

    Anzeige anz_tau{"anz_tau"};          ///< h
    Anzeige anz_Vspez{"anz_Vspez"};      ///< W/K
    Anzeige anz_Tspez{"anz_Tspez"};      ///< W/K
    Anzeige anz_Umittel{"anz_Umittel"};  ///< W/(m2 K)
    Anzeige anz_TVspez{"anz_TVspez"};    ///< W/K

    Anzeige anz_Heizlast{"anz_Heizlast"};              ///< kW
    Anzeige anz_heizlast_spez{"anz_heizlast_spez"};    ///< W/m2
    Anzeige anz_kuehllast{"anz_kuehllast"};            ///< kW
    Anzeige anz_kuehllast_spez{"anz_kuehllast_spez"};  ///< W/m2
    Anzeige anz_Heizgrenztemp{"anz_Heizgrenztemp"};    ///< degC
    Anzeige anz_Heiztage{"anz_Heiztage"};              ///< days
    Anzeige anz_Heizgradtage{"anz_Heizgradtage"};      ///< Kd

    /// All labels, in the order of the plane.
    [[nodiscard]] std::array<const Anzeige*, 20> anzeigen() const;

    /// The figures of the two frames, as they are in the record.
    [[nodiscard]] static Wertetafel klimawerte(const Projekt& p);
    [[nodiscard]] static Wertetafel gebaeudewerte(const Projekt& p);

    /// Region or station and its temperatures; after the reading of a station.
    void stationswerte_zeigen(const Projekt& p);

    /// Time constant and losses of the building; after the hourly simulation.
    void kennwerte_zeigen(const Projekt& p);

    /// Peak loads, then `heizgrenztemperatur`; after each recalculation.
    void Ausfuellen(const Projekt& p);

    /// Heating limit temperature, heating days and degree days.
    void heizgrenztemperatur(const Projekt& p);
};

}  // namespace velmaris
