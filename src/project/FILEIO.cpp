#include "project/FILEIO.h"

#include "project/dateiwahl.h"
#include "project/feldtabelle.h"
#include "project/projektdatei.h"
#include "toolkit/fehler.h"
#include "toolkit/sanduhr.h"
#include "toolkit/text.h"
#include "toolkit/textdatei.h"
#include "toolkit/wort.h"

#include <utility>

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

/// What follows for the user from a fault that leaves the load guard set.
std::string bis_zum_naechsten_projekt(const std::string& sprache) {
    return Zweisprachig{
        "\n\nBis Datei > Neu gewählt oder eine andere Datei geöffnet ist, wird nichts mehr berechnet.",
        "\n\nNothing is calculated any more until File > New is chosen or another file is opened."}
        .in(sprache);
}

}  // namespace

void FILEIO::projekt_aufbauen() {
    s_.p.FormLoadGuard = -1;
    betrieb_.neues_projekt();
    eigene_.vergessen();
    s_.projektdatei.clear();
    betrieb_.station_lesen();
    betrieb_.eingaben_anzeigen();
    s_.p.FormLoadGuard = 0;
    s_.alles_berechnen();
}

void FILEIO::projekt_vorbereiten() {
    s_.p.FormLoadGuard = -1;
    betrieb_.neues_projekt();
    betrieb_.bauteile_anzeigen();
    s_.p.FormLoadGuard = 0;
    s_.p.Geaendert = 0;
}

/// A fault of the station is told as one of the project file that names it.
void FILEIO::wetter_der_datei_laden() const {
    try {
        betrieb_.station_laden();
    } catch (const Dateifehler& fehler) {
        const Zweisprachig grund{fehler.text("d"), fehler.text("e")};
        throw Dateifehler(s_.p.Datei, grund, feld_suchen("Klimadatei")->zeile, "Klimadatei");
    }
}

bool FILEIO::projekt_laden(const std::string& datei) {
    return uebernehmen(datei, aufschlagen(datei));
}

/// Opens the file on channel 1 and reads its bytes; the project stays as it is.
std::string FILEIO::aufschlagen(const std::string& datei) {
    s_.p.Datei = datei;
    kanal_schliessen();
    std::string bytes = bytes_lesen(pfad(datei), hoechste_projektgroesse);
    kanal_oeffnen();
    return bytes;
}

/// The calculation that ends the opening of a file; a fault in it is one of the file.
void FILEIO::rechnen() {
    s_.p.FormLoadGuard = 0;
    try {
        s_.alles_berechnen();
    } catch (const Laufzeitfehler&) {
        s_.p.FormLoadGuard = -1;
        throw;
    }
}

bool FILEIO::uebernehmen(const std::string& datei, const std::string& bytes) {
    Projekt& p = s_.p;
    p.Geaendert = 0;
    p.FormLoadGuard = -1;
    eigene_.loesen();
    bool gelesen = true;
    try {
        gelesen = projekt_lesen(p, bytes, datei, [this](std::string_view feld, int wert) {
            return betrieb_.stellen(feld, wert);
        });
        if (!gelesen) {
            p.Datei = unbenannt;
            s_.plattform.melde(falsche_version(p.Sprache, datei));
        }
        const std::string station = p.Klimadatei;
        wetter_der_datei_laden();
        betrieb_.eingaben_anzeigen();
        rechnen();
        if (p.Klimadatei != station) p.Geaendert = 1;
        if (gelesen) projekt_gehoert_zu(datei, bytes);
        return gelesen;
    } catch (const Dateifehler&) {
        throw;
    } catch (const Laufzeitfehler& fehler) {
        if (!gelesen) throw;  // what cannot be calculated is not that file's
        throw als_dateifehler(datei, fehler);
    }
}

void FILEIO::projekt_gehoert_zu(const std::string& datei, const std::string& bytes) {
    std::error_code fehler;
    eigene_.uebernehmen(pfad(datei), bytes);
    s_.projektdatei = std::filesystem::absolute(pfad(datei), fehler);
}

