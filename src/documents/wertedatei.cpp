#include "documents/wertedatei.h"

#include "calc/jahressummen.h"
#include "project/feldtabelle.h"
#include "toolkit/wort.h"

#include <array>
#include <string>
#include <string_view>
#include <variant>

namespace velmaris {
namespace {

constexpr Wort jahr{"Jahr", "year"};

/// A quantity of an hour.
struct Stundenspalte {
    std::string_view name;
    std::string_view einheit;
    float (*wert)(const Projekt& p, int m, int d, int h);
};

constexpr std::array<Stundenspalte, 10> stundenspalten{{
    {"Monat", "", [](const Projekt&, int m, int, int) { return static_cast<float>(m); }},
    {"Tag", "", [](const Projekt&, int, int d, int) { return static_cast<float>(d); }},
    {"Stunde", "", [](const Projekt&, int, int, int h) { return static_cast<float>(h); }},
    {"Ta", "°C", [](const Projekt& p, int m, int d, int h) { return p.Wetter(m, d, h).Ta; }},
    {"T_frei", "°C", [](const Projekt& p, int m, int d, int h) { return p.T_frei(m, d, h); }},
    {"T_regel", "°C", [](const Projekt& p, int m, int d, int h) { return p.T_regel(m, d, h); }},
    {"Q_heiz", "kWh", [](const Projekt& p, int m, int d, int h) { return p.Q_heiz(m, d, h); }},
    {"Q_kuehl", "kWh", [](const Projekt& p, int m, int d, int h) { return p.Q_kuehl(m, d, h); }},
    {"Direkt", "W/m²", [](const Projekt& p, int m, int d, int h) { return p.Wetter(m, d, h).Direkt; }},
    {"Diffus", "W/m²", [](const Projekt& p, int m, int d, int h) { return p.Wetter(m, d, h).Diffus; }},
}};

template <class Spalten>
void kopf(Csvtext& tabelle, bool mehrere, const Spalten& spalten) {
    if (mehrere) tabelle.zelle("Datei");
    for (const auto& spalte : spalten) {
        const std::string name(spalte.name);
        tabelle.zelle(spalte.einheit.empty() ? name : name + " [" + std::string(spalte.einheit) + "]");
    }
    tabelle.zeilenende();
}

void jahreszelle(Csvtext& tabelle, const Projekt& p, const Monatszeile& groesse) {
    if (const auto wert = jahreswert(p, groesse)) {
        tabelle.zelle(*wert);
    } else {
        const bool ist_text = std::holds_alternative<std::string Monatswerte::*>(groesse.zeiger);
        tabelle.zelle(ist_text ? jahr.in(p.Sprache) : std::string_view());
    }
}

}  // namespace

void monatskopf(Csvtext& tabelle, bool mehrere) {
    kopf(tabelle, mehrere, monatsfelder());
}

void monatszeilen(Csvtext& tabelle, bool mehrere, const Projekt& p) {
    const auto zeile = [&](auto zelle) {
        if (mehrere) tabelle.zelle(p.Datei);
        for (const Monatszeile& groesse : monatsfelder())
            zelle(groesse);
        tabelle.zeilenende();
    };
    for (const Monatswerte& monat : p.Monat) {
        zeile([&](const Monatszeile& groesse) {
            std::visit([&](auto zeiger) { tabelle.zelle(monat.*zeiger); }, groesse.zeiger);
        });
    }
    zeile([&](const Monatszeile& groesse) { jahreszelle(tabelle, p, groesse); });
}

void stundenkopf(Csvtext& tabelle, bool mehrere) {
    kopf(tabelle, mehrere, stundenspalten);
}

void stundenzeilen(Csvtext& tabelle, bool mehrere, const Projekt& p) {
    fuer_jede_stunde([&](int m, int d, int h, int) {
        if (mehrere) tabelle.zelle(p.Datei);
        for (const Stundenspalte& spalte : stundenspalten)
            tabelle.zelle(spalte.wert(p, m, d, h));
        tabelle.zeilenende();
    });
}

}  // namespace velmaris
