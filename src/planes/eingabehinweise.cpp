#include "planes/eingabehinweise.h"

#include "planes/fensterseite.h"
#include "planes/scrolltabelle.h"
#include "toolkit/zahlen.h"

#include <algorithm>
#include <iterator>

namespace velmaris {
namespace {

using Hinweise = std::vector<Eingabehinweis>;

/// Rules for taking data in existing buildings (walls and roofs of 1949 to 1968), the limits for building
/// parts that are renewed, and the certification criteria of passive houses.
constexpr Wort quelle_u_werte{
    "Regeln zur Datenaufnahme im Wohngebäudebestand 2015, GEG Anlage 7, Passivhaus Institut",
    "German rules for existing buildings 2015, German Buildings Energy Act annex 7, Passive House Institute"};
constexpr Wort quelle_balance{"DIN V 4108-6", "DIN V 4108-6"};

Hinweise geometrie() {
    return {
        {"E_Geometrie",
         {"Länge", "length"},
         {"l_sb"},
         {"Ausdehnung von Ost nach West; so lang sind Nord- und Südfassade.",
          "Extent from east to west; so long are the north and the south facade."},
         {{{"Reihenhaus", "terraced house"}, 6},
          {{"Einfamilienhaus", "detached house"}, 10},
          {{"Wohnblock", "block of flats"}, 30}}},
        {"E_Geometrie",
         {"Breite", "width"},
         {"b_sb"},
         {"Ausdehnung von Nord nach Süd; so lang sind Ost- und Westfassade.",
          "Extent from north to south; so long are the east and the west facade."},
         {{{"Einfamilienhaus", "detached house"}, 10},
          {{"Reihenhaus", "terraced house"}, 11},
          {{"Wohnblock", "block of flats"}, 12}}},
        {"E_Geometrie",
         {"Höhe (ohne Dach)", "height (without roof)"},
         {"h_sb"},
         {"Höhe aller Geschosse zusammen, vom Boden bis zur Traufe.",
          "Height of all floors together, from the ground to the eaves."},
         {{{"ein Geschoss", "one floor"}, 2.6},
          {{"zwei Geschosse", "two floors"}, 5.2},
          {{"vier Geschosse", "four floors"}, 10.4}}},
        {"E_Geometrie",
         {"Dachhöhe", "height of roof"},
         {"hd_sb"},
         {"Von der Traufe bis zum First. Sie wirkt nur mit beheiztem Dachgeschoss.",
          "From the eaves to the ridge. It has an effect only with a heated attic."},
         {{{"30° Neigung bei 10 m Breite", "pitch of 30° over 10 m"}, 2.9},
          {{"45° Neigung bei 10 m Breite", "pitch of 45° over 10 m"}, 5}}},
        {"E_Geometrie",
         {"Anzahl Geschosse", "number of floors"},
         {"ag_sb"},
         {"Beheizte Geschosse ohne das Dachgeschoss.", "Heated floors without the attic."},
         {{{"Bungalow", "bungalow"}, 1},
          {{"Einfamilienhaus", "detached house"}, 2},
          {{"Wohnblock", "block of flats"}, 4}}},
        {"E_Geometrie",
         {"Auslenkung aus der Südrichtung", "deviation from south direction"},
         {"orient_sb"},
         {"Um so viel Grad ist die Südfassade aus der Südrichtung gedreht, nach Westen positiv.",
          "By so many degrees the south facade is turned away from south, towards west positive."},
         {{{"nach Süden", "towards south"}, 0},
          {{"nach Südwesten", "towards southwest"}, 45},
          {{"nach Südosten", "towards southeast"}, -45}}},
        {"E_Geometrie",
         {"Beheiztes Dachgeschoß", "heated roof"},
         {"Check_Dachgeschoss"},
         {"Der Dachraum gehört zum beheizten Haus.", "The attic belongs to the heated house."}},
        {"E_Geometrie",
         {"Dachfirst", "roof ridge"},
         {"Option_Dachfirst"},
         {"Bei Nord-Süd-Richtung blicken die Dachflächen nach Ost und West und die Giebel nach Nord und Süd; "
          "bei Ost-West-Richtung umgekehrt.",
          "With north-south-direction the roof planes face east and west and the gables north and south; "
          "with east-west-direction it is the other way round."}},
    };
}

Hinweise fenster() {
    const Fenstertyp &einfach = fenstertypen()[0], &doppelt = fenstertypen()[1],
                     &dreifach = fenstertypen()[5];
    const Wort einfachglas{"Einfachglas", "single glazing"},
        doppelglas{"altes Doppelglas", "old double glazing"};
    const Wort dreifachglas{"Dreifach-Wärmeschutzglas", "triple heat protection glazing"};
    return {
        {"E_Fenster",
         {"Wandanteil", "fraction of wall"},
         {"fn_sb", "fs_sb", "fo_sb", "fw_sb"},
         {"Anteil der Fenster an der ganzen Fassade (ohne Giebel), einschließlich Rahmen.",
          "Share of the windows in the whole facade (without the gable), frames included."},
         {{{"Nordseite", "north side"}, 5},
          {{"Ost- und Westseite", "east and west side"}, 15},
          {{"große Südfenster", "large south windows"}, 40}}},
        {"E_Fenster",
         {"U-Wert Glas", "U-value glazing"},
         {"kfgn_sb", "kfgs_sb", "kfgo_sb", "kfgw_sb"},
         {"Wärmedurchgang durch das Glas je m² und Kelvin.",
          "Heat flow through the glass per m² and kelvin."},
         {{einfachglas, einfach.kfg}, {doppelglas, doppelt.kfg}, {dreifachglas, dreifach.kfg}}},
        {"E_Fenster",
         {"U-Wert Rahmen", "U-value frame"},
         {"kfrn_sb", "kfrs_sb", "kfro_sb", "kfrw_sb"},
         {"Wärmedurchgang durch den Rahmen je m² und Kelvin.",
          "Heat flow through the frame per m² and kelvin."},
         {{einfachglas, einfach.kfr}, {doppelglas, doppelt.kfr}, {dreifachglas, dreifach.kfr}}},
        {"E_Fenster",
         {"g-Wert", "g-value"},
         {"gfn_sb", "gfs_sb", "gfo_sb", "gfw_sb"},
         {"Anteil der auftreffenden Sonnenenergie, der durch die Verglasung in den Raum kommt.",
          "Share of the incident solar energy that comes through the glazing into the room."},
         {{einfachglas, einfach.gf}, {doppelglas, doppelt.gf}, {dreifachglas, dreifach.gf}}},
        {"E_Fenster",
         {"Rahmenanteil", "fraction of frame"},
         {"ran_sb", "ras_sb", "rao_sb", "raw_sb"},
         {"Anteil des Rahmens an der Fensterfläche; durch ihn kommt keine Sonne.",
          "Share of the frame in the window area; no sun comes through it."},
         {{{"große Scheiben", "large panes"}, 20}, {{"üblich", "usual"}, 30}},
         quelle_balance},
        {"E_Fenster",
         {"Verschattung", "shading"},
         {"verschn_sb", "verschs_sb", "verscho_sb", "verschw_sb"},
         {"Anteil der Sonne, den Nachbarhäuser, Bäume oder Blenden wegnehmen. Der Wert gilt das ganze Jahr.",
          "Share of the sun that neighbouring houses, trees or overhangs take away. The value holds the "
          "whole year."},
         {{{"freie Lage", "free position"}, 0}, {{"üblich", "usual"}, 10}},
         quelle_balance},
        {"E_Fenster",
         {"Fenstertyp", "window type"},
         {"fenstern_typ", "fensters_typ", "fenstero_typ", "fensterw_typ"},
         {"Die Wahl setzt U-Wert des Glases, g-Wert und U-Wert des Rahmens.",
          "The choice sets the U-value of the glazing, the g-value and the U-value of the frame."}},
        {"E_Fenster",
         {"Gleiche oder verschiedene Fenster", "the same or different windows"},
         {"Option1"},
         {"Gleiche Fenster haben an allen Fassaden die Werte der Südseite, individuelle an jeder Fassade "
          "ihre eigenen.",
          "Windows that are the same have the values of the south side at all facades, individual ones their "
          "own at each facade."}},
    };
}

Hinweise daemmung() {
    const Wort altbau{"Altbau", "old building"}, neubau{"Neubau", "new building"};
    const Wort passivhaus{"Passivhaus", "passive house"};
    return {
        {"E_Daemmung",
         {"U-Werte der Wände", "U-values of the walls"},
         {"kwn_sb", "kws_sb", "kwo_sb", "kww_sb"},
         {"Wärmedurchgang der Wand je m² und Kelvin, für jede Fassade einzeln.",
          "Heat flow through the wall per m² and kelvin, for each facade."},
         {{altbau, 1.4}, {neubau, 0.24}, {passivhaus, 0.15}},
         quelle_u_werte},
        {"E_Daemmung",
         {"U-Wert Dach oder obere Geschoßdecke", "U-value of roof or upper floor"},
         {"kd_sb"},
         {"Wärmedurchgang je m² und Kelvin: mit beheiztem Dachgeschoss der des Dachs, sonst der der obersten "
          "Decke.",
          "Heat flow per m² and kelvin: with a heated attic through the roof, otherwise through the ceiling "
          "of the top floor."},
         {{altbau, 1.4}, {neubau, 0.24}, {passivhaus, 0.15}},
         quelle_u_werte},
        {"E_Daemmung",
         {"U-Wert untere Geschoßdecke", "U-value of lower floor"},
         {"kk_sb"},
         {"Wärmedurchgang der untersten Decke oder Bodenplatte je m² und Kelvin.",
          "Heat flow through the lowest floor or ground slab per m² and kelvin."},
         {{altbau, 1}, {neubau, 0.3}, {passivhaus, 0.15}},
         quelle_u_werte},
        {"E_Daemmung",
         {"Fläche der Tür", "area of the door"},
         {"ft_sb"},
         {"Fläche der Tür; sie geht immer von der Nordwand ab.",
          "Area of the door; it always comes off the north wall."},
         {{{"keine Tür", "no door"}, 0}, {{"Haustür", "front door"}, 2}}},
        {"E_Daemmung",
         {"U-Wert der Tür", "U-value of the door"},
         {"kt_sb"},
         {"Wärmedurchgang der Tür je m² und Kelvin.", "Heat flow through the door per m² and kelvin."},
         {{{"ungedämmte Holztür", "wooden door without insulation"}, 2.9}, {neubau, 1.8}, {passivhaus, 0.8}},
         {"DIN V 4108-4, GEG Anlage 7, Passivhaus Institut",
          "DIN V 4108-4, German Buildings Energy Act annex 7, Passive House Institute"}},
        {"E_Daemmung",
         {"Absorptionskoeffizient der Wände", "Absorption coefficient of the walls"},
         {"absfaktor_sb"},
         {"Anteil der Sonnenstrahlung, den die äußere Oberfläche aufnimmt. Er wirkt nur in der "
          "Stundensimulation.",
          "Share of the solar radiation that the outer surface takes up. It has an effect in the hourly "
          "simulation only."},
         {{{"heller Anstrich", "light paint"}, 0.4},
          {{"gedeckter Anstrich", "muted paint"}, 0.6},
          {{"dunkler Anstrich", "dark paint"}, 0.8}},
         quelle_balance},
        {"E_Daemmung",
         {"Oberer Abschluss gegen", "upper closure towards"},
         {"ogd", "ogd_Dach"},
         {"Was über dem oberen Abschluss liegt; mit beheiztem Dachgeschoss ist es immer die Außenluft.",
          "What lies above the upper closure; with a heated attic it is always the outside air."}},
        {"E_Daemmung",
         {"Untere Geschoßdecke gegen", "lower floor towards"},
         {"ugd"},
         {"Was unter der unteren Geschoßdecke liegt.", "What lies below the lower floor."}},
        {"E_Daemmung",
         {"Hinterlüftetes Dach", "ventilated roof"},
         {"cbk_hDach"},
         {"Die Sonne auf dem Dach erwärmt das Haus nicht, weil die Luft unter der Deckung die Wärme abführt. "
          "Wirkt nur in der Stundensimulation.",
          "The sun on the roof does not warm the house, because the air below the covering carries the heat "
          "away. It has an effect in the hourly simulation only."}},
        {"E_Daemmung",
         {"Wärmebrücken", "heat bridges"},
         {"Waermebruecken_opt"},
         {"Ein Zuschlag auf die U-Werte von Wänden, Dach und Boden; Fenster und Tür bekommen keinen.",
          "A surcharge on the U-values of walls, roof and floor; windows and door get none."}},
    };
}

Hinweise gebaeude() {
    return {
        {"E_Gebaeude",
         {"Soll-Raumlufttemperatur", "indoor set temperature"},
         {"Troom_sb"},
         {"Unter diesen Wert lässt die Heizung die Raumluft nie sinken, Tag und Nacht.",
          "The heating never lets the room air fall below it, day and night."},
         {{{"Wohnhaus", "house"}, 20}, {{"Büro", "office"}, 21}},
         {"DIN V 18599-10", "DIN V 18599-10"}},
        {"E_Gebaeude",
         {"Überwärmungsgrenze", "overheating"},
         {"Tueber_sb"},
         {"Über dieser Temperatur gilt der Raum als überwärmt; auf diesen Wert kühlt die Kühlung.",
          "Above this temperature the room counts as overheated; the cooling cools down to it."},
         {{{"kühle Sommer (Region A)", "cool summers (region A)"}, 25},
          {{"mäßige (B)", "moderate (B)"}, 26},
          {{"heiße (C)", "hot (C)"}, 27}},
         {"DIN 4108-2", "DIN 4108-2"}},
        {"E_Gebaeude",
         {"Freie Lüftung", "natural ventilation"},
         {"infiltration_sb"},
         {"Luftwechsel durch Fugen und Fenster. 1/h bedeutet, dass die Luft des Hauses in jeder Stunde "
          "einmal ersetzt wird.",
          "Air change through joints and windows. 1/h means that the air of the house is replaced once in "
          "each hour."},
         {{{"geprüft dicht", "tested airtight"}, 0.6},
          {{"nicht geprüft", "not tested"}, 0.7},
          {{"offenbar undicht", "plainly leaky"}, 1}},
         {"DIN V 4108-6, EnEV Anlage 3", "DIN V 4108-6, German energy saving ordinance annex 3"}},
        {"E_Gebaeude",
         {"Mechanische Lüftung", "mechanical ventilation"},
         {"lw_sb"},
         {"Luftwechsel durch eine Lüftungsanlage.", "Air change by a ventilation plant."},
         {{{"ohne Anlage", "no plant"}, 0},
          {{"Passivhaus", "passive house"}, 0.3},
          {{"Wohnungslüftung", "ventilated flat"}, 0.4}},
         {"Passivhaus Institut, DIN V 4701-10", "Passive House Institute, DIN V 4701-10"}},
        {"E_Gebaeude",
         {"Wärmerückgewinnung", "heat recovery"},
         {"WRG_Sb"},
         {"Anteil der Abluftwärme, den die Lüftungsanlage zurückgewinnt.",
          "Share of the heat of the exhaust air that the ventilation plant recovers."},
         {{{"ohne", "none"}, 0}, {{"Passivhaus mindestens", "passive house at least"}, 75}},
         {"Passivhaus Institut", "Passive House Institute"}},
        {"E_Gebaeude",
         {"Interne Gewinne", "internal gains"},
         {"intg_sb"},
         {"Wärme von Menschen, Licht und Geräten je m² Nutzfläche und Jahr; daneben als mittlere Leistung.",
          "Heat of people, light and devices per m² of usable floor and year; beside it as mean power."},
         {{{"Einfamilienhaus", "detached house"}, 16.5}, {{"Mehrfamilienhaus", "block of flats"}, 33}},
         {"DIN V 18599-10: 45 und 90 Wh/(m² d)", "DIN V 18599-10: 45 and 90 Wh/(m² d)"}},
        {"E_Gebaeude",
         {"Effizienzfaktor Klimaanlage", "efficiency factor of air conditioning"},
         {"Klimaeffizienz_sb"},
         {"Kühlenergie je aufgewendeter elektrischer Energie.", "Cooling energy per electric energy spent."},
         {{{"älteres Gerät", "older device"}, 2.5},
          {{"Klasse A", "class A"}, 3.2},
          {{"großer Kältesatz", "large chiller"}, 5}},
         {"Klasse A: Richtlinie 2002/31/EG, luftgekühlte Splitgeräte",
          "class A: directive 2002/31/EC, air-cooled split devices"}},
        {"E_Gebaeude",
         {"Wand gegen beheizt", "wall against heated area"},
         {"awn_cb", "aws_cb", "awo_cb", "aww_cb"},
         {"Die angekreuzte Fassade grenzt an einen beheizten Nachbarn. Sie verliert keine Wärme und hat kein "
          "Fenster.",
          "The facade that is ticked adjoins a heated neighbour. It loses no heat and has no window."}},
        {"E_Gebaeude",
         {"Art der Außenwände, Art der Innenwände", "construction types of exterior and interior walls"},
         {"Aussenwandart", "Innenwandart"},
         {"Sie bestimmt, wie viel Wärme die Wände speichern.", "It sets how much heat the walls store."}},
    };
}

Hinweise klima_und_energie() {
    return {
        {"E_Klima",
         {"Klimaregion", "climate region"},
         {"Klimaregionwahl"},
         {"Zwölf Klimaregionen, jede mit einer Station.", "Twelve climate regions, each with a station."}},
        {"E_Klima",
         {"Klimastation", "climate station"},
         {"Klimaregionwahl2"},
         {"Sie liefert für jede der 8760 Stunden des Jahres Lufttemperatur und Sonnenstrahlung.",
          "It gives the air temperature and the solar radiation of each of the 8760 hours of the year."}},
        {"E_Klima",
         {"Postleitzahl", "post code"},
         {"plz"},
         {"Fünf Ziffern; für die Suche zählen die ersten drei.",
          "Five digits; the first three count for the search."}},
        {"E_Energie",
         {"Heizungssystem", "heating system"},
         {"Command1", "Label_System"},
         {"Ein neues Heizungssystem setzt Übergabe und Energieträger auf den ersten Eintrag.",
          "A new heating system sets transfer and source of energy to their first entry."}},
        {"E_Energie",
         {"Wärmeübergabe", "heat transfer"},
         {"Command2", "Label_Übergabe"},
         {"Entweder Heizflächen oder integrierte Heizflächen (z. B. Fußbodenheizung).",
          "Either radiators or underfloor heating."}},
        {"E_Energie",
         {"Energieträger", "source of energy"},
         {"Command3", "Label_Energieträger"},
         {"Von ihm hängt ab, wie viel Primärenergie die Endenergie kostet.",
          "On it depends how much primary energy the end energy costs."}},
    };
}

const Hinweise& alle() {
    static const Hinweise hinweise = [] {
        Hinweise zusammen;
        for (const auto& ebene : {geometrie, fenster, daemmung, gebaeude, klima_und_energie})
            std::ranges::move(ebene(), std::back_inserter(zusammen));
        return zusammen;
    }();
    return hinweise;
}

std::string text(const Wort& wort, std::string_view sprache) {
    return std::string(wort.in(sprache));
}

}  // namespace

std::span<const Eingabehinweis> eingabehinweise() {
    return alle();
}

const Eingabehinweis* eingabehinweis(std::string_view ebene, std::string_view feld) {
    const auto treffer = std::ranges::find_if(alle(), [&](const Eingabehinweis& hinweis) {
        return hinweis.ebene == ebene && std::ranges::count(hinweis.felder, feld) > 0;
    });
    return treffer == alle().end() ? nullptr : &*treffer;
}

std::string richtwerttext(const Eingabehinweis& hinweis, std::string_view sprache) {
    std::string werte;
    for (const Richtwert& richtwert : hinweis.richtwerte) {
        const int stellen = scrollzeile(hinweis.felder.front())->stellen;
        werte += (werte.empty() ? "" : "; ") + text(richtwert.fall, sprache) + " " +
                 muster(richtwert.wert, stellen);
    }
    return werte;
}

std::vector<std::string> hinweiszeilen(const Eingabehinweis& hinweis, std::string_view sprache) {
    std::vector<std::string> zeilen{text(hinweis.name, sprache), text(hinweis.erklaerung, sprache)};
    const Scrollzeile* zeile = scrollzeile(hinweis.felder.front());
    if (zeile == nullptr) return zeilen;
    zeilen.push_back(text({"Bereich: ", "Range: "}, sprache) + zeile->bereich_mit_einheit(sprache));
    zeilen.push_back(text({"Üblich: ", "Common: "}, sprache) + richtwerttext(hinweis, sprache));
    return zeilen;
}

}  // namespace velmaris