void FILEIO::projekt_sichern() {
    const bool war_offen = s_.p.Datei_offen == 1;
    const std::string bytes = projekt_schreiben(s_.p);
    kanal_schliessen();
    try {
        datei_ersetzen(pfad(s_.p.Datei), bytes);
    } catch (const Dateifehler&) {
        if (war_offen) kanal_oeffnen();
        throw;
    }
    projekt_gehoert_zu(s_.p.Datei, bytes);
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
    s_.plattform.fenstertitel(
        Zweisprachig{"Velmaris - [unbenannt]", "Velmaris - [no name]"}.in(s_.p.Sprache));
}

void FILEIO::titel_der_datei() {
    s_.plattform.fenstertitel("Velmaris - " + grossschreiben(dateiname(s_.p.Datei)));
}

FILEIO::Frage FILEIO::aenderung_klaeren(Sicherung (FILEIO::*weg)()) {
    ungesichert_ = false;
    if (s_.p.Geaendert != 1) return Frage::weiter;
    const Antwort antwort = s_.plattform.melde({.text = s_.p.texte.txt_Aenderung,
                                                .titel = s_.p.texte.txt_Aenderung_Titel,
                                                .symbol = Symbol::ausrufezeichen,
                                                .knoepfe = Knoepfe::ja_nein_abbrechen});
    if (antwort == Antwort::abbrechen) return Frage::abbrechen;
    return antwort == Antwort::ja ? nach_dem_ja((this->*weg)()) : Frage::weiter;
}

FILEIO::Frage FILEIO::nach_dem_ja(Sicherung ergebnis) {
    ungesichert_ = ergebnis == Sicherung::abgebrochen;
    if (ergebnis == Sicherung::gescheitert) rettung_melden();
    return ergebnis == Sicherung::gesichert || ungesichert_ ? Frage::weiter : Frage::abbrechen;
}

/// Before changes are given up that the user wanted to save: keeps them. False if that fails; then the
/// project has to stay.
bool FILEIO::aenderung_aufgeben() {
    return !std::exchange(ungesichert_, false) || rettung_melden();
}

bool FILEIO::rettung_melden() const {
    const auto datei = rettung_.projekt_retten();
    const Zweisprachig gerettet{"Ihr Projekt wurde nicht gespeichert. Es liegt in der Rettungsdatei:",
                                "Your project has not been saved. It is kept in the rescue file:"};
    const Zweisprachig verloren{
        "Ihr Projekt wurde nicht gespeichert, auch nicht in einer Rettungsdatei. Es bleibt geöffnet.",
        "Your project has not been saved, not in a rescue file either. It stays open."};
    s_.plattform.melde({.text = (datei ? gerettet : verloren).in(s_.p.Sprache),
                        .titel = "Velmaris",
                        .symbol = Symbol::ausrufezeichen,
                        .hinweis = datei ? pfadtext(*datei) : std::string()});
    return datei.has_value();
}

void FILEIO::datei_neu() {
    if (aenderung_klaeren(&FILEIO::sichern) == Frage::abbrechen) return;
    const Sanduhr sanduhr(s_.plattform);
    if (!betrieb_.neu_moeglich() || !aenderung_aufgeben()) return;
    kanal_schliessen();
    projekt_aufbauen();
}

