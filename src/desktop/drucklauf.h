#pragma once

#include <QStringList>
#include <filesystem>
#include <iosfwd>

namespace velmaris {

/// The option that makes a call of the program one that prints without a window.
inline constexpr const char* druckangabe = "drucken";

/// True if the command line asks for printing: "--drucken" stands among the arguments.
[[nodiscard]] bool ist_drucklauf(int argc, const char* const* argv);

/// Prints all pages of a project into a PDF file: `--drucken DATEI.pdf [--sprache d|e] PROJEKT.vel`. Without
/// a language it is that of the language file, else German. Faults are one line each to `fehler`. Returns the
/// exit status: 0, 1 for a fault of a file or of the calculation, 2 for a wrong call. Needs the application
/// object.
int drucklauf(const QStringList& angaben, const std::filesystem::path& programmordner, std::ostream& fehler);

}  // namespace velmaris
