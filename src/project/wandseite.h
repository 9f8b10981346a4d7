#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace velmaris {

/// The four facades, in the order in which they stand in all tables.
enum class Wandseite { nord, sued, ost, west };

inline constexpr std::array wandseiten{Wandseite::nord, Wandseite::sued, Wandseite::ost, Wandseite::west};

/// Place of a facade in a table by facade, 0..3.
constexpr std::size_t platz(Wandseite seite) {
    return static_cast<std::size_t>(seite);
}

/// The letter of a facade in the names of the record: n, s, o, w.
constexpr char buchstabe(Wandseite seite) {
    return std::string_view("nsow")[platz(seite)];
}

/// A value for each facade.
template <class Wert>
struct JeWandseite : std::array<Wert, wandseiten.size()> {
    using std::array<Wert, wandseiten.size()>::operator[];

    constexpr Wert& operator[](Wandseite seite) { return (*this)[platz(seite)]; }
    constexpr const Wert& operator[](Wandseite seite) const { return (*this)[platz(seite)]; }
};

}  // namespace velmaris
