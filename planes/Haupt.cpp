#include "planes/Haupt.h"

#include "climate/klimadatei.h"
#include "language/c_Sprache.h"
#include "planes/neues_projekt.h"
#include "toolkit/fehler.h"
#include "toolkit/zahlen.h"

namespace velmaris {
namespace {

/// The record before the first plane is built: language, texts and folders.
void vorbereiten(Projekt& p, const std::filesystem::path& programmordner, const std::string& sprache) {
    p.Sprache = sprache;
    p.AppPfad = programmordner;
    p.InitDir = programmordner;
    p.Datei = unbenannt;
    sprachtexte_setzen(p);
}

}  // namespace

Haupt::Haupt(Plattform& plattform, const std::filesystem::path& programmordner, const std::string& sprache)
    : sitzung{p, plattform, [this] { alles_berechnen(); }},
      e_geometrie((vorbereiten(p, programmordner, sprache), sitzung)),
      e_fenster(sitzung),
      e_daemmung(sitzung),
      e_gebaeude(sitzung),
      e_energie(sitzung),
      datei(sitzung, projektwege()),
      plan_(rechenplan()) {
    verbinden();
}

void Haupt::verbinden() {
    e_geometrie.dachgeschoss_gezeigt = [this](bool beheizt) { e_daemmung.dachgeschoss_zeigen(beheizt); };
    e_gebaeude.nachbar_gezeigt = [this](Fassade fassade, bool nachbar) {
        e_fenster.nachbar_zeigen(fassade, nachbar);
    };
}

Rechenplan Haupt::rechenplan() {
    Rechenplan plan;
    plan.geometrie_zeigen = [this] {
        e_geometrie.geometrie_zeigen();
        e_fenster.geometrie_zeigen();
    };
    plan.gebaeude_zeigen = [this] { e_gebaeude.gebaeude_zeigen(); };
    plan.energie = [this] { e_energie.EnergRefresh(); };
    plan.energie_zeigen = [this] { a_klima.kennwerte_zeigen(p); };
    plan.tabelle = {
        {"AV_diagramm", [this] { return e_geometrie.ebene.sichtbar(); },
         [this] { e_geometrie.AV_diagramm(); }},
        {"Ausfuellen", [] { return true; }, [this] { a_klima.Ausfuellen(p); }},
    };
    return plan;
}

Projektwege Haupt::projektwege() {
    Projektwege wege;
    wege.neues_projekt = [this] { neues_projekt(); };
    wege.klimadatei_lesen = [this] { klimadatei_lesen(p); };
    wege.wetter_laden = [this] { wetter_laden(); };
    wege.eingaben_anzeigen = [this] { eingaben_anzeigen(); };
    wege.erste_ebenen = [] {};
    wege.ebenen.Innenwandart = [this](int zeile) { e_gebaeude.Innenwandart.setze(zeile); };
    wege.ebenen.Aussenwandart = [this](int zeile) { e_gebaeude.Aussenwandart.setze(zeile); };
    wege.ebenen.Check_Dachgeschoss = [this](int wert) { e_geometrie.dachgeschoss_lesen(wert); };
    wege.ebenen.Option_Dachfirst = [this](int wert) { e_geometrie.dachfirst_lesen(wert); };
    wege.ebenen.Option1 = [this](int wert) { e_fenster.fenstermodus_lesen(wert); };
    wege.ebenen.zeile_pruefen = [this](std::string_view feld, int zeile) {
        if (Fensterseite* seite = e_fenster.seite_mit_typ(feld)) seite->typ.pruefe(zeile);
    };
    return wege;
}

void Haupt::neues_projekt() {
    e_geometrie.Check_Dachgeschoss.setze(0);
    neue_eingaben(p);
    e_gebaeude.Innenwandart.setze(1);
    e_gebaeude.Aussenwandart.setze(1);
    datei.titel_unbenannt();
}

void Haupt::wetter_laden() {
    klimadatei_lesen(p);
    alles_berechnen();
    a_klima.stationswerte_zeigen(p);
}

void Haupt::eingaben_anzeigen() {
    e_geometrie.eingaben_anzeigen();
    e_daemmung.eingaben_anzeigen();
    e_fenster.eingaben_anzeigen();
    e_gebaeude.eingaben_anzeigen();
    e_energie.eingaben_anzeigen();
    p.Geaendert = 0;
}

void Haupt::alles_berechnen() {
    velmaris::alles_berechnen(p, plan_);
}

}  // namespace velmaris
