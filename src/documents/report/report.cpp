#include "documents/report/report.h"

#include "documents/report/reportseiten.h"
#include "toolkit/text.h"
#include "toolkit/textdatei.h"
#include "toolkit/wort.h"

#include <array>
#include <cstddef>

namespace velmaris {
namespace {

using Seitenschreiber = void (*)(Reporttext&, const Dokumentquelle&);

constexpr std::array<Seitenschreiber, reportseiten> schreiber{
    report_datenblatt,  report_uebersicht,  report_klima,       report_waermebilanz,
    report_kuehlbilanz, report_heizenergie, report_kuehlenergie};

std::string schreiben(const Dokumentquelle& quelle, int seite, std::string_view sprache) {
    Reporttext text(sprache);
    for (int s = 1; s <= reportseiten; ++s) {
        if (seite != 0 && seite != s) continue;
        schreiber[static_cast<std::size_t>(s - 1)](text, quelle);
        if (seite == 0 && s < reportseiten) text.seitenumbruch();
    }
    return text.abschliessen();
}

}  // namespace

std::string report_schreiben(const Dokumentquelle& quelle, int seite) {
    return schreiben(quelle, seite, "d");
}

std::string report_schreiben_englisch(const Dokumentquelle& quelle, int seite) {
    return schreiben(quelle, seite, "e");
}

std::string report_in_sprache(const Dokumentquelle& quelle, int seite) {
    return englisch(quelle.p.Sprache) ? report_schreiben_englisch(quelle, seite)
                                      : report_schreiben(quelle, seite);
}

std::string report_exportieren(const Dokumentquelle& quelle, const std::filesystem::path& datei) {
    std::string text = report_in_sprache(quelle, 0);
    datei_ersetzen(datei, nach_windows1252(text) + "\r\n");
    return text;
}

}  // namespace velmaris
