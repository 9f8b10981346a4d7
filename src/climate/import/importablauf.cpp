#include "climate/import/importablauf.h"

#include <utility>

namespace velmaris {
namespace {

/// Tells of one half of a work, which begins at `von`.
Fortschrittsmelder halber_weg(const Fortschrittsmelder& fortschritt, double von) {
    if (!fortschritt) return {};
    return [&fortschritt, von](double anteil) { return fortschritt(von + anteil / 2); };
}

}  // namespace

Importplan importplan(const Quellkopf& angaben) {
    Leseplan lesen{.form = angaben.form,
                   .trennung = angaben.trennung,
                   .kopfzeilen = angaben.kopfzeilen,
                   .dezimalkomma = angaben.dezimalkomma,
                   .spalten = spalten_waehlen(angaben.spalten, angaben.form)};
    return {lesen, stationsort(angaben.ort)};
}

std::optional<Importergebnis> station_importieren(const Importquelle& quelle, const Importplan& plan,
                                                  const Klimaordner& ordner, const Zielwahl& ziel_waehlen,
                                                  const Fortschrittsmelder& fortschritt) {
    auto jahr = zeilen_lesen(quelle, plan.lesen, halber_weg(fortschritt, 0));
    if (!jahr) return std::nullopt;
    const auto ziel = ziel_waehlen(plan.ort);
    if (!ziel) return std::nullopt;
    const auto text = stationstext(plan.ort, *jahr, halber_weg(fortschritt, 0.5));
    if (!text || (fortschritt && !fortschritt(1))) return std::nullopt;
    return Importergebnis{ordner.schreiben(*ziel, *text), *std::move(jahr)};
}

}  // namespace velmaris