/// What the file dialogs of projects show of a file.
std::function<std::string(const std::filesystem::path&)> FILEIO::vorschau() const {
    return [this](const std::filesystem::path& datei) { return betrieb_.vorschau(datei); };
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
                datei_erfragen(s_, {.art = Dateidialog::Art::oeffnen,
                                    .filter = "Alle Dateien (*.*)|*.*|VELM Dateien (*.vel)|*.vel",
                                    .filterindex = 2,
                                    .ort = s_.p.AppPfad / "beispiele",
                                    .vorschau = vorschau()});
            if (!wahl) {
                s_.plattform.melde(fehlermeldung);
                return;
            }
            ziel = pfadtext(*wahl);
        }
        const Sanduhr sanduhr(s_.plattform);
        const std::string bytes = aufschlagen(ziel);
        if (!aenderung_aufgeben()) return;
        if (uebernehmen(ziel, bytes)) {
            titel_der_datei();
            betrieb_.erste_ebenen();
        } else {
            titel_unbenannt();
        }
    } catch (const Laufzeitfehler& fehler) {
        fehlermeldung.hinweis = fehler.text(s_.p.Sprache);
        if (s_.p.FormLoadGuard != 0) fehlermeldung.hinweis += bis_zum_naechsten_projekt(s_.p.Sprache);
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
    if (s_.p.Datei_offen == 0 || !eigene_.gehoert(pfad(s_.p.Datei)))
        return sichern_in(s_.projektdatei.parent_path());
    if (eigene_.fremd_geaendert(pfad(s_.p.Datei)) && !ersetzen_erlaubt()) return Sicherung::abgelehnt;
    const Sicherung ergebnis = schreiben_oder_melden();
    if (ergebnis == Sicherung::gesichert) s_.p.Geaendert = 0;
    return ergebnis;
}

bool FILEIO::ersetzen_erlaubt() {
    const Zweisprachig fremd{
        "Die Datei wurde geändert, seit dieses Programm sie geöffnet oder gespeichert hat.",
        "The file has been changed since this program opened or saved it."};
    const bool geaendert = eigene_.fremd_geaendert(pfad(s_.p.Datei));
    return velmaris::ersetzen_erlaubt(s_, s_.p.Datei, geaendert ? fremd.in(s_.p.Sprache) : std::string());
}

FILEIO::Sicherung FILEIO::sichern_unter() {
    return sichern_in({});
}

/// What was saved is shown anew. A project that cannot be shown, as after a failed opening, was saved all the
/// same; that is told as a fault of its file.
void FILEIO::gesichertes_zeigen() {
    titel_der_datei();
    try {
        betrieb_.eingaben_anzeigen();
    } catch (const Laufzeitfehler& fehler) {
        throw als_dateifehler(s_.p.Datei, fehler);
    }
}

/// Asks for a file until it may be written; the first dialog begins in that folder, without one where the
/// last dialog was left.
FILEIO::Sicherung FILEIO::sichern_in(const std::filesystem::path& ordner) {
    Dateidialog dialog{.art = Dateidialog::Art::speichern,
                       .filter = "VELM Dateien (*.vel)|*.vel",
                       .filterindex = 1,
                       .ordner = ordner,
                       .dateiname = pfadtext(s_.projektdatei.filename()),
                       .vorschau = vorschau()};
    do {
        const auto wahl = datei_erfragen(s_, dialog);
        if (!wahl) return Sicherung::abgebrochen;
        s_.p.Datei = mit_endung(pfadtext(*wahl));
        dialog.ordner = wahl->parent_path();
        dialog.dateiname = dateiname(s_.p.Datei);
        kanal_schliessen();
    } while (!ersetzen_erlaubt());
    const Sicherung ergebnis = schreiben_oder_melden();
    if (ergebnis == Sicherung::gesichert) gesichertes_zeigen();
    return ergebnis;
}

void FILEIO::datei_speichern() {
    sichern();
}

void FILEIO::datei_speichern_unter() {
    sichern_unter();
}

void FILEIO::programm_beenden() {
    if (aenderung_abfragen() == 1) return;
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
    const std::vector<std::string> drucker = s_.plattform.druckerliste();
    if (s_.p.Druckerindex >= 0 && s_.p.Druckerindex < static_cast<int>(drucker.size()))
        s_.plattform.drucker_waehlen(drucker[static_cast<std::size_t>(s_.p.Druckerindex)]);
}

std::int16_t FILEIO::aenderung_abfragen() {
    const bool bleiben =
        aenderung_klaeren(&FILEIO::sichern_unter) == Frage::abbrechen || !aenderung_aufgeben();
    return bleiben ? 1 : 0;
}

void FILEIO::hilfe_zeigen(const std::string& seite) {
    s_.plattform.hilfe(s_.p.AppPfad / pfad("Velmaris_" + s_.p.Sprache + ".chm"), seite);
}

}  // namespace velmaris
