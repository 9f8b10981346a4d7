#include "planes/Haupt.h"

#include "calc/rechenstufen.h"
#include "climate/klimadatei.h"
#include "language/beschriftungen.h"
#include "planes/dokumentquelle.h"
#include "planes/menueverbindung.h"
#include "planes/neues_projekt.h"
#include "planes/projektvorschau.h"
#include "toolkit/fehler.h"
#include "toolkit/sanduhr.h"
#include "toolkit/zahlen.h"

#include <algorithm>

namespace velmaris {

Haupt::Haupt(Plattform& plattform, const std::filesystem::path& programmordner, const std::string& sprache)
    : Eingabeebenen(plattform, programmordner, sprache, [this] { alles_berechnen(); }),
      e_klima(sitzung, [this] { wetter_laden(); }),
      monatswahl(p),
      a_zoom(sitzung, monatswahl),
      a_uebersicht(sitzung, monatswahl, a_zoom),
      a_heizen(sitzung),
      a_kuehlen(sitzung),
      a_sankey(sitzung),
      e_klimaimport(sitzung),
      a_report(sitzung, [this] { return dokumentquelle(*this); }),
      drucken(sitzung, [this] { return dokumentquelle(*this); }),
      rettung(sitzung),
      datei(sitzung, rettung, *this),
      menue(sprache) {
    leisten_fuellen();
    menue_verbinden(*this);
}

void Haupt::leisten_fuellen() {
    e_menue.aufnehmen("Geometrie", e_geometrie.ebene, [this] { e_geometrie.aktivieren(); });
    e_menue.aufnehmen("Fenster", e_fenster.ebene, {});
    e_menue.aufnehmen("Daemmung", e_daemmung.ebene, {});
    e_menue.aufnehmen("Gebaeude", e_gebaeude.ebene, {});
    e_menue.aufnehmen("Klima", e_klima.ebene, {});
    e_menue.aufnehmen("Energie", e_energie.ebene, [this] { e_energie.aktiviert(); });
    a_menue.aufnehmen("Uebersicht", a_uebersicht.ebene, [this] { a_uebersicht.aktiviert(); });
    a_menue.aufnehmen("Klima", a_klima.ebene, [this] { a_klima.Ausfuellen(p); });
    a_menue.aufnehmen("Heizen", a_heizen.ebene, [this] { a_heizen.aktiviert(); });
    a_menue.aufnehmen("Kuehlen", a_kuehlen.ebene, [this] { a_kuehlen.aktiviert(); });
    a_menue.aufnehmen("Sankey", a_sankey.ebene, [this] { a_sankey.aktiviert(); });
    for (Ebenenleiste* leiste : {&e_menue, &a_menue}) {
        leiste->vor_wechsel = [this] { e_energie.Auswahl.schliesse(); };
        for (const auto& eintrag : leiste->eintraege()) {
            eintrag.knopf->schreibe(beschriftung(leiste->leiste.name, eintrag.knopf->name, p.Sprache));
        }
    }
}

void Haupt::laden() {
    e_menue.leiste.zeige(true);
    a_menue.leiste.zeige(true);
    erste_ebenen();
    drucker_merken();
}

void Haupt::drucker_merken() {
    const std::vector<std::string> drucker = sitzung.plattform.druckerliste();
    const auto ort = std::find(drucker.begin(), drucker.end(), sitzung.plattform.aktueller_drucker());
    if (ort != drucker.end())
        p.Druckerindex = i16(static_cast<double>(ort - drucker.begin()), "Druckerindex");
}

void Haupt::erste_ebenen() {
    e_menue.klicke("Geometrie");
    a_menue.klicke("Uebersicht");
    e_menue.zuwenden();
}

bool Haupt::stellen(std::string_view feld, int wert) {
    return regler_stellen(feld, wert);
}

std::string Haupt::vorschau(const std::filesystem::path& projekt) const {
    return projektvorschau(p.AppPfad, p.Sprache, projekt);
}

void Haupt::neues_projekt() {
    neues_haus();
    datei.titel_unbenannt();
}

void Haupt::wetter_laden() {
    const Sanduhr sanduhr(sitzung.plattform);
    klimadatei_lesen();
    alles_berechnen();
}

void Haupt::klimadatei_lesen() {
    const auto warnung = velmaris::klimadatei_lesen(p);
    a_klima.stationswerte_zeigen(p);
    e_klima.klima_zeigen(warnung);
}

void Haupt::oder_ersatzstation(const std::function<void()>& laden) {
    e_klima.warnung_vergessen();
    try {
        laden();
    } catch (const Dateifehler& fehler) {
        e_klima.station_ersetzen(fehler);
    }
}

void Haupt::station_lesen() {
    oder_ersatzstation([this] { klimadatei_lesen(); });
}

void Haupt::station_laden() {
    oder_ersatzstation([this] { wetter_laden(); });
}

bool Haupt::neu_moeglich() {
    try {
        klimadatei_pruefen(p, vorgabestation());
        return true;
    } catch (const Dateifehler& fehler) {
        const Zweisprachig text{
            "Ein neues Projekt ist nicht möglich, da seine Klimadatei nicht gelesen werden kann. "
            "Das bisherige Projekt bleibt, wie es ist.",
            "A new project is not possible, since its climate file cannot be read. The present "
            "project stays as it is."};
        sitzung.plattform.melde({.text = text.in(p.Sprache),
                                 .titel = p.texte.txt_Klima_Titel,
                                 .symbol = Symbol::ausrufezeichen,
                                 .hinweis = fehler.text(p.Sprache)});
        return false;
    }
}

void Haupt::eingaben_anzeigen() {
    bauteile_anzeigen();
    e_klima.klima_anzeigen();
    p.Geaendert = 0;
}

void Haupt::bauteile_anzeigen() {
    regler_anzeigen();
}

void Haupt::alles_berechnen() {
    rettung.rechnung_beginnt();
    if (p.FormLoadGuard != 0 || e_klima.klima_fehlt()) {
        geometrie_ohne_pruefung(p);
        geometrie_zeigen();
    } else {
        rechnen();
        auffrischen();
    }
    rettung.rechnung_gelungen();
}

void Haupt::rechnen() {
    geometrie_stufe(p);
    geometrie_zeigen();
    bilanz_stufe(p);
    e_gebaeude.gebaeude_zeigen();
    a_klima.kennwerte_zeigen(p);
    simulation_stufe(p);
    e_energie.zeigen(energie_stufe(p));
}

void Haupt::geometrie_zeigen() {
    e_geometrie.geometrie_zeigen();
    e_fenster.geometrie_zeigen();
}

void Haupt::auffrischen() {
    const auto zeile = [](auto& a, auto zeichnen, const auto&... werte) {
        if (a.ebene.sichtbar()) (a.*zeichnen)(werte...);
    };
    zeile(e_geometrie, &E_Geometrie::AV_diagramm);
    zeile(a_uebersicht, &A_Uebersicht::MonatsbilanzZeichnen);
    zeile(a_uebersicht, &A_Uebersicht::UeberGrafikZeichnen);
    zeile(a_uebersicht, &A_Uebersicht::TemperaturDiagrammZeichnen);
    zeile(a_zoom, &A_Zoom::TemperaturDiagrammZeichnen);
    zeile(a_sankey, &A_Sankey::SankeyHeizen);
    zeile(a_sankey, &A_Sankey::SankeyKuehlen);
    zeile(a_heizen, &A_Heizen::HeizFelderAusfuellen);
    zeile(a_heizen, &A_Heizen::FassadenbalkenZeichnen);
    zeile(a_heizen, &A_Heizen::JahrBilanzZeichnen);
    zeile(a_heizen, &A_Heizen::HeizbilanzZeichnen);
    zeile(a_heizen, &A_Heizen::NutzungsgradZeichnen);
    zeile(a_kuehlen, &A_Kuehlen::StundenProTagZeichnen);
    zeile(a_kuehlen, &A_Kuehlen::KuehlBedarfZeichnen);
    zeile(a_kuehlen, &A_Kuehlen::KuehlGradStundenZeichnen);
    zeile(a_klima, &A_Klima::Ausfuellen, p);
    for (Tooltip* tooltip :
         {&e_energie.tooltip, &a_uebersicht.tooltip, &a_heizen.tooltip, &a_kuehlen.tooltip}) {
        if (tooltip->Frame_ToolTip.sichtbar()) tooltip->erneuern();
    }
}

}  // namespace velmaris
