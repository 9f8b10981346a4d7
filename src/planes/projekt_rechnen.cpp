#include "planes/projekt_rechnen.h"

#include "project/projektdatei.h"
#include "toolkit/text.h"
#include "toolkit/textdatei.h"

namespace velmaris {

std::unique_ptr<Haupt> programm_vorbereiten(Plattform& plattform, const std::filesystem::path& programmordner,
                                            const std::string& sprache) {
    auto haupt = std::make_unique<Haupt>(plattform, programmordner, sprache);
    haupt->e_klima.ersatz_erlaubt = false;
    haupt->datei.projekt_vorbereiten();
    return haupt;
}

std::unique_ptr<Haupt> projekt_rechnen(Plattform& plattform, const std::filesystem::path& programmordner,
                                       const std::string& sprache, const std::string& datei) {
    if (!bekannte_version(bytes_lesen(pfad(datei), hoechste_projektgroesse))) {
        throw unbekannte_version(datei);
    }
    auto haupt = programm_vorbereiten(plattform, programmordner, sprache);
    haupt->datei.projekt_laden(datei);
    haupt->a_klima.Ausfuellen(haupt->p);
    return haupt;
}

}  // namespace velmaris
