#pragma once

#include "tools/climate/jahresgang.h"

#include <cstdint>
#include <random>
#include <string_view>

namespace velmaris::klimasatz {

/// The 64-bit hash FNV-1a of the bytes. Source: G. Fowler, L. C. Noll, K.-P. Vo, D. Eastlake, "The FNV
/// Non-Cryptographic Hash Algorithm", RFC 9923.
[[nodiscard]] std::uint64_t fnv1a(std::string_view bytes);

/// Standard normal numbers, the same on every platform for the same key: the engine's sequence is laid down
/// by the language standard, its seed is the key's hash, and the two ways of G. E. P. Box, M. E. Muller, "A
/// note on the generation of random normal deviates", Annals of Mathematical Statistics 29 (1958), 610-611,
/// give the numbers.
class Normalzufall {
  public:
    explicit Normalzufall(std::string_view schluessel) : maschine_(fnv1a(schluessel)) {}

    [[nodiscard]] double naechste();

  private:
    /// Uniform in (0, 1), a multiple of 2^-54.
    double gleichverteilt();

    std::mt19937_64 maschine_;
    double vorrat_ = 0;
    bool hat_vorrat_ = false;
};

/// A first-order autoregressive year with mean 0, variance 1 and the lag-one correlation `phi` (0..0.95) of
/// which the last day leads on to the first.
[[nodiscard]] Tageswerte autoregressives_jahr(Normalzufall& zufall, double phi);

}  // namespace velmaris::klimasatz
