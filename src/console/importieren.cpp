#include "console/importieren.h"

#include "climate/import/importablauf.h"
#include "climate/import/importziel.h"
#include "toolkit/fehler.h"
#include "toolkit/text.h"
#include "toolkit/textdatei.h"

#include <initializer_list>
#include <system_error>

namespace velmaris {
namespace {

/// A name as the command line gives it: in UTF-8, or in the code page where the terminal writes that.
std::string als_utf8(const std::string& name) {
    return ist_utf8(name) ? name : aus_windows1252(name);
}

Quellkopf kopf_der_quelle(const Importauftrag& auftrag, const Importquelle& quelle) {
    auto kopf = kopf_erkennen(quelle);
    if (!kopf) {
        throw Dateifehler(auftrag.quelle, {"weder eine Meteonorm- noch eine EnergyPlus-Datei (.epw)",
                                           "neither a Meteonorm nor an EnergyPlus file (.epw)"});
    }
    if (auftrag.land) kopf->ort.Land = als_utf8(*auftrag.land);
    if (auftrag.ort) kopf->ort.Standortname = als_utf8(*auftrag.ort);
    if (!ist_benannt(kopf->ort.Standortname)) {
        throw Dateifehler(auftrag.quelle, {"die Datei nennt keinen Standort; geben Sie ihn mit --ort an",
                                           "the file does not name its location; give it by --ort"});
    }
    if (!ist_benannt(kopf->ort.Land)) {
        throw Dateifehler(auftrag.quelle, {"die Datei nennt kein Land; geben Sie es mit --land an",
                                           "the file does not name its country; give it by --land"});
    }
    return *kopf;
}

std::string freies_ziel(const Importauftrag& auftrag, const Klimaordner& ordner) {
    if (const auto fehler = namensfehler(auftrag.name)) {
        const std::string name = "--name " + auftrag.name + ": ";
        throw Dateifehler(auftrag.quelle, {name + fehler->de, name + fehler->en});
    }
    std::string ziel = stationsdatei(auftrag.name);
    const std::filesystem::path vorhanden = ordner.datei(ziel);
    std::error_code ohne;
    if (!auftrag.ersetzen && std::filesystem::exists(vorhanden, ohne)) {
        throw Dateifehler(pfadtext(vorhanden), {"die Datei ist schon vorhanden; --ersetzen überschreibt sie",
                                                "the file exists already; --ersetzen overwrites it"});
    }
    return ziel;
}

/// Imports a source; its faults name it.
Importergebnis station_schreiben(const Importauftrag& auftrag, const Importquelle& quelle,
                                 const Quellkopf& kopf, const Klimaordner& ordner, const std::string& ziel) {
    const auto am_ziel = [&ziel](const Stationsort&) { return ziel; };
    try {
        return *station_importieren(quelle, importplan(kopf), ordner, am_ziel, {});
    } catch (const Importfehler& fehler) {
        const Zweisprachig& hinweis = fehler.hinweis();
        const std::string trennung = hinweis.de.empty() ? "" : " ";
        throw Dateifehler(auftrag.quelle, {fehler.grund().de + trennung + hinweis.de,
                                           fehler.grund().en + trennung + hinweis.en});
    }
}

/// The sentences that say something, in a line behind the file that they are about; empty if none does.
std::string ueber_datei(const std::string& sprache, const std::string& datei,
                        std::initializer_list<Zweisprachig> saetze) {
    std::string zeile;
    for (const Zweisprachig& satz : saetze) {
        if (!satz.in(sprache).empty()) zeile.append(" ").append(satz.in(sprache));
    }
    return zeile.empty() ? zeile : datei + ":" + zeile;
}

}  // namespace

Importbericht importieren(const Importauftrag& auftrag, const Klimaordner& ordner,
                          const std::string& sprache) {
    const std::string ziel = freies_ziel(auftrag, ordner);
    const Importquelle quelle = quelle_lesen(pfad(auftrag.quelle));
    const Quellkopf kopf = kopf_der_quelle(auftrag, quelle);
    const Importergebnis station = station_schreiben(auftrag, quelle, kopf, ordner, ziel);
    const std::string ort = stationsname(kopf.ort);
    return {ueber_datei(sprache, pfadtext(station.datei),
                        {{ort + ".", ort + "."},
                         erkannt_als(kopf.form),
                         jahreshinweis(station.jahr),
                         namenshinweis(ort)}),
            ueber_datei(sprache, auftrag.quelle, {zonenhinweis(kopf.ort)})};
}

}  // namespace velmaris
