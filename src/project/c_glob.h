#pragma once

#include "project/strahlungstabellen.h"
#include "project/tabellen.h"
#include "project/texte.h"

#include <cstdint>
#include <filesystem>
#include <string>

namespace velmaris {

/// Climate of one hour.
struct Wetterstunde {
    float Ta = 0;      ///< outdoor air temperature, degC
    float Direkt = 0;  ///< direct radiation at normal incidence, W/m2
    float Diffus = 0;  ///< diffuse radiation on the horizontal, W/m2
};

/// Results of one month. Energies in kWh of the month.
struct Monatswerte {
    std::string Name;              ///< month name in the current language
    std::string Kurz;              ///< short name with its point
    std::int16_t Tage = 0;         ///< days
    std::int16_t Strahlung_N = 0;  ///< radiation on the vertical plane of the facade, MJ/m2
    std::int16_t Strahlung_S = 0;
    std::int16_t Strahlung_O = 0;
    std::int16_t Strahlung_W = 0;
    float Tmittel = 0;                 ///< mean outdoor temperature, degC
    float Nutzgrad = 0;                ///< utilisation factor of the gains
    float Qt = 0;                      ///< transmission losses
    float Qv = 0;                      ///< ventilation losses
    float Qs_genutzt = 0;              ///< usable solar gains
    float Qi_genutzt = 0;              ///< usable internal gains
    float Qs_brutto = 0;               ///< solar gains before utilisation
    float Qi_brutto = 0;               ///< internal gains before utilisation
    float Qh = 0;                      ///< heat demand
    float Kuehlbedarf = 0;             ///< cooling energy
    float Kuehlgradstunden = 0;        ///< excess of the free-running temperature over `Tueber`, Kh
    std::int16_t Stunden_kalt = 0;     ///< hours with free-running temperature below `Troom`
    std::int16_t Stunden_heiss = 0;    ///< hours with free-running temperature above `Tueber`
    std::int16_t Stunden_komfort = 0;  ///< hours from `Troom` up to `Tueber`
    float Kuehl_solar = 0;             ///< part of `Kuehlbedarf` caused by solar gains
    float Kuehl_intern = 0;            ///< ... by internal gains
    float Kuehl_trans = 0;             ///< ... by transmission
    float Kuehl_lueft = 0;             ///< ... by ventilation
};

/// A row of the roof space table.
struct Dachraumzeile {
    std::string Bezeichnung;  ///< 25 characters
    float Faktor = 0;         ///< reduction of the heat flow through the flat roof, 0..1
};

/// The inputs of a project: what the user sets and a project file holds, and the whole window U values that
/// follow from them. Facades: n, s, o (east), w. Areas in m2, temperatures in degC, U values in W/(m2 K),
/// fractions 0..1 unless the comment says percent.
struct Eingaben {
    // --- Geometry ---
    float l = 0;              ///< building length, east-west extent, m
    float b = 0;              ///< building width, north-south extent, m
    float h = 0;              ///< height without roof, m
    float hd = 0;             ///< roof height, eaves to ridge, m
    float ag = 0;             ///< number of heated floors
    std::int16_t orient = 0;  ///< deviation of the south facade from south, degrees, west positive
    std::int16_t Check_Dachgeschoss = 0;  ///< 1 = heated attic
    std::int16_t Option_Dachfirst = 0;    ///< ridge: 1 north-south, 2 east-west, 0 neither (counts as 2)

    // --- Insulation ---
    float kwn = 0, kws = 0, kwo = 0, kww = 0;  ///< U values of the walls
    float kd = 0;                              ///< U value of the upper closure
    float kk = 0;                              ///< U value of the lower floor
    float ft = 0;                              ///< door area in the north wall, m2
    float kt = 0;                              ///< U value of the door
    float Waermebruecken = 0;                  ///< surcharge for heat bridges, W/(m2 K)
    std::int16_t ugd_typ = 0;                  ///< kind of the lower floor, 0..4
    std::int16_t Dachraum_typ = 0;             ///< kind of the unheated roof space, 0..3
    float absfaktor = 0;                       ///< solar absorption of the outer walls
    std::int16_t cbk_hDach = 0;                ///< 0 = ventilated roof, 1 = not

