#pragma once

#include "planes/scrolltabelle.h"
#include "toolkit/fehler.h"

#include <span>
#include <string_view>
#include <vector>

namespace velmaris::hilfe {

/// A quantity as the help lists it: the scroll fields that set it, one or one per facade.
struct Groesse {
    std::string_view ebene;  ///< plane, which is also the name of its page
    Zweisprachig name;
    std::vector<std::string_view> felder;  ///< names of the scroll fields
};

/// All quantities, plane by plane in the order of the help.
[[nodiscard]] std::span<const Groesse> groessen();

/// The row of a scroll field; a name that does not exist is a Laufzeitfehler.
[[nodiscard]] const Scrollzeile& scrollzeile(std::string_view feld);

/// The row that speaks for the quantity. Rows of one quantity that differ in range, steps or unit are
/// a Laufzeitfehler.
[[nodiscard]] const Scrollzeile& zeile(const Groesse& groesse);

/// A scroll field that no quantity lists, or a listed one that does not exist, is a Laufzeitfehler.
void vollstaendigkeit_pruefen();

}  // namespace velmaris::hilfe
