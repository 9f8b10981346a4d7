#pragma once

namespace velmaris::klimasatz {

/// Clearness of a day (share of the extraterrestrial radiation that reaches the ground) of which the standard
/// normal number `normal` is the rank, in a month of the mean clearness `mittel` (kept within 0.12 .. 0.8).
/// It lies between 0.05 and the month's clearest day. Sources: P. Bendt, M. Collares-Pereira, A. Rabl, "The
/// frequency distribution of daily insolation values", Solar Energy 27 (1981), 1-5 (the distribution); K. G.
/// T. Hollands, R. G. Huget, Solar Energy 30 (1983), 195-209 (the clearest day); M. D. Herzog (1985) in
/// Duffie, Beckman, chapter 2 (the exponent); V. A. Graham, K. G. T. Hollands, A. P. Brunger, Solar Energy 40
/// (1988), 83-92 (normal rank, order one).
[[nodiscard]] double tagesklarheit(double mittel, double normal);

/// How the clearness of the hours of a day of the clearness `tag` runs: mean and scatter at a sun of the
/// height whose sine is `cos_z`, and the lag-one correlation of the scatter. Source: R. J. Aguiar, M.
/// Collares-Pereira, "TAG: a time-dependent, autoregressive, Gaussian model for generating synthetic hourly
/// radiation", Solar Energy 49 (1992), 167-174.
[[nodiscard]] double stundenklarheit(double tag, double cos_z);
[[nodiscard]] double stundenstreuung(double tag, double cos_z);
[[nodiscard]] double stundengedaechtnis(double tag);

/// Share of the diffuse in the global radiation of an hour of the clearness `klarheit` (0..1). Source: D. G.
/// Erbs, S. A. Klein, J. A. Duffie, "Estimation of the diffuse radiation fraction for hourly, daily and
/// monthly-average global radiation", Solar Energy 28 (1982), 293-302.
[[nodiscard]] double diffusanteil(double klarheit);

}  // namespace velmaris::klimasatz
