#include "studies/ergebnisnamen.h"

#include <algorithm>
#include <array>

namespace velmaris {
namespace {

struct Namenszeile {
    std::string_view ergebnis;
    Wort name;
    std::string_view einheit;
};

constexpr std::string_view je_jahr = "kWh/a";
constexpr std::string_view je_flaeche = "kWh/(m² a)";

constexpr std::array<Namenszeile, 57> namen{{
    {"qh", {"Heizwärmebedarf", "heat energy demand"}, je_jahr},
    {"qhs_sum", {"Heizwärmebedarf", "heat energy demand"}, je_flaeche},
    {"qsol", {"Genutzte solare Gewinne", "usable solar gains"}, je_jahr},
    {"qsols", {"Genutzte solare Gewinne", "usable solar gains"}, je_flaeche},
    {"qi", {"Genutzte interne Gewinne", "usable internal gains"}, je_jahr},
    {"qis", {"Genutzte interne Gewinne", "usable internal gains"}, je_flaeche},
    {"qtr", {"Transmissionsverluste", "transmission losses"}, je_jahr},
    {"qtrs", {"Transmissionsverluste", "transmission losses"}, je_flaeche},
    {"qinf", {"Lüftungsverluste", "ventilation losses"}, je_jahr},
    {"qinfs", {"Lüftungsverluste", "ventilation losses"}, je_flaeche},
    {"qverl_s", {"Verluste", "losses"}, je_flaeche},
    {"Fensterverlust_N", {"Fensterverluste Nord", "window losses north"}, je_jahr},
    {"Fensterverlust_S", {"Fensterverluste Süd", "window losses south"}, je_jahr},
    {"Fensterverlust_O", {"Fensterverluste Ost", "window losses east"}, je_jahr},
    {"Fensterverlust_W", {"Fensterverluste West", "window losses west"}, je_jahr},
    {"Fenstergewinn_N", {"Fenstergewinne Nord", "window gains north"}, je_jahr},
    {"Fenstergewinn_S", {"Fenstergewinne Süd", "window gains south"}, je_jahr},
    {"Fenstergewinn_O", {"Fenstergewinne Ost", "window gains east"}, je_jahr},
    {"Fenstergewinn_W", {"Fenstergewinne West", "window gains west"}, je_jahr},
    {"qtr_Waende", {"Verluste Wände", "losses of the walls"}, je_jahr},
    {"qtr_Dach", {"Verluste Dach", "losses of the roof"}, je_jahr},
    {"qtr_Boden", {"Verluste Boden", "losses of the floor"}, je_jahr},
    {"qtr_Fenster", {"Verluste Fenster", "losses of the windows"}, je_jahr},
    {"qtr_Tuer", {"Verluste Tür", "losses of the door"}, je_jahr},
    {"q_HE_Energietraeger", {"Endenergie Energieträger", "end energy of the carrier"}, je_flaeche},
    {"q_HE_Strom", {"Endenergie Hilfsstrom", "end energy of auxiliary electricity"}, je_flaeche},
    {"q_PE_Energietraeger", {"Primärenergie Energieträger", "primary energy of the carrier"}, je_flaeche},
    {"q_PE_Strom", {"Primärenergie Hilfsstrom", "primary energy of auxiliary electricity"}, je_flaeche},
    {"Heizlast_max", {"Maximale Heizlast", "maximum heating load"}, "kW"},
    {"Kuehllast_max", {"Maximale Kühllast", "maximum cooling load"}, "kW"},
    {"Qt", {"Transmissionsverluste", "transmission losses"}, je_jahr},
    {"Qv", {"Lüftungsverluste", "ventilation losses"}, je_jahr},
    {"Qs_genutzt", {"Genutzte solare Gewinne", "usable solar gains"}, je_jahr},
    {"Qi_genutzt", {"Genutzte interne Gewinne", "usable internal gains"}, je_jahr},
    {"Qs_brutto", {"Solare Gewinne", "solar gains"}, je_jahr},
    {"Qi_brutto", {"Interne Gewinne", "internal gains"}, je_jahr},
    {"Qh", {"Heizwärmebedarf", "heat energy demand"}, je_jahr},
    {"Kuehlbedarf", {"Kühlbedarf", "cooling demand"}, je_jahr},
    {"Kuehlgradstunden", {"Kühlgradstunden", "cooling degree hours"}, "Kh"},
    {"Stunden_kalt", {"Heizstunden", "heating hours"}, "h"},
    {"Stunden_komfort", {"Nullenergiestunden", "zero energy hours"}, "h"},
    {"Stunden_heiss", {"Kühlstunden", "cooling hours"}, "h"},
    {"Kuehl_solar", {"Kühlbedarf durch Sonne", "cooling demand by sun"}, je_jahr},
    {"Kuehl_intern", {"Kühlbedarf durch interne Gewinne", "cooling demand by internal gains"}, je_jahr},
    {"Kuehl_trans", {"Kühlbedarf durch Transmission", "cooling demand by transmission"}, je_jahr},
    {"Kuehl_lueft", {"Kühlbedarf durch Lüftung", "cooling demand by ventilation"}, je_jahr},
    {"Tmittel", {"Mittlere Außentemperatur", "mean outdoor temperature"}, "°C"},
    {"Strahlung_N", {"Strahlung Nord", "radiation north"}, "MJ/m²"},
    {"Strahlung_S", {"Strahlung Süd", "radiation south"}, "MJ/m²"},
    {"Strahlung_O", {"Strahlung Ost", "radiation east"}, "MJ/m²"},
    {"Strahlung_W", {"Strahlung West", "radiation west"}, "MJ/m²"},
    {"f_nutz", {"Nutzfläche", "heated floor"}, "m²"},
    {"v_geb", {"Gebäudevolumen", "total volume"}, "m³"},
    {"f_gf", {"Fensterfläche", "window area"}, "m²"},
    {"AV", {"A/V - Verhältnis", "S/V-ratio"}, "1/m"},
    {"tau", {"Zeitkonstante", "time constant"}, "s"},
    {"Cwirk", {"Wirksame Wärmekapazität", "effective heat capacity"}, "J/K"},
}};

}  // namespace

Ergebnisname ergebnisname(const Ergebnis& ergebnis, std::string_view sprache) {
    const auto* const treffer = std::ranges::find(namen, ergebnis.name, &Namenszeile::ergebnis);
    if (treffer == namen.end()) return {ergebnis.name, {}};
    return {std::string(treffer->name.in(sprache)), std::string(treffer->einheit)};
}

}  // namespace velmaris
