#pragma once

#include "project/c_glob.h"

namespace velmaris::test {

/// The hourly simulation in its plainest form, every formula evaluated anew in every hour, incidence factors
/// and exponential included: the second way against which tests and benchmarks hold the kernel's.
void stundensimulation_wie_geschrieben(Projekt& p);

/// The monthly radiation on the four walls in the same plain form.
void monatsstrahlung_wie_geschrieben(Projekt& p);

}  // namespace velmaris::test
