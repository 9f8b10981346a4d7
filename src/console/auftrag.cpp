#include "console/auftrag.h"

#include "console/ausgabe_json.h"
#include "console/diagramme.h"
#include "console/importieren.h"
#include "console/zusammenfassung.h"
#include "documents/report/report.h"
#include "documents/report/rtf_lesen.h"
#include "documents/report/temperaturverlauf.h"
#include "documents/wertedatei.h"
#include "planes/dokumentquelle.h"
#include "planes/projekt_rechnen.h"
#include "project/projektdatei.h"
#include "studies/bildseite.h"
#include "studies/empfindlichkeitsseite.h"
#include "studies/vergleichsseite.h"
#include "toolkit/fehler.h"
#include "toolkit/konsolenplattform.h"
#include "toolkit/systemstrom.h"
#include "toolkit/text.h"
#include "toolkit/textdatei.h"
#include "toolkit/zahlen.h"

#include <algorithm>
#include <array>
#include <functional>
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
    if (auftrag.bericht) report_exportieren(dokumentquelle(haupt), pfad(*auftrag.bericht));
}

/// A table of all projects on its way to where the order wants it.
struct Wertetabelle {
    const std::optional<std::string>& ziel;
    void (*kopf)(Csvtext& tabelle, bool mehrere);
    void (*zeilen)(Csvtext& tabelle, bool mehrere, const Projekt& p);
    Csvtext text = {};

    [[nodiscard]] bool auf_der_standardausgabe() const { return ziel == standardausgabe; }

    void nimm_auf(const Projekt& p, bool mehrere) {
        if (!ziel) return;
        if (text.text().empty()) kopf(text, mehrere);
        zeilen(text, mehrere, p);
    }
};

/// The steps of an order. Each returns whether all went well; what did not stands among the faults.
class Ausfuehrung {
  public:
    Ausfuehrung(const Auftrag& auftrag, std::ostream& aus, std::ostream& fehler)
        : a_(auftrag), aus_(aus), fehler_(fehler) {}

    bool klima_importieren(const Importauftrag& klimaimport) {
        return versuche(klimaimport.quelle, [&] {
            const Klimaordner ordner(a_.programmordner,
                                     datenordner_bestimmen(a_.programmordner, plattform_.datenordner()));
            const Importbericht bericht = importieren(klimaimport, ordner, a_.sprache);
            if (!nur_daten()) aus_ << in_einer_zeile(bericht.geschrieben) << '\n';
            if (!bericht.warnung.empty()) fehler_ << in_einer_zeile(bericht.warnung) << '\n';
        });
    }

    bool neues_schreiben(const std::string& datei) {
        return versuche(
            datei, [&] { sichern(*programm_vorbereiten(plattform_, a_.programmordner, a_.sprache), datei); });
    }

    bool rechnen(const std::string& datei) {
        return versuche(datei, [&] {
            auto haupt = projekt_rechnen(plattform_, a_.programmordner, a_.sprache, datei);
            dateien_schreiben(a_, *haupt);
            if (schreitet(a_)) empfindlichkeit_schreiben(*haupt);
            for (Wertetabelle& tabelle : tabellen_)
                tabelle.nimm_auf(haupt->p, a_.projekte.size() > 1);
            if (a_.json) {
                ergebnisse_.push_back(als_json(*haupt));
            } else if (a_.berichtsseite) {
                aus_ << seitentext(report_in_sprache(dokumentquelle(*haupt), *a_.berichtsseite));
            } else if (!nur_daten() && !vergleicht(a_) && !schreitet(a_)) {
                aus_ << zusammenfassung(*haupt) << '\n';
            }
            if (vergleicht(a_)) verglichene_.push_back(std::move(haupt));
        });
    }

    bool studie_rechnen(const Studienauftrag& studie) {
        bool gut = true;
        const std::string& projekt = a_.projekte.front();
        const Studienumgebung umgebung{
            .projekt = projekt,
            .programmordner = a_.programmordner,
            .datenordner = datenordner_bestimmen(a_.programmordner, plattform_.datenordner()),
            .sprache = a_.sprache,
            .aus = aus_,
            .fehler = fehler_,
            .fortschritt = ist_terminal(stderr)};
        std::optional<Studienbild> bild;
        const auto vorbereiten = [&] {
            if (a_.bild) bild.emplace(*plan_anlegen(studie), studie.ergebnisse);
        };
        const auto rechnen = [&] {
            gut = velmaris::studie_rechnen(studie, umgebung, bild ? &*bild : nullptr);
        };
        return versuche(studie.plan, vorbereiten) && versuche(projekt, rechnen) && bild_schreiben(bild) &&
               gut;
    }

