#pragma once

#include "tools/help/inhalt.h"

#include <string>
#include <string_view>

namespace velmaris::hilfe {

/// A page with its marks filled. A mark is an HTML comment of one or two words: "inhalt" (links to all
/// pages), "blaettern" (links to the neighbours), "eingaben EBENE", "eingabenliste EBENE" (with names),
/// "richtwerte EBENE", "erklaerung FELD" (of an input of the page's plane), "fenstertypen", "heizsysteme",
/// "projektdatei". Any other comment is a Dateifehler.
[[nodiscard]] std::string seite_bauen(const Inhalt& inhalt, const Seite& seite, std::string_view sprache);

}  // namespace velmaris::hilfe
