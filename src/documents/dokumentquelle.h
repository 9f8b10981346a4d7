#pragma once

#include "energy/katalog_werte.h"
#include "project/c_glob.h"
#include "project/wandseite.h"

#include <string>

namespace velmaris {

/// What the documents show of the lists and options of the input planes.
struct Auswahltexte {
    std::string Dachraum;                 ///< what lies above the upper closure, without heated attic
    std::string untere_Decke;             ///< what lies below the lower floor
    std::string Waermebruecken;           ///< surcharge for heat bridges
    std::string Aussenwandart;            ///< construction of the outer walls
    std::string Innenwandart;             ///< construction of the inner walls
    JeWandseite<std::string> Fensterart;  ///< window types
};

/// The figures of the building as the climate plane shows them, without their units.
struct Gebaeudetexte {
    std::string Umittel;         ///< W/(m2 K)
    std::string Tspez;           ///< W/K
    std::string Vspez;           ///< W/K
    std::string TVspez;          ///< W/K
    std::string tau;             ///< h
    std::string Heizlast;        ///< kW
    std::string heizlast_spez;   ///< W/m2
    std::string kuehllast;       ///< kW
    std::string kuehllast_spez;  ///< W/m2
    std::string Heizgrenztemp;   ///< degC
    std::string Heiztage;        ///< days
};

/// The heat supply as the energy plane shows it: its choice, and its numbers without their units, kWh/(m2 a)
/// where nothing else is said.
struct Energietexte {
    Kurzname name;  ///< of the carrier
    std::string System;
    std::string Uebergabe;
    std::string Energietraeger;
    std::string qhs_sum;
    std::string q_s;
    std::string q_d;
    std::string q_ce;
    std::string e_g;  ///< no unit
    std::string q_s_he;
    std::string q_d_he;
    std::string q_g_he;
    std::string q_HE_Energietraeger;
    std::string q_HE_Strom;
    std::string Primaerenergiefaktor_Energietraeger;  ///< no unit
    std::string Primaerenergiefaktor_Strom;           ///< no unit
    std::string q_PE_Energietraeger;                  ///< with an electric carrier of all electricity
    std::string q_PE_Strom;
};

/// Where the documents take their values from: the record, and texts in the language of the run. All of it
/// must be up to date; the record must outlive it.
struct Dokumentquelle {
    const Projekt& p;
    Auswahltexte auswahl;
    Gebaeudetexte gebaeude;
    Energietexte energie;
};

}  // namespace velmaris