    // --- Windows ---
    std::int16_t fn = 0, fs = 0, fo = 0, fw = 0;               ///< window share of the gross facade, percent
    float verschn = 0, verschs = 0, verscho = 0, verschw = 0;  ///< shading, 0 = none
    float ran = 0, ras = 0, rao = 0, raw = 0;                  ///< frame share
    std::int16_t fenstern_typ = 0, fensters_typ = 0, fenstero_typ = 0, fensterw_typ = 0;  ///< row 0..7
    float gfn = 0, kfn = 0, kfgn = 0, kfrn = 0;  ///< north: g value, U of the whole window, glazing, frame
    float gfs = 0, kfs = 0, kfgs = 0, kfrs = 0;  ///< south
    float gfo = 0, kfo = 0, kfgo = 0, kfro = 0;  ///< east
    float gfw = 0, kfw = 0, kfgw = 0, kfrw = 0;  ///< west
    std::int16_t Option1 = 0;                    ///< window mode: 0 the same at all facades, 1 individual

    // --- Building ---
    std::int16_t awn = 0, aws = 0, awo = 0, aww = 0;  ///< 1 = outer wall, 0 = towards a heated neighbour
    float lw = 0;                                     ///< mechanical air change, 1/h
    float infiltration = 0;                           ///< infiltration air change, 1/h
    float WRG = 0;                                    ///< efficiency of the heat recovery
    float intg = 0;                                   ///< internal gains per usable floor, kWh/(m2 a)
    float Troom = 0;                                  ///< set temperature
    float Tueber = 0;                                 ///< overheating limit, set point of the cooling
    float Klimaeffizienz = 0;                         ///< cooling energy per electric energy
    std::int16_t Aussenwandart = 0;                   ///< construction of the outer walls, 0 heavy .. 2 light
    std::int16_t Innenwandart = 0;                    ///< construction of the inner walls, 0 heavy .. 2 light

    // --- Climate ---
    std::string Klimadatei;         ///< file name of the station, no folder
    std::int16_t Klimaauswahl = 0;  ///< scope: 1 Germany, 2 Europe, 3 world

    // --- Energy supply ---
    std::int16_t Heizsystem = 0;      ///< 1..9
    std::int16_t Uebergabe = 0;       ///< 1..2
    std::int16_t Energietraeger = 0;  ///< 1..4
};

/// The one record of the program: inputs, derived geometry, month table, hourly tables, year sums and
/// the fields of the program run. Energies in kWh, volumes in m3, the other units as those of the inputs.
struct Projekt : Eingaben {
    // --- Derived geometry ---
    float Dachneigung = 0;                             ///< roof pitch, degrees; 0 without heated attic
    float f_sfa = 0, f_wfa = 0, f_nfa = 0, f_ofa = 0;  ///< gross facades
    float f_dach_s = 0, f_dach_w = 0, f_dach_n = 0, f_dach_o = 0;          ///< sloped roof planes
    float f_dach_flach = 0;                                                ///< flat upper ceiling
    float f_giebel_s = 0, f_giebel_w = 0, f_giebel_n = 0, f_giebel_o = 0;  ///< gables
    float v_geb = 0;                                                       ///< gross heated volume
    float v_luft = 0;                                                      ///< air volume
    float f_gd = 0;                                                        ///< ground floor
    float f_nutz = 0;                                                      ///< usable floor
    float AV = 0;                                                          ///< envelope to volume, 1/m
    float Fx_ugd = 0;                              ///< temperature correction of the lower floor
    float f_nf = 0, f_wf = 0, f_sf = 0, f_of = 0;  ///< windows
    float f_nw = 0, f_ww = 0, f_sw = 0, f_ow = 0;  ///< net walls
    float f_wand = 0;                              ///< sum of the net walls
    float f_gf = 0;                                ///< sum of the windows

