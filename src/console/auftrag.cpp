#include "console/auftrag.h"

#include "console/ausgabe_json.h"
#include "console/diagramme.h"
#include "console/importieren.h"
#include "console/zusammenfassung.h"
#include "documents/report/report.h"
#include "documents/report/rtf_lesen.h"
#include "documents/report/temperaturverlauf.h"
#include "planes/projekt_rechnen.h"
#include "planes/reportquelle.h"
#include "project/projektdatei.h"
#include "toolkit/fehler.h"
#include "toolkit/konsolenplattform.h"
#include "toolkit/text.h"
#include "toolkit/textdatei.h"

#include <ostream>

namespace velmaris {
namespace {

void sichern(const Haupt& haupt, const std::string& datei) {
    datei_ersetzen(pfad(datei), projekt_schreiben(haupt.p));
}

/// A page of the report as text: a line for each paragraph, tabs between its columns.
std::string seitentext(const std::string& rtf) {
    std::string text;
    for (const Absatz& absatz : rtf_lesen(rtf)) {
        for (const Textstueck& stueck : absatz.stuecke)
            text += stueck.text;
        text += '\n';
    }
    return text;
}

/// The files that the order wants of a project.
void dateien_schreiben(const Auftrag& auftrag, Haupt& haupt) {
    if (auftrag.speichern) sichern(haupt, *auftrag.speichern);
    if (auftrag.diagramme) diagramme_schreiben(haupt, pfad(*auftrag.diagramme));
    if (auftrag.temperaturen) temperaturverlauf_exportieren(haupt.p, pfad(*auftrag.temperaturen));
    if (auftrag.bericht) report_exportieren(reportquelle(haupt), pfad(*auftrag.bericht));
}

}  // namespace

int ausfuehren(const Auftrag& auftrag, std::ostream& aus, std::ostream& fehler) {
    Konsolenplattform plattform;
    bool gut = true;
    if (auftrag.klimaimport) {
        gut = versuchen(fehler, auftrag.sprache, auftrag.klimaimport->quelle, [&] {
            const Klimaordner ordner(auftrag.programmordner,
                                     datenordner_bestimmen(auftrag.programmordner, plattform.datenordner()));
            const Importbericht bericht = importieren(*auftrag.klimaimport, ordner, auftrag.sprache);
            if (!auftrag.json) aus << in_einer_zeile(bericht.geschrieben) << '\n';
            if (!bericht.warnung.empty()) fehler << in_einer_zeile(bericht.warnung) << '\n';
        });
    }
    if (auftrag.neu) {
        gut &= versuchen(fehler, auftrag.sprache, *auftrag.neu, [&] {
            const auto haupt = programm_vorbereiten(plattform, auftrag.programmordner, auftrag.sprache);
            sichern(*haupt, *auftrag.neu);
        });
    }
    Json ergebnisse = Json::array();
    for (const std::string& datei : auftrag.projekte) {
        const bool gelungen = versuchen(fehler, auftrag.sprache, datei, [&] {
            const auto haupt = projekt_rechnen(plattform, auftrag.programmordner, auftrag.sprache, datei);
            dateien_schreiben(auftrag, *haupt);
            if (auftrag.json) {
                ergebnisse.push_back(als_json(*haupt));
            } else if (auftrag.berichtsseite) {
                aus << seitentext(report_in_sprache(reportquelle(*haupt), *auftrag.berichtsseite));
            } else {
                aus << zusammenfassung(*haupt) << '\n';
            }
        });
        gut = gut && gelungen;
    }
    if (auftrag.json && !auftrag.projekte.empty()) {
        gut &= versuchen(fehler, auftrag.sprache, auftrag.projekte.back(), [&] {
            if (auftrag.projekte.size() > 1) aus << json_text(ergebnisse) << '\n';
            if (auftrag.projekte.size() == 1 && !ergebnisse.empty()) aus << json_text(ergebnisse[0]) << '\n';
        });
    }
    if (!aus.flush()) {
        const Zweisprachig voll{"die Ausgabe kann nicht geschrieben werden", "the output cannot be written"};
        fehler << voll.in(auftrag.sprache) << '\n';
        gut = false;
    }
    return gut ? alles_gut : projekt_fehlerhaft;
}

}  // namespace velmaris
