#pragma once

#include "charts/linienzug.h"

#include <cstddef>
#include <vector>

namespace velmaris {

/// Values over the points of a grid, whose places along both axes rise strictly. A value that is not a number
/// is a gap.
struct Wertegitter {
    std::vector<double> x;
    std::vector<double> y;
    std::vector<double> werte;  ///< those of y[0] first

    [[nodiscard]] double wert(std::size_t i, std::size_t k) const { return werte[k * x.size() + i]; }
};

/// The lines along which the values are `niveau`, in the units of the axes; a ring ends where it begins.
/// There are none in cells of the grid that have a gap at a corner.
///
/// Method: marching squares (C. Maple, "Geometric design and space planning using the marching squares and
/// marching cube algorithms", 2003). Each cell of four neighbouring points is crossed between those of its
/// corners that lie below `niveau` and those that do not, at the place where the straight line between two
/// corners has that value. In a saddle, where two opposite corners lie below and the other two do not, the
/// mean of the four decides which two are joined through the middle.
[[nodiscard]] std::vector<std::vector<Ort>> konturlinien(const Wertegitter& gitter, double niveau);

}  // namespace velmaris