    /// A comparison without one of its projects would mislead: it is not written then, and older files stay.
    bool vergleich_schreiben() {
        if (verglichene_.size() < a_.projekte.size()) return false;
        const Vergleich vergleich = vergleichen(verglichene_);
        bool gut = true;
        if (a_.vergleich)
            gut &= versuche(*a_.vergleich, [&] {
                schreibe(*a_.vergleich, vergleichsseite(verglichene_, vergleich, a_.monat));
            });
        if (a_.vergleich_csv)
            gut &= versuche(*a_.vergleich_csv,
                            [&] { schreibe(*a_.vergleich_csv, vergleich_csv(vergleich, a_.sprache)); });
        return gut;
    }

    /// A table without a project that could be calculated is not written; an older file stays.
    bool tabellen_schreiben() {
        bool gut = true;
        for (const Wertetabelle& tabelle : tabellen_) {
            if (tabelle.text.text().empty()) continue;
            gut &= versuche(*tabelle.ziel, [&] { schreibe(*tabelle.ziel, tabelle.text.text()); });
        }
        return gut;
    }

    /// A single project stands as an object, several as an array of those that could be calculated.
    bool json_schreiben() {
        return versuche(a_.projekte.back(), [&] {
            if (a_.projekte.size() > 1) aus_ << json_text(ergebnisse_) << '\n';
            if (a_.projekte.size() == 1 && !ergebnisse_.empty()) aus_ << json_text(ergebnisse_[0]) << '\n';
        });
    }

    bool abschliessen() {
        if (aus_.flush()) return true;
        const Zweisprachig voll{"die Ausgabe kann nicht geschrieben werden", "the output cannot be written"};
        fehler_ << voll.in(a_.sprache) << '\n';
        return false;
    }

  private:
    /// Pictures of a study that was stopped would mislead: none are written, and an older page stays.
    bool bild_schreiben(const std::optional<Studienbild>& bild) {
        if (!bild || !bild->vollstaendig()) return !bild;
        return versuche(*a_.bild, [&] {
            const std::string projekt = pfadtext(pfad(a_.projekte.front()).stem());
            schreibe(*a_.bild, bildseite(*bild, projekt, a_.sprache));
        });
    }

    /// True if a program is to read the output, so that nothing else may stand there.
    [[nodiscard]] bool nur_daten() const {
        return a_.json || a_.vergleich == standardausgabe || a_.vergleich_csv == standardausgabe ||
               a_.empfindlichkeit == standardausgabe || a_.empfindlichkeit_csv == standardausgabe ||
               std::ranges::any_of(tabellen_, &Wertetabelle::auf_der_standardausgabe);
    }

    void empfindlichkeit_schreiben(const Haupt& haupt) {
        const Empfindlichkeit schritte = empfindlichkeit(haupt.p);
        if (a_.empfindlichkeit) schreibe(*a_.empfindlichkeit, empfindlichkeitsseite(schritte));
        if (a_.empfindlichkeit_csv) schreibe(*a_.empfindlichkeit_csv, empfindlichkeit_csv(schritte));
    }

    void schreibe(const std::string& ziel, const std::string& inhalt) {
        if (ziel == standardausgabe) {
            aus_ << inhalt;
        } else {
            datei_ersetzen(pfad(ziel), inhalt);
        }
    }

    bool versuche(const std::string& datei, const std::function<void()>& stueck) {
        return versuchen(fehler_, a_.sprache, datei, stueck);
    }

    const Auftrag& a_;
    std::ostream& aus_;
    std::ostream& fehler_;
    Konsolenplattform plattform_;
    Json ergebnisse_ = Json::array();
    std::vector<std::unique_ptr<Haupt>> verglichene_;
    std::array<Wertetabelle, 2> tabellen_{
        {{a_.csv, monatskopf, monatszeilen}, {a_.csv_stunden, stundenkopf, stundenzeilen}}};
};

}  // namespace

int ausfuehren(const Auftrag& auftrag, std::ostream& aus, std::ostream& fehler) {
    Ausfuehrung ausfuehrung(auftrag, aus, fehler);
    bool gut = true;
    if (auftrag.klimaimport) gut &= ausfuehrung.klima_importieren(*auftrag.klimaimport);
    if (auftrag.neu) gut &= ausfuehrung.neues_schreiben(*auftrag.neu);
    if (auftrag.studie) {
        gut &= ausfuehrung.studie_rechnen(*auftrag.studie);
    } else {
        for (const std::string& datei : auftrag.projekte)
            gut &= ausfuehrung.rechnen(datei);
    }
    if (auftrag.json && !auftrag.projekte.empty()) gut &= ausfuehrung.json_schreiben();
    gut &= ausfuehrung.tabellen_schreiben();
    if (vergleicht(auftrag)) gut &= ausfuehrung.vergleich_schreiben();
    gut &= ausfuehrung.abschliessen();
    return gut ? alles_gut : projekt_fehlerhaft;
}

}  // namespace velmaris
