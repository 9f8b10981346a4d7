#pragma once

#include "charts/tooltip.h"
#include "project/sitzung.h"
#include "toolkit/felder.h"

#include <string>

namespace velmaris {

/// The heating plane: heat balance, use of the gains, windows of the facades.
struct A_Heizen {
    explicit A_Heizen(Sitzung& sitzung);

    Feld ebene{"A_Heizen"};  ///< the plane itself, hidden at first

    // --- Month and year balance, with the legend that the tooltips read ---
    Bildfeld Heizbilanz{"Heizbilanz"}, JahrBilanz{"JahrBilanz"};
    Anzeige Label7{"Label7"};    ///< ventilation losses
    Anzeige Label8{"Label8"};    ///< transmission losses
    Anzeige Label21{"Label21"};  ///< solar gains
    Anzeige Label25{"Label25"};  ///< internal gains
    Anzeige Label9{"Label9"};    ///< heat demand

    // --- Usable and other gains ---
    Bildfeld NutzungsgradMonat{"NutzungsgradMonat"}, NutzungsgradJahr{"NutzungsgradJahr"};
    Anzeige Label13{"Label13"}, Label11{"Label11"};  ///< solar: usable, not usable
    Anzeige Label12{"Label12"}, Label10{"Label10"};  ///< internal: usable, not usable

    // --- Table of the year: captions, kWh/(m2 a), kWh/a ---
    Anzeige Label1{"Label1"}, Label15{"Label15"}, Label16{"Label16"};
    Anzeige Label6{"Label6"}, qtrs_anz{"qtrs_anz"}, qtr_anz{"qtr_anz"};
    Anzeige Label5{"Label5"}, qinfs_anz{"qinfs_anz"}, qinf_anz{"qinf_anz"};
    Anzeige Label4{"Label4"}, qis_anz{"qis_anz"}, qi_anz{"qi_anz"};
    Anzeige Label3{"Label3"}, qsols_anz{"qsols_anz"}, qsol_anz{"qsol_anz"};
    Anzeige Label2{"Label2"}, qh_s_anz{"qh_s_anz"}, qh_anz{"qh_anz"};

    // --- Windows of the facades: gains and losses ---
    Anzeige Label17{"Label17"}, Label18{"Label18"};  ///< what the bars stand for
    Anzeige Label19{"Label19"};                      ///< letters under the bars
    Bildfeld Gewinne_N{"Gewinne_N"}, Verluste_N{"Verluste_N"};
    Bildfeld Gewinne_S{"Gewinne_S"}, Verluste_S{"Verluste_S"};
    Bildfeld Gewinne_O{"Gewinne_O"}, Verluste_O{"Verluste_O"};
    Bildfeld Gewinne_W{"Gewinne_W"}, Verluste_W{"Verluste_W"};

    Tooltip tooltip;

    /// Captions in the language of the run.
    void laden();

    /// The plane has come to the front: shows the record as it stands.
    void aktiviert();

    /// The table of the year.
    [[nodiscard]] Wertetafel jahreswerte() const;

    /// The ten numbers of the table.
    void HeizFelderAusfuellen();

    /// Draw anew: the eight facade bars, the year balance, the month balance, both charts of the gains.
    void FassadenbalkenZeichnen() const;
    void JahrBilanzZeichnen() const;
    void HeizbilanzZeichnen() const;
    void NutzungsgradZeichnen() const;

    /// Tooltip texts; m is 1..12.
    [[nodiscard]] std::string tipp_heizbilanz(int m) const;
    [[nodiscard]] std::string tipp_jahrbilanz() const;
    [[nodiscard]] std::string tipp_nutzungsgrad_monat(int m) const;
    [[nodiscard]] std::string tipp_nutzungsgrad_jahr() const;

  private:
    void bilder_verbinden();
    void anordnen();

    Sitzung& sitzung_;
};

}  // namespace velmaris
