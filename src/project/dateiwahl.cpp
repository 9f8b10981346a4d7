#include "project/dateiwahl.h"

#include "toolkit/rueckfrage.h"
#include "toolkit/text.h"

#include <initializer_list>
#include <system_error>
#include <utility>

namespace velmaris {
namespace {

bool ist_ordner(const std::filesystem::path& ordner) {
    std::error_code fehler;
    return std::filesystem::is_directory(ordner, fehler);
}

/// The first folder of a dialog that exists; `InitDir` may name the project of the command line.
std::filesystem::path anfangsordner(const Sitzung& sitzung, const std::filesystem::path& gewuenscht) {
    const std::filesystem::path& InitDir = sitzung.p.InitDir;
    for (const std::filesystem::path& ordner : {gewuenscht, sitzung.dialogordner, InitDir})
        if (ist_ordner(ordner)) return ordner;
    return InitDir.parent_path();
}

void ordner_merken(Sitzung& sitzung, const std::filesystem::path& datei) {
    if (ist_ordner(datei.parent_path())) sitzung.dialogordner = datei.parent_path();
}

}  // namespace

std::optional<std::filesystem::path> datei_erfragen(Sitzung& sitzung, Dateidialog dialog) {
    dialog.ordner = anfangsordner(sitzung, dialog.ordner);
    auto datei = sitzung.plattform.dateidialog(dialog);
    if (datei) ordner_merken(sitzung, *datei);
    return datei;
}

bool ersetzen_erlaubt(const Sitzung& sitzung, const std::string& datei, const std::string& hinweis) {
    std::error_code fehler;
    return !std::filesystem::exists(pfad(datei), fehler) ||
           bejaht(sitzung.plattform, {.text = datei + "\n" + sitzung.p.texte.txt_Ersetzen,
                                      .titel = "Velmaris",
                                      .hinweis = hinweis});
}

std::optional<std::filesystem::path> zieldatei_erfragen(Sitzung& sitzung, Dateidialog dialog) {
    dialog.ordner = anfangsordner(sitzung, dialog.ordner);
    while (const auto datei = sitzung.plattform.dateidialog(dialog)) {
        if (ersetzen_erlaubt(sitzung, pfadtext(*datei))) {
            ordner_merken(sitzung, *datei);
            return datei;
        }
        dialog.ordner = datei->parent_path();
        dialog.dateiname = pfadtext(datei->filename());
    }
    return std::nullopt;
}

std::string namensvorschlag(const Sitzung& sitzung, std::string_view endung) {
    if (sitzung.projektdatei.empty()) return {};
    const std::filesystem::path name = sitzung.projektdatei.filename();
    const bool vel = kleinschreiben(pfadtext(name.extension())) == ".vel";
    return pfadtext(vel ? name.stem() : name).append(endung);
}

}  // namespace velmaris
