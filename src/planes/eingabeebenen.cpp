#include "planes/eingabeebenen.h"

#include "language/c_Sprache.h"
#include "planes/neues_projekt.h"
#include "project/klimaordner.h"

#include <utility>

namespace velmaris {
namespace {

/// Makes the record ready for the planes: language, texts, folders, and the ridge that the program starts
/// with. File dialogs begin in the folder of the program only where it may hold projects.
void vorbereiten(Projekt& p, const Plattform& plattform, const std::filesystem::path& programmordner,
                 const std::string& sprache) {
    p.Sprache = sprache;
    p.AppPfad = programmordner;
    p.Datenordner = datenordner_bestimmen(programmordner, plattform.datenordner());
    if (p.Datenordner.empty()) p.InitDir = programmordner;
    p.Datei = unbenannt;
    p.Option_Dachfirst = 1;
    sprachtexte_setzen(p);
}

/// The session on a record that is ready.
Sitzung sitzung_eroeffnen(Projekt& p, Plattform& plattform, const std::filesystem::path& programmordner,
                          const std::string& sprache, std::function<void()> alles_berechnen) {
    vorbereiten(p, plattform, programmordner, sprache);
    return {p, plattform, std::move(alles_berechnen)};
}

}  // namespace

Eingabeebenen::Eingabeebenen(Plattform& plattform, const std::filesystem::path& programmordner,
                             const std::string& sprache, std::function<void()> alles_berechnen)
    : sitzung(sitzung_eroeffnen(p, plattform, programmordner, sprache, std::move(alles_berechnen))),
      e_daemmung(sitzung),
      e_geometrie(sitzung, e_daemmung),
      e_fenster(sitzung),
      e_gebaeude(sitzung, e_fenster),
      e_energie(sitzung) {}

void Eingabeebenen::neues_haus() {
    e_geometrie.Check_Dachgeschoss.setze(0);
    neue_eingaben(p);
    e_gebaeude.Innenwandart.setze(1);
    e_gebaeude.Aussenwandart.setze(1);
}

bool Eingabeebenen::regler_stellen(std::string_view feld, int wert) {
    if (feld == e_gebaeude.Innenwandart.name) {
        e_gebaeude.Innenwandart.setze(wert);
    } else if (feld == e_gebaeude.Aussenwandart.name) {
        e_gebaeude.Aussenwandart.setze(wert);
    } else if (feld == e_geometrie.Check_Dachgeschoss.name) {
        e_geometrie.dachgeschoss_lesen(wert);
    } else if (feld == e_geometrie.Option_Dachfirst.name) {
        e_geometrie.dachfirst_lesen(wert);
    } else if (feld == e_fenster.Option1.name) {
        e_fenster.fenstermodus_lesen(wert);
    } else {
        if (const Fensterseite* seite = e_fenster.seite_mit_typ(feld)) seite->typ.pruefe(wert);
        return false;
    }
    return true;
}

void Eingabeebenen::regler_anzeigen() {
    e_geometrie.eingaben_anzeigen();
    e_daemmung.eingaben_anzeigen();
    e_fenster.eingaben_anzeigen();
    e_gebaeude.eingaben_anzeigen();
    e_energie.eingaben_anzeigen();
}

}  // namespace velmaris
