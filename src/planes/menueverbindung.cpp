#include "planes/menueverbindung.h"

#include "language/c_Sprache.h"
#include "planes/Haupt.h"
#include "toolkit/wort.h"

#include <functional>
#include <string>

namespace velmaris {
namespace {

/// The language of the next start: notes the choice and moves the check mark; the texts of this run stay.
void sprache_waehlen(Haupt& haupt, const std::string& buchstabe) {
    const auto punkt = [&](std::string_view name) -> Menuepunkt& { return haupt.menue.punkt(name); };
    Menuepunkt& gewaehlt = punkt(englisch(buchstabe) ? "mnuSpracheEnglisch" : "mnuSpracheDeutsch");
    if (gewaehlt.angekreuzt()) return;
    for (const char* name : {"mnuSpracheDeutsch", "mnuSpracheEnglisch"})
        punkt(name).kreuze_an(&punkt(name) == &gewaehlt);
    sprache_merken(haupt.p, haupt.sitzung.plattform, buchstabe);
}

}  // namespace

void menue_verbinden(Haupt& haupt) {
    const auto tut = [&haupt](const char* name, std::function<void()> aktion) {
        haupt.menue.punkt(name).gedrueckt = std::move(aktion);
    };
    const auto zeigt_ebene = [&](const char* name, const char* knopf) {
        tut(name, [&haupt, knopf] { haupt.e_menue.klicke(knopf); });
    };
    tut("mnuFileNeu", [&haupt] { haupt.datei.datei_neu(); });
    tut("mnuFileOeffnen", [&haupt] { haupt.datei.datei_oeffnen({}); });
    tut("mnuFileSpeichern", [&haupt] { haupt.datei.datei_speichern(); });
    tut("mnuFileunter", [&haupt] { haupt.datei.datei_speichern_unter(); });
    tut("mnuFileDrucken", [&haupt] { haupt.drucken.oeffnen(); });
    tut("mnuFileExit", [&haupt] { haupt.datei.programm_beenden(); });
    tut("mnuBerechnungsergebnisseExportieren", [&haupt] { haupt.a_report.report_zeigen(); });
    tut("mnuTemperaturExport", [&haupt] { haupt.a_report.temperaturverlauf_zeigen(); });
    zeigt_ebene("mnuWinGeo", "Geometrie");
    zeigt_ebene("mnuWinFens", "Fenster");
    zeigt_ebene("mnuWinDaem", "Daemmung");
    zeigt_ebene("mnuWinGeb", "Gebaeude");
    zeigt_ebene("mnuWinKlima", "Klima");
    zeigt_ebene("mnuWinEnerg", "Energie");
    tut("mnuKlimaImportieren", [&haupt] { haupt.e_klimaimport.oeffnen(); });
    tut("mnuSpracheDeutsch", [&haupt] { sprache_waehlen(haupt, "d"); });
    tut("mnuSpracheEnglisch", [&haupt] { sprache_waehlen(haupt, "e"); });
    tut("mnuQuestHilfe", [&haupt] { haupt.datei.hilfe_zeigen(); });
    tut("mnuQuestInfo", [&haupt] {
        if (haupt.info_zeigen) haupt.info_zeigen();
    });
}

}  // namespace velmaris
