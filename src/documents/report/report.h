#pragma once

#include "documents/dokumentquelle.h"

#include <filesystem>
#include <string>

namespace velmaris {

inline constexpr int reportseiten = 7;

/// The report as Rich Text source (UTF-8, without line ends): page 1..7, or all pages for 0. In German, and
/// in English; names of months, lists and labels are in the language of the run in both.
[[nodiscard]] std::string report_schreiben(const Dokumentquelle& quelle, int seite);
[[nodiscard]] std::string report_schreiben_englisch(const Dokumentquelle& quelle, int seite);

/// The report in the language of the record.
[[nodiscard]] std::string report_in_sprache(const Dokumentquelle& quelle, int seite);

/// Writes all pages in the language of the record as a Rich Text file in windows-1252, whole or not at all;
/// a failure is a Dateifehler. Returns the text.
std::string report_exportieren(const Dokumentquelle& quelle, const std::filesystem::path& datei);

}  // namespace velmaris
