#include "charts/konturlinien.h"

#include <array>
#include <cmath>
#include <unordered_map>
#include <utility>

namespace velmaris {
namespace {

/// An edge of the grid: twice the number of its first point, plus 1 if it leads along the second axis.
using Kante = std::size_t;

constexpr Kante keine = static_cast<Kante>(-1);

/// The pieces of the lines of one value, each between two edges of a cell.
class Konturen {
  public:
    Konturen(const Wertegitter& gitter, double niveau) : g_(gitter), niveau_(niveau) {
        for (std::size_t k = 0; k + 1 < g_.y.size(); ++k) {
            for (std::size_t i = 0; i + 1 < g_.x.size(); ++i)
                zelle(i, k);
        }
    }

    /// Follows the pieces: first the lines that end at the rim or at a gap, then the rings.
    std::vector<std::vector<Ort>> linien() {
        std::vector<std::vector<Ort>> alle;
        for (const Kante kante : reihenfolge_) {
            if (nachbarn_[kante][1] == keine) verfolge(kante, alle);
        }
        for (const Kante kante : reihenfolge_)
            verfolge(kante, alle);
        return alle;
    }

  private:
    [[nodiscard]] Kante waagerecht(std::size_t i, std::size_t k) const { return 2 * (k * g_.x.size() + i); }
    [[nodiscard]] Kante senkrecht(std::size_t i, std::size_t k) const { return waagerecht(i, k) + 1; }

    void zelle(std::size_t i, std::size_t k) {
        const std::array<double, 4> ecken{g_.wert(i, k), g_.wert(i + 1, k), g_.wert(i + 1, k + 1),
                                          g_.wert(i, k + 1)};
        const std::array<Kante, 4> kanten{waagerecht(i, k), senkrecht(i + 1, k), waagerecht(i, k + 1),
                                          senkrecht(i, k)};
        std::array<bool, 4> oben{};
        double summe = 0;
        for (std::size_t n = 0; n < 4; ++n) {
            if (std::isnan(ecken.at(n))) return;
            oben.at(n) = ecken.at(n) >= niveau_;
            summe += ecken.at(n);
        }
        std::array<Kante, 4> gekreuzt{};
        std::size_t zahl = 0;
        for (std::size_t n = 0; n < 4; ++n) {
            if (oben.at(n) != oben.at((n + 1) % 4)) gekreuzt.at(zahl++) = kanten.at(n);
        }
        if (zahl == 2) verbinde(gekreuzt[0], gekreuzt[1]);
        if (zahl < 4) return;
        // The middle goes with the first corner and its opposite, or with the other two, which are cut off.
        const bool erste_verbunden = (summe / 4 >= niveau_) == oben[0];
        verbinde(kanten[0], kanten.at(erste_verbunden ? 1 : 3));
        verbinde(kanten[2], kanten.at(erste_verbunden ? 3 : 1));
    }

    void verbinde(Kante a, Kante b) {
        for (const auto& [von, nach] : {std::pair{a, b}, std::pair{b, a}}) {
            const auto [fach, neu] = nachbarn_.try_emplace(von, std::array<Kante, 2>{nach, keine});
            if (!neu) fach->second[1] = nach;
            if (neu) reihenfolge_.push_back(von);
        }
    }

    /// Takes the pieces from an edge on out of the collection.
    void verfolge(Kante anfang, std::vector<std::vector<Ort>>& alle) {
        Kante nach = nimm_ab(anfang);
        if (nach == keine) return;
        std::vector<Ort>& linie = alle.emplace_back(std::vector<Ort>{ort(anfang)});
        for (Kante von = anfang; nach != keine; nach = nimm_ab(von)) {
            loese(von, nach);
            linie.push_back(ort(nach));
            von = nach;
        }
    }

    /// A neighbour of an edge, which it has no longer then.
    Kante nimm_ab(Kante kante) {
        std::array<Kante, 2>& paar = nachbarn_[kante];
        const Kante nachbar = paar[0];
        paar = {paar[1], keine};
        return nachbar;
    }

    /// Takes an edge out of the neighbours of another one.
    void loese(Kante eine, Kante andere) {
        std::array<Kante, 2>& paar = nachbarn_[andere];
        if (paar[0] == eine) paar[0] = paar[1];
        paar[1] = keine;
    }

    /// Where the line crosses an edge.
    [[nodiscard]] Ort ort(Kante kante) const {
        const std::size_t i = kante / 2 % g_.x.size(), k = kante / 2 / g_.x.size();
        const bool quer = kante % 2 == 0;
        const double a = g_.wert(i, k), b = quer ? g_.wert(i + 1, k) : g_.wert(i, k + 1);
        const double teil = (niveau_ - a) / (b - a);
        if (quer) return {g_.x[i] + teil * (g_.x[i + 1] - g_.x[i]), g_.y[k]};
        return {g_.x[i], g_.y[k] + teil * (g_.y[k + 1] - g_.y[k])};
    }

    const Wertegitter& g_;
    double niveau_;
    std::unordered_map<Kante, std::array<Kante, 2>> nachbarn_;
    std::vector<Kante> reihenfolge_;  ///< of the edges as they were found
};

}  // namespace

std::vector<std::vector<Ort>> konturlinien(const Wertegitter& gitter, double niveau) {
    return Konturen(gitter, niveau).linien();
}

}  // namespace velmaris
