#pragma once

#include "project/c_glob.h"

namespace velmaris {

/// Hourly temperatures and loads of the year by a thermal model of one node: free-running and controlled
/// temperature, heating and cooling energy of each hour, cooling by cause, degree hours and hours by
/// temperature band of each month, peak loads of the year. The year is run from a warm-up December on; a peak
/// reached in the warm-up stays. Reads `Wetter` and the areas; writes `Cwirk` and `tau` too and makes the
/// incidence factors of the planes valid. Laufzeitfehler of `zeitkonstante_berechnen`.
///
/// The step of an hour is the exact solution of C dT/dt = P - (C / tau) T for the constant power P:
///   T' = (tau P / C) (1 - e) + e T    with e = exp(-3600 s / tau)
///   Q = |T' - Tg| C / 3600000         where a plant brings T' back to its limit Tg
/// T, T' indoor temperature before and after the hour, Tg `Troom` or `Tueber`, degC; P driving power, W (see
/// `hausmodell`); C `Cwirk`, J/K; tau `tau`, s; Q heating or cooling energy of the hour, kWh.
/// Source: lumped capacitance cooling, as any textbook of heat transfer treats it; no standard behind it.
void stundensimulation(Projekt& p);

}  // namespace velmaris
