#include "konsole/auftrag.h"

#include "documents/temperaturverlauf.h"
#include "konsole/ausgabe_json.h"
#include "konsole/diagramme.h"
#include "konsole/importieren.h"
#include "konsole/konsolenplattform.h"
#include "konsole/zusammenfassung.h"
#include "planes/Haupt.h"
#include "project/projektdatei.h"
#include "toolkit/fehler.h"
#include "toolkit/text.h"
#include "toolkit/textdatei.h"

#include <functional>
#include <memory>
#include <ostream>

namespace velmaris {
namespace {

std::unique_ptr<Haupt> neues_haupt(const Auftrag& auftrag, Konsolenplattform& plattform) {
    auto haupt = std::make_unique<Haupt>(plattform, auftrag.programmordner, auftrag.sprache);
    haupt->datei.projekt_vorbereiten();
    return haupt;
}

void sichern(const Haupt& haupt, const std::string& datei) {
    datei_ersetzen(pfad(datei), projekt_schreiben(haupt.p));
}

/// Runs a piece of the order; its fault becomes one line.
bool versuchen(const Auftrag& auftrag, std::ostream& fehler, const std::function<void()>& stueck) {
    try {
        stueck();
        return true;
    } catch (const Laufzeitfehler& grund) {
        fehler << in_einer_zeile(grund.text(auftrag.sprache)) << '\n';
        return false;
    }
}

std::unique_ptr<Haupt> projekt_rechnen(const Auftrag& auftrag, Konsolenplattform& plattform,
                                       const std::string& datei) {
    if (!bekannte_version(bytes_lesen(pfad(datei)))) {
        throw Dateifehler(datei,
                          {"keine gültige Velmaris-Datendatei: die erste Zeile nennt keine bekannte Version",
                           "not a valid Velmaris data file: line 1 names no known version"});
    }
    auto haupt = neues_haupt(auftrag, plattform);
    haupt->datei.projekt_laden(datei);
    haupt->a_klima.Ausfuellen(haupt->p);
    return haupt;
}

}  // namespace

int ausfuehren(const Auftrag& auftrag, std::ostream& aus, std::ostream& fehler) {
    Konsolenplattform plattform;
    bool gut = true;
    if (auftrag.klimaimport) {
        gut = versuchen(auftrag, fehler, [&] {
            const std::string bericht =
                importieren(*auftrag.klimaimport, auftrag.programmordner, auftrag.sprache);
            if (!auftrag.json) aus << bericht << '\n';
        });
    }
    if (auftrag.neu) {
        gut &= versuchen(auftrag, fehler, [&] { sichern(*neues_haupt(auftrag, plattform), *auftrag.neu); });
    }
    Json ergebnisse = Json::array();
    for (const std::string& datei : auftrag.projekte) {
        const bool gelungen = versuchen(auftrag, fehler, [&] {
            const auto haupt = projekt_rechnen(auftrag, plattform, datei);
            if (auftrag.speichern) sichern(*haupt, *auftrag.speichern);
            if (auftrag.diagramme) diagramme_schreiben(*haupt, pfad(*auftrag.diagramme));
            if (auftrag.temperaturen) temperaturverlauf_exportieren(haupt->p, pfad(*auftrag.temperaturen));
            if (auftrag.json) {
                ergebnisse.push_back(als_json(*haupt));
            } else {
                aus << zusammenfassung(*haupt) << '\n';
            }
        });
        gut = gut && gelungen;
    }
    if (auftrag.json && auftrag.projekte.size() > 1) aus << ergebnisse.dump(2) << '\n';
    if (auftrag.json && auftrag.projekte.size() == 1 && !ergebnisse.empty())
        aus << ergebnisse[0].dump(2) << '\n';
    if (!aus.flush()) {
        const Zweisprachig voll{"die Ausgabe kann nicht geschrieben werden", "the output cannot be written"};
        fehler << voll.in(auftrag.sprache) << '\n';
        gut = false;
    }
    return gut ? alles_gut : projekt_fehlerhaft;
}

}  // namespace velmaris
