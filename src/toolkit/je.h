#pragma once

namespace velmaris {

/// A visitor of a variant made of one routine for each alternative.
template <class... Faelle>
struct Je : Faelle... {
    using Faelle::operator()...;
};
template <class... Faelle>
Je(Faelle...) -> Je<Faelle...>;

}  // namespace velmaris
