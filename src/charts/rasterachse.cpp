#include "charts/rasterachse.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace velmaris {
namespace {

/// The first and the last cell reach as far outward as inward; a single one half its number to each side.
std::vector<double> zellgrenzen(const std::vector<double>& werte) {
    const std::size_t n = werte.size();
    if (n == 1) {
        const double halb = std::max(std::fabs(werte[0]), 1.0) / 2;
        return {werte[0] - halb, werte[0] + halb};
    }
    std::vector<double> grenzen(n + 1);
    for (std::size_t i = 1; i < n; ++i)
        grenzen[i] = (werte[i - 1] + werte[i]) / 2;
    grenzen[0] = 2 * werte[0] - grenzen[1];
    grenzen[n] = 2 * werte[n - 1] - grenzen[n - 1];
    return grenzen;
}

}  // namespace

Rasterachse::Rasterachse(const Bildachse& achse, double anfang, double laenge)
    : anfang_(anfang), laenge_(laenge), werte_(achse.werte) {
    if (!achse.zahlen()) {
        werte_.resize(achse.anzahl());
        std::iota(werte_.begin(), werte_.end(), 0.0);
    }
    grenzen_ = zellgrenzen(werte_);
}

double Rasterachse::ort(double wert) const {
    return anfang_ + (wert - von()) / (bis() - von()) * laenge_;
}

std::vector<Rasterachse::Zelle> Rasterachse::zellen() const {
    constexpr double mitte = 0.5;  // of a pixel
    std::vector<Zelle> alle;
    for (std::size_t i = 0; i < werte_.size(); ++i) {
        const auto [a, b] = std::minmax({ort(grenzen_[i]), ort(grenzen_[i + 1])});
        const int erster = static_cast<int>(std::ceil(a - mitte));
        const int letzter = static_cast<int>(std::ceil(b - mitte)) - 1;
        if (erster <= letzter) alle.push_back({i, erster, letzter});
    }
    return alle;
}

}  // namespace velmaris
