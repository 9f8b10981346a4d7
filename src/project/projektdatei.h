#pragma once

#include "project/feldtabelle.h"
#include "project/tabellen.h"
#include "toolkit/fehler.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace velmaris {

/// Version lines of the project file. Version 3.0 lacks the lines of `infiltration` and `Waermebruecken`.
inline constexpr std::string_view version_jetzt = "Velmaris Version 3.2";
inline constexpr std::string_view version_frueher = "Velmaris Version 3.0";

/// The last line of a project file of the current version.
inline constexpr int letzte_projektzeile = 69;

/// Bound of what is read of a project file, in bytes; the 69 lines themselves take less than 1 KB.
inline constexpr std::size_t hoechste_projektgroesse = std::size_t{1} << 20U;

/// Sets a quantity that a control keeps as the reader comes to its line; false for one that only the record
/// holds.
using Feldsteller = std::function<bool(std::string_view feld, int wert)>;

/// True if the first line of a project file's text is a version known here.
[[nodiscard]] bool bekannte_version(std::string_view bytes);

/// The fault of a file whose first line is no version known here.
[[nodiscard]] Dateifehler unbekannte_version(const std::string& name);

/// The items of a project file by their line, in UTF-8.
using Projektposten = Reihe<std::string, 2, letzte_projektzeile>;

/// Takes the text of a project file (windows-1252) apart; what an older version lacks is filled in as a
/// reading does. An unknown version and a file that ends too early are a Dateifehler.
[[nodiscard]] Projektposten projektposten(std::string_view bytes, const std::string& name);

/// Puts an item of a project file into its field. An item that is no number where one belongs, a number that
/// the field cannot hold, or an index outside its list is a Laufzeitfehler.
void posten_ablegen(Projekt& p, const Feldzeile& feld, std::string_view posten, const Feldsteller& stellen);

/// Reads the text of a project file (windows-1252; `name` is the file's name for messages) into the record,
/// line by line in the file's order. Returns false if the first line is no version known here; then nothing
/// is changed. A missing line, an item that is no number where one belongs, a number that the field cannot
/// hold, or an index outside its list is a Dateifehler that names line and field; what was read before it
/// stays.
bool projekt_lesen(Projekt& p, std::string_view bytes, const std::string& name, const Feldsteller& stellen);

/// The text of a project file of the current version (69 lines, CR LF, windows-1252).
[[nodiscard]] std::string projekt_schreiben(const Projekt& p);

}  // namespace velmaris
