#pragma once

#include "charts/tooltip.h"
#include "energy/Heizsysteme.h"
#include "energy/katalog_werte.h"
#include "energy/planes/auswahlrahmen.h"
#include "project/sitzung.h"
#include "toolkit/felder.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace velmaris {

/// The energy plane: choice of the heat supply, end and primary energy.
struct E_Energie {
    explicit E_Energie(Sitzung& sitzung);

    Feld ebene{"E_Energie"};  ///< the plane itself, hidden at first

    // --- Choice of the heat supply ---
    Anzeige Label1{"Label1"}, Label2{"Label2"}, Label3{"Label3"};
    Anzeige Label_System{"Label_System"};
    Anzeige Label_Übergabe{"Label_Übergabe"};
    Anzeige Label_Energieträger{"Label_Energieträger"};
    Knopf Command1{"Command1"}, Command2{"Command2"}, Command3{"Command3"};
    Auswahlrahmen Auswahl;

    // --- From heat demand to primary energy, captions, displays and units ---
    Anzeige Frame1{"Frame1"};
    Anzeige Label11{"Label11"}, anz_qhs_sum{"anz_qhs_sum"}, Einheit_qhs_sum{"Einheit_qhs_sum"};
    Anzeige Label30{"Label30"}, anz_q_verlust{"anz_q_verlust"}, Einheit_q_verlust{"Einheit_q_verlust"};
    Anzeige Label16{"Label16"}, anz_e_g{"anz_e_g"};
    Anzeige Label8{"Label8"}, anz_q_HE_Energieträger{"anz_q_HE_Energieträger"};
    Anzeige Einheit_q_HE_Energieträger{"Einheit_q_HE_Energieträger"};
    Anzeige Label33{"Label33"}, anz_q_HE_Strom{"anz_q_HE_Strom"}, Einheit_q_HE_Strom{"Einheit_q_HE_Strom"};
    Anzeige Label21{"Label21"}, anz_q_PE_Energieträger{"anz_q_PE_Energieträger"};
    Anzeige Einheit_q_PE_Energieträger{"Einheit_q_PE_Energieträger"};
    Anzeige Label14{"Label14"}, anz_q_PE_Strom{"anz_q_PE_Strom"}, Label6{"Label6"};

    // --- Primary energy factors ---
    Anzeige Frame8{"Frame8"};
    Anzeige Label27{"Label27"},
        anz_Primärenergiefaktor_Energieträger{"anz_Primärenergiefaktor_Energieträger"};
    Anzeige Label34{"Label34"}, anz_Primärenergiefaktor_Strom{"anz_Primärenergiefaktor_Strom"};

    // --- Never shown; the documents read their texts ---
    Anzeige anz_q_ce{"anz_q_ce"}, anz_q_d{"anz_q_d"}, anz_q_s{"anz_q_s"};
    Anzeige anz_q_d_he{"anz_q_d_he"}, anz_q_s_he{"anz_q_s_he"}, anz_q_g_he{"anz_q_g_he"};

    // --- Pictures ---
    Bildfeld Picture2{"Picture2"};  ///< main carrier
    Bildfeld Picture3{"Picture3"};  ///< auxiliary electricity
    Anzeige Monatsverbrauch{"Monatsverbrauch"};
    Bildfeld Monatsübersicht_Energieträger{"Monatsübersicht_Energieträger"};
    Tooltip tooltip;

    /// The figures of `Frame1` and of `Frame8`; what is hidden is not among them.
    [[nodiscard]] Wertetafel endenergiewerte() const;
    [[nodiscard]] Wertetafel faktorwerte() const;

    /// Fills the catalogue and the captions in the language of the run.
    void laden();

    /// The plane has come to the front: recalculates and shows the results.
    void aktiviert();

    /// End and primary energy of the year into the record, and all of it onto the plane; the pictures only
    /// while the plane is visible. Errors as in `kombination_pruefen`.
    void EnergRefresh();

    /// Shows the results with their characteristic values, the second half of it.
    void zeigen(const Kennwerte& kennwerte);

    /// Takes entry i (1..9) of the open list and closes it: stores the choice and recalculates. The dirty
    /// flag stays. An entry that is hidden, or that the row of the record does not offer, cannot be taken.
    void Label_Auswahl_Click(int i);

    /// Shows the texts of the record's choice and closes the list; a heating without transfer gets transfer
    /// 1. Errors as in `kombination_pruefen`.
    void eingaben_anzeigen();

    /// The characteristic values shown last.
    [[nodiscard]] const Kennwerte& kennwerte() const { return kennwerte_; }

    /// A click on the panel beside its entries, which closes it.
    void Frame_Auswahl_Click();

    /// Text of the tooltip over month m (1..12); lines end at a carriage return.
    [[nodiscard]] std::string tooltip_text(int m) const;

  private:
    void auswahl_oeffnen(const Anzeige& feld);
    void auswahl_zeigen();
    void felder_fuellen(const Kennwerte& k);
    void beschriften(const Kurzname& name);
    void bilder_erneuern() const;
    [[nodiscard]] const std::string& eintrag(std::string_view feld, int i) const;
    [[nodiscard]] std::int16_t& stelle(std::string_view feld) const;

    Sitzung& sitzung_;
    Heizsystemkatalog Heizsysteme;
    Kennwerte kennwerte_;
};

}  // namespace velmaris