    // --- Building parameters ---
    float Cwirk = 0;  ///< effective heat capacity, J/K
    float tau = 0;    ///< time constant, s

    Reihe<Monatswerte, 1, 12> Monat;
    Reihe<Dachraumzeile, 0, 3> Dachraum;

    // --- Year sums of the monthly balance: kWh, and kWh/(m2 a) where the name ends in s or _sum ---
    float qh = 0, qhs_sum = 0;  ///< heat demand
    float qsol = 0, qsols = 0;  ///< usable solar gains
    float qi = 0, qis = 0;      ///< usable internal gains
    float qtr = 0, qtrs = 0;    ///< transmission losses
    float qinf = 0, qinfs = 0;  ///< ventilation losses
    float qverl_s = 0;          ///< `qinfs` + `qtrs`
    float Fensterverlust_N = 0, Fensterverlust_W = 0, Fensterverlust_S = 0, Fensterverlust_O = 0;
    float Fenstergewinn_N = 0, Fenstergewinn_W = 0, Fenstergewinn_S = 0, Fenstergewinn_O = 0;
    float qtr_Waende = 0, qtr_Dach = 0, qtr_Boden = 0, qtr_Fenster = 0, qtr_Tuer = 0;

    // --- Energy results, kWh/(m2 a) ---
    float q_HE_Energietraeger = 0;  ///< end energy of the main carrier
    float q_HE_Strom = 0;           ///< auxiliary electricity
    float q_PE_Energietraeger = 0;  ///< primary energy of the main carrier
    float q_PE_Strom = 0;           ///< primary energy of the auxiliary electricity

    // --- Hourly tables ---
    Stundentabelle<Wetterstunde> Wetter;
    Stundentabelle<float> T_frei;   ///< free-running indoor temperature at the end of the hour
    Stundentabelle<float> T_regel;  ///< indoor temperature with heating and cooling
    Stundentabelle<float> Q_heiz;   ///< heating energy of the hour, kWh
    Stundentabelle<float> Q_kuehl;  ///< cooling energy of the hour, kWh
    float Heizlast_max = 0;         ///< largest `Q_heiz`, the warm-up December included
    float Kuehllast_max = 0;        ///< largest `Q_kuehl`, likewise

    // --- Station ---
    Reihe<std::string, 1, 12> Regionsdatei;  ///< station files of the German climate regions
    float Breite = 0;                        ///< latitude, radians
    float Laengenkorrektur = 0;              ///< longitude (west positive) minus 15 times the zone, degrees
    std::string Stationsname;                ///< first item of the station file's first line

    /// Sun and radiation kept between recalculations; valid only by their own keys.
    Strahlungstabellen Strahlung;

    // --- Program run ---
    std::int16_t Geaendert = 0;         ///< 1 after any change by the user
    std::int16_t FormLoadGuard = 0;     ///< -1 while a project is being built up
    std::string Datei;                  ///< path of the project, "default.vel" without a name
    std::int16_t Datei_offen = 0;       ///< 1 while the project file is held open
    std::int16_t Gestartet = 0;         ///< 1 when the start sequence is over
    std::int16_t Druckerindex = 0;      ///< printer that was the default at start
    std::filesystem::path InitDir;      ///< first folder of the file dialogs
    std::filesystem::path AppPfad;      ///< folder of the program
    std::filesystem::path Datenordner;  ///< the user's own, empty where the program's can be written
    std::string Sprache;                ///< "d" or "e"
    std::int16_t Monat_Uebersicht = 7;  ///< month shown on the overview plane
    Texte texte;                        ///< shared texts in the language of the run
};

/// The name that stands for a project without a file.
inline constexpr const char* unbenannt = "default.vel";

}  // namespace velmaris
