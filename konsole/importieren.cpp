#include "konsole/importieren.h"

#include "climate/importkopf.h"
#include "climate/importquelle.h"
#include "climate/importschreiber.h"
#include "climate/importzeilen.h"
#include "climate/importziel.h"
#include "toolkit/fehler.h"
#include "toolkit/text.h"
#include "toolkit/textdatei.h"

#include <initializer_list>
#include <system_error>

namespace velmaris {
namespace {

Quellkopf kopf_der_quelle(const Importauftrag& auftrag, const Importquelle& quelle) {
    auto kopf = kopf_erkennen(quelle);
    if (!kopf) {
        throw Dateifehler(auftrag.quelle, {"weder eine Meteonorm- noch eine EnergyPlus-Datei (.epw)",
                                           "neither a Meteonorm nor an EnergyPlus file (.epw)"});
    }
    if (auftrag.land) kopf->ort.Land = *auftrag.land;
    if (kopf->ort.Standortname.empty()) {
        throw Dateifehler(auftrag.quelle,
                          {"die Datei nennt keinen Standort", "the file does not name its location"});
    }
    if (kopf->ort.Land.empty()) {
        throw Dateifehler(auftrag.quelle, {"die Datei nennt kein Land; geben Sie es mit --land an",
                                           "the file does not name its country; give it by --land"});
    }
    return *kopf;
}

std::string freies_ziel(const Importauftrag& auftrag, const Klimaordner& ordner) {
    if (const auto fehler = namensfehler(auftrag.name))
        throw Laufzeitfehler({auftrag.name + ": " + fehler->de, auftrag.name + ": " + fehler->en});
    std::string ziel = stationsdatei(auftrag.name);
    const std::filesystem::path vorhanden = ordner.datei(ziel);
    std::error_code ohne;
    if (!auftrag.ersetzen && std::filesystem::exists(vorhanden, ohne)) {
        throw Dateifehler(pfadtext(vorhanden), {"die Datei ist schon vorhanden; --ersetzen überschreibt sie",
                                                "the file exists already; --ersetzen overwrites it"});
    }
    return ziel;
}

Messjahr jahr_lesen(const Importauftrag& auftrag, const Importquelle& quelle, const Quellkopf& kopf) {
    const Leseplan plan{.form = kopf.form,
                        .trennung = kopf.trennung,
                        .kopfzeilen = kopf.kopfzeilen,
                        .dezimalkomma = false,
                        .spalten = spalten_waehlen(kopf.spalten, kopf.form)};
    try {
        return *zeilen_lesen(quelle, plan, {});
    } catch (const Importfehler& fehler) {
        throw Dateifehler(auftrag.quelle, {fehler.grund().de + " " + fehler.hinweis().de,
                                           fehler.grund().en + " " + fehler.hinweis().en});
    }
}

std::string bericht(const std::string& sprache, const std::string& ziel,
                    std::initializer_list<Zweisprachig> saetze) {
    std::string zeile = ziel + ":";
    for (const Zweisprachig& satz : saetze) {
        if (!satz.in(sprache).empty()) zeile.append(" ").append(satz.in(sprache));
    }
    return zeile;
}

}  // namespace

std::string importieren(const Importauftrag& auftrag, const Klimaordner& ordner, const std::string& sprache) {
    const std::string ziel = freies_ziel(auftrag, ordner);
    const Importquelle quelle = quelle_lesen(pfad(auftrag.quelle));
    const Quellkopf kopf = kopf_der_quelle(auftrag, quelle);
    const Stationsort ort = stationsort(kopf.ort);
    const Messjahr jahr = jahr_lesen(auftrag, quelle, kopf);
    const std::filesystem::path datei = ordner.schreiben(ziel, *stationstext(ort, jahr, {}));
    return bericht(sprache, pfadtext(datei),
                   {{ort.name + ".", ort.name + "."},
                    erkannt_als(kopf.form),
                    jahreshinweis(jahr),
                    namenshinweis(ort.name)});
}

}  // namespace velmaris
