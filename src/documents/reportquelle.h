#pragma once

#include "climate/planes/A_Klima.h"
#include "energy/planes/E_Energie.h"
#include "project/c_glob.h"

#include <array>
#include <string>

namespace velmaris {

/// What the documents show of the lists and options of the input planes, in the language of the run.
struct Auswahltexte {
    std::string Dachraum;                   ///< what lies above the upper closure, without heated attic
    std::string untere_Decke;               ///< what lies below the lower floor
    std::string Waermebruecken;             ///< surcharge for heat bridges
    std::string Aussenwandart;              ///< construction of the outer walls
    std::string Innenwandart;               ///< construction of the inner walls
    std::array<std::string, 4> Fensterart;  ///< window types: north, south, east, west
};

/// Where the documents take their values from: the record, the labels of two planes, the lists of the others.
/// All of it must be up to date.
struct Reportquelle {
    const Projekt& p;
    const A_Klima& a_klima;
    const E_Energie& e_energie;
    Auswahltexte auswahl;
};

}  // namespace velmaris
