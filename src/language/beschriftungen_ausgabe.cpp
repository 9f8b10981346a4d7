#include "language/beschriftungstabellen.h"

#include <array>

namespace velmaris::beschriftungstabellen {
namespace {

constexpr std::array A_Menue{
    Beschriftung{"Uebersicht", "Übersicht", "Preview"},
    Beschriftung{"Klima", "Klima / Gebäude", "Climate / building"},
    Beschriftung{"Heizen", "Heizen", "Heating"},
    Beschriftung{"Kuehlen", "Kühlen", "Cooling"},
    Beschriftung{"Sankey", "Energieflüsse", "Energy flows"},
};

constexpr std::array A_Uebersicht{
    Beschriftung{"Temperaturen", "Temperaturdiagramm vergrößern", "Enlarge the temperature chart"},
    Beschriftung{"Label9", " Heizwärmebedarf", "heat energy demand"},
    Beschriftung{"Label1", "Kühlbedarf", "cooling demand"},
    Beschriftung{"Label32", "Heizstunden", "heating hours"},
    Beschriftung{"Label01", "Nullenergiestunden", "zero energy hours"},
    Beschriftung{"Label02", "Kühlstunden", "cooling hours"},
    Beschriftung{"Label_Tooltip", "Infos", "Infos"},
};

constexpr std::array A_Klima{
    Beschriftung{fenstertitel, "Velmaris - Klimainformationen", "Velmaris - Klimainformationen"},
    Beschriftung{"Frame1", "Klima", "Climate"},
    Beschriftung{"Label_MaxJahrTemp", "Maximale Temperatur des Jahres", "Maximum temperature of the year"},
    Beschriftung{"Label_MaxMonatTemp", "Maximaler Monatsmittelwert", "Maximum monthly mean value"},
    Beschriftung{"Label_MaxMonatName", "Monat mit maximaler Mitteltemperatur",
                 "Month with maximum mean temperature"},
    Beschriftung{"Label_MittelJahrTemp", "Jahresmitteltemperatur", "Mean temperature of the year"},
    Beschriftung{"Label_MinMonatTemp", "Minimaler Monatsmittelwert", "Minimum monthly mean value"},
    Beschriftung{"Label_MinMonatName", "Monat mit minimaler Mitteltemperatur",
                 "Month with minimum mean temperature"},
    Beschriftung{"Label_MinJahrTemp", "Minimale Temperatur des Jahres", "Minimum temperature of the year"},
    Beschriftung{"Label_Heizgradtage", "Heizgradtage (12/20)", "Heating degree days (12/20)"},
    Beschriftung{"Frame2", "Gebäude", "Building"},
    Beschriftung{"Label_Umittel", "Mittlerer U-Wert", "Mean U-value"},
    Beschriftung{"Label_Tspez", "Spez. Transmissionsverluste", "Spec. transmission losses"},
    Beschriftung{"Label_Vspez", "Spez. Lüftungsverluste", "Spec. ventilation losses"},
    Beschriftung{"Label_TVspez", "Summe spez. Verluste", "Spec. losses"},
    Beschriftung{"Label_tau", "Thermische Trägheit", "Thermal inertia"},
    Beschriftung{"Label_Heizlast", "Maximale Heizlast", "Maximum heating load"},
    Beschriftung{"Label_heizlast_spez", "Maximale spezifische Heizlast", "Maximum specific heating load"},
    Beschriftung{"Label_kuehllast", "Maximale Kühllast", "Maximum cooling load"},
    Beschriftung{"Label_kuehllast_spez", "Maximale spezifische Kühllast", "Maximum specific cooling load"},
    Beschriftung{"Label_Heizgrenztemp", "Heizgrenztemperatur", "Limit temperature for heating"},
    Beschriftung{"Label_Heiztage", "Effektive Heiztage", "Effective heating days"},
    Beschriftung{"Einheit_MaxJahrTemp", "°C", "°C"},
    Beschriftung{"Einheit_MaxMonatTemp", "°C", "°C"},
    Beschriftung{"Einheit_MittelJahrTemp", "°C", "°C"},
    Beschriftung{"Einheit_MinMonatTemp", "°C", "°C"},
    Beschriftung{"Einheit_MinJahrTemp", "°C", "°C"},
    Beschriftung{"Einheit_Heizgradtage", "Kd", "Kd"},
    Beschriftung{"Einheit_Umittel", "W/(m² K)", "W/(m² K)"},
    Beschriftung{"Einheit_Tspez", "W/K", "W/K"},
    Beschriftung{"Einheit_Vspez", "W/K", "W/K"},
    Beschriftung{"Einheit_TVspez", "W/K", "W/K"},
    Beschriftung{"Einheit_tau", "Stunden", "hours"},
    Beschriftung{"Einheit_Heizlast", "kW", "kW"},
    Beschriftung{"Einheit_heizlast_spez", "W/m²", "W/m²"},
    Beschriftung{"Einheit_kuehllast", "kW", "kW"},
    Beschriftung{"Einheit_kuehllast_spez", "W/m²", "W/m²"},
    Beschriftung{"Einheit_Heizgrenztemp", "°C", "°C"},
    Beschriftung{"Einheit_Heiztage", "Tage", "days"},
};

constexpr std::array A_Heizen{
    Beschriftung{"Label1", "Jahresbilanz:", "yearly balance:"},
    Beschriftung{"Label6", " Transmissionsverluste:", " transmission losses:"},
    Beschriftung{"Label5", " Lüftungsverluste:", " ventilation losses:"},
    Beschriftung{"Label4", " nutzbare interne Gewinne:", " usable internal gains:"},
    Beschriftung{"Label3", " nutzbare solare Gewinne:", " usable solar gains:"},
    Beschriftung{"Label2", " Heizwärmebedarf:", " heat energy demand:"},
    Beschriftung{"Label15", "  spezifisch  in kWh/(m² a)", "  specific  in kWh/(m² a)"},
    Beschriftung{"Label16", "  absolut  in kWh/a", "  absolute  in kWh/a"},
    Beschriftung{"Label17", "nutzbare solare Gewinne", "useful solar gains"},
    Beschriftung{"Label18", "Transmissionsverluste durch die Fenster",
                 "transmission losses through the windows"},
    Beschriftung{"Label19", " N      S     O     W", " N      S     E     W"},
    Beschriftung{"Label8", "Transm.-Verluste", "transm. losses"},
    Beschriftung{"Label7", "Lüftungsverluste", "vent. losses"},
    Beschriftung{"Label25", "interne Gewinne", "internal gains"},
    Beschriftung{"Label21", "solare Gewinne", "solar gains"},
    Beschriftung{"Label9", "Heizwärme", "heat energy"},
    Beschriftung{"Label13", "Nutzbare solare Gewinne", "usable solar gains"},
    Beschriftung{"Label11", "Nicht nutzbare solare Gewinne", "non usable solar gains"},
    Beschriftung{"Label12", "Nutzbare interne Gewinne", "usable internal gains"},
    Beschriftung{"Label10", "Nicht nutzbare interne Gewinne", "non usable internal gains"},
    Beschriftung{"Label_Tooltip", "Infos", "Infos"},
};

constexpr std::array A_Kuehlen{
    Beschriftung{"Label1", "Durchschnittliche Überwärmung pro Tag in Stunden (ohne Kühlung)",
                 "monthly average of overheated hours per day"},
    Beschriftung{"Label10", "Kühlbedarf", "cooling demand"},
    Beschriftung{"Label2", " Kühlgradstunden", "cooling degree hours"},
    Beschriftung{"Label_Tooltip", "Infos", "Infos"},
};

constexpr std::array A_Sankey{
    Beschriftung{"Label1", "Energiefluß- (Sankey-) Diagramm Heizen",
                 "Energy flow (Sankey) diagram for heating"},
    Beschriftung{"Label2", "Energiefluß- (Sankey-) Diagramm Kühlen",
                 "Energy flow (Sankey) diagram for cooling"},
};

constexpr std::array A_Report{
    Beschriftung{fenstertitel, "Velmaris - Report", "Velmaris - Report"},
    Beschriftung{"Command_Speichern", "Report speichern", "Save report"},
    Beschriftung{"Command_Schliessen", "Schließen", "Close"},
};

constexpr std::array A_Zoom{
    Beschriftung{fenstertitel, "Velmaris", "Velmaris"},
    Beschriftung{"Command_Schliessen", "Schließen", "Close"},
};

constexpr std::array fenster{
    Fenster{"A_Menue", A_Menue},     Fenster{"A_Uebersicht", A_Uebersicht},
    Fenster{"A_Klima", A_Klima},     Fenster{"A_Heizen", A_Heizen},
    Fenster{"A_Kuehlen", A_Kuehlen}, Fenster{"A_Sankey", A_Sankey},
    Fenster{"A_Report", A_Report},   Fenster{"A_Zoom", A_Zoom},
};

}  // namespace

std::span<const Fenster> ausgabe() {
    return fenster;
}

}  // namespace velmaris::beschriftungstabellen
