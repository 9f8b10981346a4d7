#include "project/FILEIO.h"

#include "project/feldtabelle.h"
#include "toolkit/fehler.h"
#include "toolkit/sanduhr.h"
#include "toolkit/text.h"
#include "toolkit/textdatei.h"

namespace velmaris {
namespace {

/// The part of a path behind its last separator.
std::string dateiname(const std::string& datei) {
    return pfadtext(pfad(datei).filename());
}

/// A fault of a control or of the calculation while a file is opened, told as a fault of that file.
Dateifehler als_dateifehler(const std::string& datei, const Laufzeitfehler& fehler) {
    const Feldzeile* feld = feld_suchen(fehler.feld());
    return {datei, fehler.grund(), feld != nullptr ? feld->zeile : 0, fehler.feld()};
}

/// The ending of project files, for a name that has none.
std::string mit_endung(std::string datei) {
    if (dateiname(datei).find('.') == std::string::npos) datei += ".vel";
    return datei;
}

Meldung falsche_version(const std::string& sprache, const std::string& datei) {
    const Zweisprachig text{
        "Dies ist keine gültige Velmaris-Datendatei.\r\n\r\nDaten konnten nicht geladen werden!",
        "This is not a valid Velmaris data file.\r\n\r\nData could not be read.!"};
    return {.text = text.in(sprache), .titel = "Fehler", .symbol = Symbol::ausrufezeichen, .hinweis = datei};
}

}  // namespace

void FILEIO::projekt_aufbauen() {
    Projekt& p = s_.p;
    p.FormLoadGuard = -1;
    wege_.neues_projekt();
    wege_.klimadatei_lesen();
    wege_.eingaben_anzeigen();
    p.FormLoadGuard = 0;
    s_.alles_berechnen();
}

void FILEIO::projekt_vorbereiten() {
    s_.p.FormLoadGuard = -1;
    wege_.neues_projekt();
    wege_.bauteile_anzeigen();
    s_.p.FormLoadGuard = 0;
    s_.p.Geaendert = 0;
}

/// A fault of the station is told as one of the project file that names it.
void FILEIO::wetter_der_datei_laden() const {
    try {
        wege_.wetter_laden();
    } catch (const Dateifehler& fehler) {
        const Zweisprachig grund{fehler.text("d"), fehler.text("e")};
        throw Dateifehler(s_.p.Datei, grund, feld_suchen("Klimadatei")->zeile, "Klimadatei");
    }
}

bool FILEIO::projekt_laden(const std::string& datei) {
    Projekt& p = s_.p;
    p.Datei = datei;
    kanal_schliessen();
    const std::string bytes = bytes_lesen(pfad(datei), hoechste_projektgroesse);
    kanal_oeffnen();
    p.Geaendert = 0;
    p.FormLoadGuard = -1;
    try {
        const bool gelesen = projekt_lesen(p, bytes, datei, wege_.ebenen);
        if (!gelesen) p.Datei = unbenannt;
        const std::string station = p.Klimadatei;
        wetter_der_datei_laden();
        wege_.eingaben_anzeigen();
        p.FormLoadGuard = 0;
        s_.alles_berechnen();
        if (p.Klimadatei != station) p.Geaendert = 1;
        return gelesen;
    } catch (const Dateifehler&) {
        throw;
    } catch (const Laufzeitfehler& fehler) {
        throw als_dateifehler(datei, fehler);
    }
}

void FILEIO::projekt_sichern() {
    const bool war_offen = s_.p.Datei_offen == 1;
    kanal_schliessen();
    try {
        datei_ersetzen(pfad(s_.p.Datei), projekt_schreiben(s_.p));
    } catch (const Dateifehler&) {
        if (war_offen) kanal_oeffnen();
        throw;
    }
    kanal_oeffnen();
}

void FILEIO::kanal_schliessen() {
    if (kanal1_.is_open()) kanal1_.close();
    s_.p.Datei_offen = 0;
}

void FILEIO::kanal_oeffnen() {
    kanal1_.open(pfad(s_.p.Datei), std::ios::binary);
    s_.p.Datei_offen = 1;
}

void FILEIO::titel_unbenannt() {
    s_.plattform.fenstertitel(s_.p.Sprache == "e" ? "Velmaris - [no name]" : "Velmaris - [unbenannt]");
}

void FILEIO::titel_der_datei() {
    s_.plattform.fenstertitel("Velmaris - " + grossschreiben(dateiname(s_.p.Datei)));
}

FILEIO::Frage FILEIO::aenderung_klaeren(Sicherung (FILEIO::*weg)()) {
    if (s_.p.Geaendert != 1) return Frage::weiter;
    const Antwort antwort = s_.plattform.melde({.text = s_.p.texte.txt_Aenderung,
                                                .titel = s_.p.texte.txt_Aenderung_Titel,
                                                .symbol = Symbol::ausrufezeichen,
                                                .knoepfe = Knoepfe::ja_nein_abbrechen});
    if (antwort == Antwort::abbrechen) return Frage::abbrechen;
    if (antwort == Antwort::ja && (this->*weg)() == Sicherung::gescheitert) return Frage::abbrechen;
    return Frage::weiter;
}

void FILEIO::datei_neu() {
    if (aenderung_klaeren(&FILEIO::sichern) == Frage::abbrechen) return;
    const Sanduhr sanduhr(s_.plattform);
    if (!wege_.neu_moeglich()) return;
    kanal_schliessen();
    projekt_aufbauen();
}

void FILEIO::datei_oeffnen(const std::string& datei) {
    Meldung fehlermeldung{.text = "Dateifehler!"};
    try {
        std::string ziel = datei;
        if (aenderung_klaeren(&FILEIO::sichern) == Frage::abbrechen) {
            s_.plattform.melde(fehlermeldung);
            return;
        }
        if (ziel.empty()) {
            const auto wahl =
                s_.plattform.dateidialog({.art = Dateidialog::Art::oeffnen,
                                          .filter = "Alle Dateien (*.*)|*.*|VELM Dateien (*.vel)|*.vel",
                                          .filterindex = 2,
                                          .ordner = s_.p.InitDir});
            if (!wahl) {
                s_.plattform.melde(fehlermeldung);
                return;
            }
            ziel = pfadtext(*wahl);
        }
        const Sanduhr sanduhr(s_.plattform);
        if (projekt_laden(ziel)) {
            titel_der_datei();
            wege_.erste_ebenen();
        } else {
            s_.plattform.melde(falsche_version(s_.p.Sprache, ziel));
            titel_unbenannt();
        }
    } catch (const Laufzeitfehler& fehler) {
        fehlermeldung.hinweis = fehler.text(s_.p.Sprache);
        s_.plattform.melde(fehlermeldung);
    }
}

FILEIO::Sicherung FILEIO::schreiben_oder_melden() {
    const Sanduhr sanduhr(s_.plattform);
    try {
        projekt_sichern();
        return Sicherung::gesichert;
    } catch (const Dateifehler& fehler) {
        s_.plattform.melde(
            {.text = fehler.text(s_.p.Sprache), .titel = "Velmaris", .symbol = Symbol::ausrufezeichen});
        return Sicherung::gescheitert;
    }
}

FILEIO::Sicherung FILEIO::sichern() {
    if (s_.p.Datei_offen == 0) return sichern_unter();
    const Sicherung ergebnis = schreiben_oder_melden();
    if (ergebnis == Sicherung::gesichert) s_.p.Geaendert = 0;
    return ergebnis;
}

bool FILEIO::ersetzen_erlaubt() {
    std::error_code fehler;
    if (!std::filesystem::exists(pfad(s_.p.Datei), fehler)) return true;
    return s_.plattform.melde({.text = s_.p.Datei + "\n" + s_.p.texte.txt_Ersetzen,
                               .titel = "Velmaris",
                               .symbol = Symbol::ausrufezeichen,
                               .knoepfe = Knoepfe::ja_nein,
                               .vorgabe = Antwort::nein}) == Antwort::ja;
}

FILEIO::Sicherung FILEIO::sichern_unter() {
    do {
        const auto wahl = s_.plattform.dateidialog({.art = Dateidialog::Art::speichern,
                                                    .filter = "VELM Dateien (*.vel)|*.vel",
                                                    .filterindex = 1,
                                                    .ordner = s_.p.InitDir});
        if (!wahl) return Sicherung::abgebrochen;
        s_.p.Datei = mit_endung(pfadtext(*wahl));
        kanal_schliessen();
    } while (!ersetzen_erlaubt());
    const Sicherung ergebnis = schreiben_oder_melden();
    if (ergebnis == Sicherung::gesichert) {
        wege_.eingaben_anzeigen();
        titel_der_datei();
    }
    return ergebnis;
}

void FILEIO::datei_speichern() {
    sichern();
}

void FILEIO::datei_speichern_unter() {
    sichern_unter();
}

void FILEIO::programm_beenden() {
    if (aenderung_klaeren(&FILEIO::sichern_unter) == Frage::abbrechen) return;
    drucker_zuruecksetzen();
    s_.plattform.beenden();
}

void FILEIO::fenster_schliessen() {
    if (aenderung_abfragen() == 1) {
        drucker_zuruecksetzen();
    } else {
        s_.plattform.beenden();
    }
}

void FILEIO::drucker_zuruecksetzen() {
    const auto drucker = static_cast<int>(s_.plattform.druckerliste().size());
    if (s_.p.Druckerindex >= 0 && s_.p.Druckerindex < drucker)
        s_.plattform.drucker_waehlen(s_.p.Druckerindex);
}

std::int16_t FILEIO::aenderung_abfragen() {
    return aenderung_klaeren(&FILEIO::sichern_unter) == Frage::abbrechen ? 1 : 0;
}

void FILEIO::hilfe_zeigen(const std::string& seite) {
    s_.plattform.hilfe(s_.p.AppPfad / pfad("Velmaris_" + s_.p.Sprache + ".chm"), seite);
}

}  // namespace velmaris
