#include "tools/help/groessen.h"

#include <algorithm>
#include <string>
#include <tuple>

namespace velmaris::hilfe {
namespace {

[[noreturn]] void melden(std::string_view feld, const std::string& grund) {
    throw Laufzeitfehler({grund, grund}, std::string(feld));
}

bool gleich(const Scrollzeile& a, const Scrollzeile& b) {
    const auto merkmale = [](const Scrollzeile& z) {
        return std::tie(z.minimum, z.maximum, z.klein, z.gross, z.teiler, z.stellen, z.anzeigefaktor,
                        z.einheit);
    };
    return merkmale(a) == merkmale(b);
}

std::vector<Groesse> alle_groessen() {
    return {
        {"E_Geometrie", {"Länge", "length"}, {"l_sb"}},
        {"E_Geometrie", {"Breite", "width"}, {"b_sb"}},
        {"E_Geometrie", {"Höhe (ohne Dach)", "height (without roof)"}, {"h_sb"}},
        {"E_Geometrie", {"Dachhöhe", "height of roof"}, {"hd_sb"}},
        {"E_Geometrie", {"Anzahl Geschosse", "number of floors"}, {"ag_sb"}},
        {"E_Geometrie", {"Auslenkung aus der Südrichtung", "deviation from south direction"}, {"orient_sb"}},
        {"E_Fenster", {"Wandanteil", "fraction of wall"}, {"fn_sb", "fs_sb", "fo_sb", "fw_sb"}},
        {"E_Fenster", {"U-Wert Glas", "U-value glazing"}, {"kfgn_sb", "kfgs_sb", "kfgo_sb", "kfgw_sb"}},
        {"E_Fenster", {"U-Wert Rahmen", "U-value frame"}, {"kfrn_sb", "kfrs_sb", "kfro_sb", "kfrw_sb"}},
        {"E_Fenster", {"g-Wert", "g-value"}, {"gfn_sb", "gfs_sb", "gfo_sb", "gfw_sb"}},
        {"E_Fenster", {"Rahmenanteil", "fraction of frame"}, {"ran_sb", "ras_sb", "rao_sb", "raw_sb"}},
        {"E_Fenster", {"Verschattung", "shading"}, {"verschn_sb", "verschs_sb", "verscho_sb", "verschw_sb"}},
        {"E_Daemmung",
         {"U-Werte der Wände", "U-values of the walls"},
         {"kwn_sb", "kws_sb", "kwo_sb", "kww_sb"}},
        {"E_Daemmung", {"U-Wert Dach oder obere Geschoßdecke", "U-value of roof or upper floor"}, {"kd_sb"}},
        {"E_Daemmung", {"U-Wert untere Geschoßdecke", "U-value of lower floor"}, {"kk_sb"}},
        {"E_Daemmung", {"Fläche der Tür", "area of the door"}, {"ft_sb"}},
        {"E_Daemmung", {"U-Wert der Tür", "U-value of the door"}, {"kt_sb"}},
        {"E_Daemmung",
         {"Absorptionskoeffizient der Wände", "Absorption coefficient of the walls"},
         {"absfaktor_sb"}},
        {"E_Gebaeude", {"Soll-Raumlufttemperatur", "indoor set temperature"}, {"Troom_sb"}},
        {"E_Gebaeude", {"Überwärmungsgrenze", "overheating"}, {"Tueber_sb"}},
        {"E_Gebaeude", {"Freie Lüftung", "natural ventilation"}, {"infiltration_sb"}},
        {"E_Gebaeude", {"Mechanische Lüftung", "mechanical ventilation"}, {"lw_sb"}},
        {"E_Gebaeude", {"Wärmerückgewinnung", "heat recovery"}, {"WRG_Sb"}},
        {"E_Gebaeude", {"Interne Gewinne", "internal gains"}, {"intg_sb"}},
        {"E_Gebaeude",
         {"Effizienzfaktor Klimaanlage", "efficiency factor of air conditioning"},
         {"Klimaeffizienz_sb"}},
    };
}

}  // namespace

std::span<const Groesse> groessen() {
    static const std::vector<Groesse> alle = alle_groessen();
    return alle;
}

const Scrollzeile& scrollzeile(std::string_view feld) {
    const auto alle = scrollzeilen();
    const auto treffer =
        std::find_if(alle.begin(), alle.end(), [feld](const Scrollzeile& z) { return z.name == feld; });
    if (treffer == alle.end()) melden(feld, "the help lists a scroll field that does not exist");
    return *treffer;
}

const Scrollzeile& zeile(const Groesse& groesse) {
    const Scrollzeile& erste = scrollzeile(groesse.felder.front());
    for (const std::string_view feld : groesse.felder) {
        if (!gleich(erste, scrollzeile(feld))) melden(feld, "the facades differ in range or steps");
    }
    return erste;
}

void vollstaendigkeit_pruefen() {
    for (const Scrollzeile& z : scrollzeilen()) {
        const auto alle = groessen();
        const bool genannt = std::any_of(alle.begin(), alle.end(), [&z](const Groesse& groesse) {
            return std::find(groesse.felder.begin(), groesse.felder.end(), z.name) != groesse.felder.end();
        });
        if (!genannt) melden(z.name, "no row of the list of inputs");
    }
}

}  // namespace velmaris::hilfe
