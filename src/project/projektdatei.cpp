#include "project/projektdatei.h"

#include "project/feldtabelle.h"
#include "project/klimaname.h"
#include "toolkit/fehler.h"
#include "toolkit/text.h"
#include "toolkit/textdatei.h"
#include "toolkit/zahlen.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace velmaris {
namespace {

constexpr int letzte_zeile_frueher = 67;
constexpr double infiltration_frueher = 0;
constexpr double waermebruecken_frueher = 0.1;

double zahl_des_postens(std::string_view posten) {
    const std::optional<double> zahl = zahl_pruefen(posten);
    if (zahl) return *zahl;
    std::string text = " \"" + std::string(posten.substr(0, 40)) + "\"";
    std::replace_if(
        text.begin(), text.end(), [](char z) { return z >= 0 && z < ' '; }, '?');
    throw Laufzeitfehler({"keine Zahl:" + text, "not a number:" + text});
}

float f32_des_postens(std::string_view posten) {
    const double zahl = zahl_des_postens(posten);
    if (std::fabs(zahl) > static_cast<double>(std::numeric_limits<float>::max())) {
        throw Laufzeitfehler(
            {"Zahl zu groß: " + std::string(posten), "number too large: " + std::string(posten)});
    }
    return f32(zahl);
}

std::string_view naechster_posten(Listenleser& leser, int zeile, const std::string& name) {
    if (const auto posten = leser.naechster()) return *posten;
    throw Dateifehler(name, {"die Datei endet zu früh", "the file ends too early"}, zeile,
                      std::string(feld_der_zeile(zeile).name));
}

void zeile_lesen(Projekt& p, int zeile, Listenleser& leser, const std::string& name,
                 const Feldsteller& stellen) {
    const Feldzeile& feld = feld_der_zeile(zeile);
    const std::string_view posten = naechster_posten(leser, zeile, name);
    try {
        posten_ablegen(p, feld, posten, stellen);
    } catch (const Laufzeitfehler& fehler) {
        throw Dateifehler(name, fehler.grund(), leser.zeile(), std::string(feld.name));
    }
}

std::string zeilentext(const Projekt& p, const Feldzeile& feld) {
    if (feld.name == "Option_Dachfirst") return p.Option_Dachfirst == 1 ? "1" : "2";
    if (feld.name == "Option1") return p.Option1 == 0 ? "0" : "1";
    return std::visit(
        [&p](auto zeiger) -> std::string {
            if constexpr (std::is_same_v<decltype(zeiger), std::string Projekt::*>) {
                return p.*zeiger;
            } else {
                return zahltext(p.*zeiger);
            }
        },
        feld.zeiger);
}

}  // namespace

Dateifehler unbekannte_version(const std::string& name) {
    return {name,
            {"keine gültige Velmaris-Datendatei: die erste Zeile nennt keine bekannte Version",
             "not a valid Velmaris data file: line 1 names no known version"}};
}

bool bekannte_version(std::string_view bytes) {
    const auto version = Listenleser(bytes).naechster();
    return version == version_jetzt || version == version_frueher;
}

void posten_ablegen(Projekt& p, const Feldzeile& feld, std::string_view posten, const Feldsteller& stellen) {
    if (const auto* text = std::get_if<std::string Projekt::*>(&feld.zeiger)) {
        if (const auto fehler = klimanamensfehler(posten)) throw Laufzeitfehler(*fehler);
        p.*(*text) = posten;
    } else if (const auto* gleitzahl = std::get_if<float Projekt::*>(&feld.zeiger)) {
        p.*(*gleitzahl) = f32_des_postens(posten);
    } else if (const auto* ganzzahl = std::get_if<std::int16_t Projekt::*>(&feld.zeiger)) {
        const std::int16_t wert = i16(zahl_des_postens(posten), feld.name);
        if (!stellen(feld.name, wert)) p.*(*ganzzahl) = wert;
    }
}

Projektposten projektposten(std::string_view bytes, const std::string& name) {
    if (!bekannte_version(bytes)) throw unbekannte_version(name);
    const std::string text = aus_windows1252(bytes);
    Listenleser leser(text);
    const bool frueher = leser.naechster() == version_frueher;
    Projektposten posten;
    for (int zeile = 2; zeile <= (frueher ? letzte_zeile_frueher : letzte_projektzeile); ++zeile)
        posten(zeile) = naechster_posten(leser, zeile, name);
    if (frueher) {
        posten(feld_suchen("infiltration")->zeile) = zahltext(infiltration_frueher);
        posten(feld_suchen("Waermebruecken")->zeile) = zahltext(waermebruecken_frueher);
    }
    return posten;
}

bool projekt_lesen(Projekt& p, std::string_view bytes, const std::string& name, const Feldsteller& stellen) {
    if (!bekannte_version(bytes)) return false;
    const std::string text = aus_windows1252(bytes);
    Listenleser leser(text);
    const auto version = leser.naechster();
    for (int zeile = 2; zeile <= letzte_zeile_frueher; ++zeile)
        zeile_lesen(p, zeile, leser, name, stellen);
    if (version == version_frueher) {
        p.infiltration = f32(infiltration_frueher);
        p.Waermebruecken = f32(waermebruecken_frueher);
        return true;
    }
    for (int zeile = letzte_zeile_frueher + 1; zeile <= letzte_projektzeile; ++zeile) {
        zeile_lesen(p, zeile, leser, name, stellen);
    }
    return true;
}

std::string projekt_schreiben(const Projekt& p) {
    std::string text(version_jetzt);
    text += "\r\n";
    for (int zeile = 2; zeile <= letzte_projektzeile; ++zeile) {
        text += zeilentext(p, feld_der_zeile(zeile));
        text += "\r\n";
    }
    return nach_windows1252(text);
}

}  // namespace velmaris
