#pragma once

#include "project/c_glob.h"
#include "toolkit/csv.h"

namespace velmaris {

// Results as comma-separated tables for other programs, with the names of the record and the units in the
// head. A table of several projects names the project of each row in its first column.

/// The head of the table of months, and the twelve months of a calculated project with the year below them:
/// all quantities of the month record. What has no year's value stays empty there.
void monatskopf(Csvtext& tabelle, bool mehrere);
void monatszeilen(Csvtext& tabelle, bool mehrere, const Projekt& p);

/// The head of the table of hours, and the 8760 hours of a calculated project: month, day, hour, outdoor,
/// free-running and controlled temperature, heating and cooling energy, direct and diffuse radiation.
void stundenkopf(Csvtext& tabelle, bool mehrere);
void stundenzeilen(Csvtext& tabelle, bool mehrere, const Projekt& p);

}  // namespace velmaris
