#pragma once

#include "studies/studie.h"

#include <filesystem>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace velmaris {

/// The climate data to import.
struct Importauftrag {
    std::string quelle;                    ///< path of the source
    std::string name;                      ///< of the station file, without extension
    std::optional<std::string> land = {};  ///< in place of the source's own country
    std::optional<std::string> ort = {};   ///< in place of the source's own place
    bool ersetzen = false;                 ///< overwrites a station of that name
};

/// What a call of the console program asks for.
struct Auftrag {
    std::vector<std::string> projekte;
    std::string sprache = "d";
    bool json = false;
    std::optional<std::string> csv;          ///< table of the months of all projects
    std::optional<std::string> csv_stunden;  ///< table of their hours
    std::optional<std::string> temperaturen;
    std::optional<std::string> neu;
    std::optional<std::string> speichern;
    std::optional<std::string> diagramme;
    std::optional<std::string> bericht;              ///< all pages of the report as Rich Text
    std::optional<int> berichtsseite;                ///< 1..7: that page as text, in place of the summary
    std::optional<std::string> vergleich;            ///< page that compares 2 to 12 projects
    std::optional<std::string> vergleich_csv;        ///< its figures
    int monat = 7;                                   ///< of its temperatures
    std::optional<std::string> empfindlichkeit;      ///< page of the steps of all inputs of a project
    std::optional<std::string> empfindlichkeit_csv;  ///< their figures
    std::optional<Importauftrag> klimaimport;        ///< done before all else
    std::optional<Studienauftrag> studie;            ///< over the one project, in place of its summary
    std::optional<std::string> bild;                 ///< page with the pictures of that study
    std::filesystem::path programmordner;
};

/// The name that stands for the standard output, where a table goes to a file.
inline constexpr const char* standardausgabe = "-";

/// True for an order that sets projects beside each other.
[[nodiscard]] inline bool vergleicht(const Auftrag& auftrag) {
    return auftrag.vergleich || auftrag.vergleich_csv;
}

/// True for an order that steps the inputs of a project.
[[nodiscard]] inline bool schreitet(const Auftrag& auftrag) {
    return auftrag.empfindlichkeit || auftrag.empfindlichkeit_csv;
}

inline constexpr int alles_gut = 0;
inline constexpr int projekt_fehlerhaft = 1;
inline constexpr int falscher_aufruf = 2;

/// Carries out an order: results to `aus`, one line for each fault to `fehler`. A fault in one project does
/// not keep the others from being calculated. Returns the exit status 0 or 1.
int ausfuehren(const Auftrag& auftrag, std::ostream& aus, std::ostream& fehler);

}  // namespace velmaris
