#include "calc/jahressummen.h"

#include "calc/summe.h"

#include <type_traits>
#include <variant>

namespace velmaris {
namespace {

/// The electricity behind a cooling demand in kWh.
Kuehlenergie kuehlenergie_fuer(const Projekt& p, double kuehlbedarf) {
    const double strom = kuehlbedarf / p.Klimaeffizienz / p.f_nutz;
    return {.Endenergie = strom, .Primaerenergie = strom * f_p_Kuehlstrom};
}

}  // namespace

std::optional<float> jahreswert(const Projekt& p, const Monatszeile& groesse) {
    if (groesse.jahr == Jahresart::keine) return std::nullopt;
    const double teiler = groesse.jahr == Jahresart::mittel ? monate : 1;
    float jahr = 0;
    const auto aufnehmen = [&](const auto& wert) {
        if constexpr (std::is_arithmetic_v<std::remove_cvref_t<decltype(wert)>>) dazu(jahr, wert / teiler);
    };
    for (const Monatswerte& monat : p.Monat)
        std::visit([&](auto zeiger) { aufnehmen(monat.*zeiger); }, groesse.zeiger);
    return jahr;
}

Betriebsstunden betriebsstunden(const Projekt& p, int m) {
    const Monatswerte& monat = p.Monat(m);
    return {.kalt = monat.Stunden_kalt, .komfort = monat.Stunden_komfort, .heiss = monat.Stunden_heiss};
}

Betriebsstunden betriebsstunden_im_jahr(const Projekt& p) {
    Betriebsstunden summe;
    for (int m = 1; m <= monate; ++m) {
        const Betriebsstunden monat = betriebsstunden(p, m);
        summe.kalt += monat.kalt;
        summe.komfort += monat.komfort;
        summe.heiss += monat.heiss;
    }
    return summe;
}

double tagesstunden(const Projekt& p, int m) {
    return static_cast<double>(p.Monat(m).Stunden_heiss) / p.Monat(m).Tage;
}

double tagesstunden_im_jahr(const Projekt& p) {
    return static_cast<double>(betriebsstunden_im_jahr(p).heiss) / tage_im_jahr;
}

Gewinne gewinne(const Projekt& p, int m) {
    const Monatswerte& monat = p.Monat(m);
    const double f_nutz = p.f_nutz;
    return {.solar_genutzt = monat.Qs_genutzt / f_nutz,
            .solar = monat.Qs_brutto / f_nutz,
            .intern_genutzt = monat.Qi_genutzt / f_nutz,
            .intern = monat.Qi_brutto / f_nutz};
}

Gewinne gewinne_im_jahr(const Projekt& p) {
    Gewinne summe;
    for (int m = 1; m <= monate; ++m) {
        const Gewinne monat = gewinne(p, m);
        summe.solar_genutzt += monat.solar_genutzt;
        summe.solar += monat.solar;
        summe.intern_genutzt += monat.intern_genutzt;
        summe.intern += monat.intern;
    }
    return summe;
}

double monatskuehlbedarf(const Projekt& p, int m) {
    return double{p.Monat(m).Kuehlbedarf} / p.f_nutz;
}

double jahreskuehlbedarf(const Projekt& p) {
    return summe_der_monate(p, &Monatswerte::Kuehlbedarf) / p.f_nutz;
}

Kuehlenergie kuehlenergie(const Projekt& p, int m) {
    return kuehlenergie_fuer(p, p.Monat(m).Kuehlbedarf);
}

Kuehlenergie kuehlenergie_im_jahr(const Projekt& p) {
    return kuehlenergie_fuer(p, summe_der_monate(p, &Monatswerte::Kuehlbedarf));
}

}  // namespace velmaris
