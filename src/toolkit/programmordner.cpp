#include "toolkit/programmordner.h"

#include <system_error>

namespace velmaris {
namespace {

namespace fs = std::filesystem;

constexpr const char* teilordner = "share";
constexpr const char* eigenname = "velmaris";

bool hat_daten(const fs::path& ordner) {
    std::error_code fehler;
    return fs::is_directory(ordner / klimaunterordner, fehler);
}

}  // namespace

fs::path programmordner_bestimmen(const fs::path& ordner_der_datei) {
    const fs::path gemeinsam = ordner_der_datei.parent_path() / teilordner / eigenname;
    return !hat_daten(ordner_der_datei) && hat_daten(gemeinsam) ? gemeinsam : ordner_der_datei;
}

bool gemeinsamer_ordner(const fs::path& programmordner) {
    return programmordner.filename() == eigenname && programmordner.parent_path().filename() == teilordner;
}

}  // namespace velmaris
