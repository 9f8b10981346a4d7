#pragma once

#include "documents/print/blatt.h"
#include "project/c_glob.h"

namespace velmaris {

/// A sketch of the house at the top right of the first data sheet, seen from the south-west, with the areas
/// of two facades and the lengths. Its shape is fixed but for the roof.
void Zeichnung_Haus(Blatt& blatt, const Projekt& p);

/// A small plan of the house, turned by its deviation from south: outline and roof, the arrow to the south
/// facade, and the letters of the facades.
void Diagramm_Orientierung(Blatt& blatt, const Projekt& p);

}  // namespace velmaris
