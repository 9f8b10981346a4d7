#include "console/ausgabe_json.h"

#include "project/feldtabelle.h"

#include <utility>

namespace velmaris {
namespace {

template <class Datensatz, class Zeilen>
void felder_anhaengen(Json& objekt, const Datensatz& satz, const Zeilen& zeilen) {
    for (const auto& zeile : zeilen) {
        std::visit([&](auto zeiger) { objekt[std::string(zeile.name)] = satz.*zeiger; }, zeile.zeiger);
    }
}

void kennwerte_anhaengen(Json& objekt, const Kennwerte& werte) {
    for (const Kennwertzeile& zeile : kennwertfelder())
        objekt[std::string(zeile.name)] = werte.*zeile.zeiger;
    objekt["Traegername"] = werte.name.Traegername;
    objekt["Traegername_e"] = werte.name.Traegername_e;
}

}  // namespace

Json als_json(const Haupt& haupt) {
    Json objekt = Json::object();
    objekt["Datei"] = haupt.p.Datei;
    felder_anhaengen(objekt, haupt.p, felder());
    Json monate_json = Json::array();
    for (const Monatswerte& monat : haupt.p.Monat) {
        Json monat_json = Json::object();
        felder_anhaengen(monat_json, monat, monatsfelder());
        monate_json.push_back(std::move(monat_json));
    }
    objekt["Monat"] = std::move(monate_json);
    kennwerte_anhaengen(objekt, haupt.e_energie.kennwerte());
    for (const Anzeige* anzeige : haupt.a_klima.anzeigen())
        objekt[anzeige->name] = anzeige->text();
    return objekt;
}

std::string json_text(const Json& wert) {
    return wert.dump(2, ' ', false, Json::error_handler_t::replace);
}

}  // namespace velmaris
