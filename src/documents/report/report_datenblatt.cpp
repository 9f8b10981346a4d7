#include "calc/fassaden.h"
#include "climate/regionen.h"
#include "documents/fassadenwerte.h"
#include "documents/klimaregionen.h"
#include "documents/nachbarwaende.h"
#include "documents/report/reportseiten.h"
#include "language/beschriftungen.h"
#include "toolkit/zahlen.h"

#include <cstdint>

namespace velmaris {
namespace {

constexpr std::string_view meter = " m";
constexpr std::string_view quadratmeter = " m²";
constexpr std::string_view kubikmeter = " m³";
constexpr std::string_view uwert = " W/(m² K)";
constexpr std::string_view prozent = " %";
constexpr std::string_view je_stunde = " 1/h";
constexpr std::string_view grad_celsius = " °C";

void geometrie(Reporttext& text, const Projekt& p) {
    text.abschnitt({"Geometrie", "Geometry"});
    text.block(tabstopps::werte);
    text.reihe({"Länge der Nord- und Südfassade", "Length of north and south facade"}, muster(p.l, 1), meter);
    text.reihe({"Länge der Ost- und Westfassade", "Length of west and east facade"}, muster(p.b, 1), meter);
    text.reihe({"Höhe (ohne Dach)", "Height (without roof)"}, muster(p.h, 1), meter);
    text.reihe({"Anzahl Geschosse", "Number of floors"}, muster(p.ag, 0));
    if (p.Check_Dachgeschoss == 1) {
        text.reihe({"Dachhöhe", "Height of roof"}, muster(p.hd, 1), meter);
        if (p.hd > 0) {
            const Wort richtung = p.Option_Dachfirst == 1
                                      ? Wort{"in Nord-Süd-Richtung", "in north-south-direction"}
                                      : Wort{"in Ost-West-Richtung", "in east-west-direction"};
            text.reihe({"Dachfirst", "Roof ridge"}, richtung.in(text.sprache()));
        }
    }
    text.reihe({"Südabweichung (gegen Westen positiv)", "Deviation from south direction (west positive)"},
               muster(p.orient, 1), " °");
    text.zeile_anhaengen("");
    text.reihe({"Grundfläche", "Ground area"}, muster(p.f_gd, 1), quadratmeter);
    text.reihe({"Nutzfläche", "Useful area"}, muster(p.f_nutz, 1), quadratmeter);
    text.reihe({"Gebäudevolumen", "Volume total"}, muster(p.v_geb, 1), kubikmeter);
    text.reihe({"Luftvolumen", "Air volume"}, muster(p.v_luft, 1), kubikmeter);
    text.reihe({"Fassadenfläche Nord bzw. Süd", "Facade north resp. south"}, muster(double{p.l} * p.h, 1),
               quadratmeter);
    text.reihe({"Fassadenfläche Ost bzw. West", "Facade east resp. west"}, muster(double{p.b} * p.h, 1),
               quadratmeter);
    text.reihe({"A/V - Verhältnis", "Surface-to-volume value"}, muster(p.AV, 1), " 1/m");
}

void daemmung(Reporttext& text, const Dokumentquelle& quelle) {
    const Projekt& p = quelle.p;
    constexpr Wort u{"U-Wert", "U value"};
    constexpr Wort gegen{"Gegen", "Towards"};
    text.abschnitt({"Dämmung", "Insulation"});
    text.block(tabstopps::werte);
    text.gruppe({"U-Werte der Wände", "U values of the walls"});
    text.unterreihe({"Nord", "north"}, muster(p.kwn, 2), uwert);
    text.unterreihe({"Süd", "south"}, muster(p.kws, 2), uwert);
    text.unterreihe({"Ost", "east"}, muster(p.kwo, 2), uwert);
    text.unterreihe({"West", "west"}, muster(p.kww, 2), uwert);
    if (p.Check_Dachgeschoss == 1) {
        text.gruppe({"Dach", "Roof"});
        text.unterreihe(gegen, Wort{"Außenluft", "outside air"}.in(text.sprache()));
    } else {
        text.gruppe({"Obere Geschoßdecke", "Upper floor"});
        text.textunterreihe(gegen, quelle.auswahl.Dachraum);
    }
    text.unterreihe(u, muster(p.kd, 2), uwert);
    text.gruppe({"Untere Geschoßdecke", "Lower floor"});
    text.textunterreihe(gegen, quelle.auswahl.untere_Decke);
    text.unterreihe(u, muster(p.kk, 2), uwert);
    text.gruppe({"Tür (Nordfassade)", "Door (north facade)"});
    text.unterreihe({"Fläche", "Area"}, muster(p.ft, 1), quadratmeter);
    text.unterreihe(u, muster(p.kt, 2), uwert);
    // The label has no English form.
    text.textreihe({"Wärmebrücken", "Wärmebrücken"}, quelle.auswahl.Waermebruecken);
}

void bauarten(Reporttext& text, const Auswahltexte& auswahl) {
    const auto aussen = [&] {
        text.textreihe({"Art der Außenwände", "Kind of outdoor walls"}, auswahl.Aussenwandart);
    };
    const auto innen = [&] {
        text.textreihe({"Art der Innenwände", "Kind of indoor walls"}, auswahl.Innenwandart);
    };
    // The English report names the inner walls first.
    if (englisch(text.sprache())) {
        innen();
        aussen();
    } else {
        aussen();
        innen();
    }
}

void gebaeude(Reporttext& text, const Dokumentquelle& quelle) {
    const Projekt& p = quelle.p;
    text.abschnitt({"Gebäude", "Building"});
    text.block(tabstopps::werte);
    text.reihe({"Soll-Raumlufttemperatur", "Interior temperature"}, muster(p.Troom, 1), grad_celsius);
    text.reihe({"Überwärmung ab einer Raumlufttemperatur über", "Limit of overheating"}, muster(p.Tueber, 1),
               grad_celsius);
    text.gruppe({"Lüftung", "Ventilation"});
    text.unterreihe({"Freie Lüftung (infiltration)", "Natural ventilation (infiltration)"},
                    muster(p.infiltration, 2), je_stunde);
    text.unterreihe({"Mechanische Lüftung", "Mechanical ventilation"}, muster(p.lw, 2), je_stunde);
    text.unterreihe({"Wärmerückgewinnung (nur mech. Lüftung)", "Heat recovery (only mech. ventilation)"},
                    muster(double{p.WRG} * 100, 0), prozent);
    if (englisch(text.sprache())) {
        const std::string name = beschriftung("E_Gebaeude", "Frame9", "e");
        text.reihe({name, name}, muster(p.Klimaeffizienz, 1), R"( kWh{\sub cool} / kWh{\sub electr})");
    }
    text.reihe({"Interne Gewinne", "Internal gains"}, muster(p.intg, 1), " kWh/(m² a)");
    bauarten(text, quelle.auswahl);
    text.reihe({"Wände, die an eine beheizte Zone grenzen", "Walls towards another heated area"},
               nachbarwaende(p, text.sprache()));
}

void klima(Reporttext& text, const Projekt& p) {
    text.abschnitt({"Klima", "Climate"});
    text.block(tabstopps::werte);
    const int region = region_der_station(p);
    if (region == 0) {
        text.textreihe({"Klimastation", "Climate station"}, p.Stationsname);
        return;
    }
    const Regionszeilen& zeilen = regionszeilen(region);
    text.reihe({"Klimaregion", "Climatic region"}, zeilen[0]);
    text.zeile_anhaengen(R"( \tab )" + std::string(zeilen[1]));
}

/// What a facade's rows show that `Fassade` does not hold.
struct Fensterreihe {
    Wort flaeche;
    std::int16_t Projekt::*anteil;
    float Projekt::*kfg;
    float Projekt::*kfr;
};

constexpr JeWandseite<Fensterreihe> fensterreihen{{{
    {{"Fensterfläche", "Windows area"}, &Projekt::fn, &Projekt::kfgn, &Projekt::kfrn},
    {{"Fensterfläche", "Window area"}, &Projekt::fs, &Projekt::kfgs, &Projekt::kfrs},
    {{"Fensterfläche", "Window area"}, &Projekt::fo, &Projekt::kfgo, &Projekt::kfro},
    {{"Fensterfläche", "Window area"}, &Projekt::fw, &Projekt::kfgw, &Projekt::kfrw},
}}};

void fenster(Reporttext& text, const Dokumentquelle& quelle) {
    const Projekt& p = quelle.p;
    const auto seiten = fassaden(p);
    text.abschnitt({"Fenster", "Windows"});
    text.block(tabstopps::werte);
    for (const Wandseite wand : wandseiten) {
        const Fensterreihe& reihe = fensterreihen[wand];
        const Fassade& seite = seiten[wand];
        text.gruppe(fassadennamen[wand]);
        text.unterreihe(reihe.flaeche, muster(seite.f_fenster, 1), quadratmeter);
        text.unterreihe({"Fensteranteil der Fassade", "Fraction of windows area at the facade"},
                        muster(p.*reihe.anteil, 1), prozent);
        text.textunterreihe({"Fensterart", "Kind of windows"}, quelle.auswahl.Fensterart[wand]);
        text.unterreihe({"U-Wert Glas", "U value glazing"}, muster(p.*reihe.kfg, 2), uwert);
        text.unterreihe({"U-Wert Rahmen", "U value frame"}, muster(p.*reihe.kfr, 2), uwert);
        text.unterreihe({"g-Wert Verglasung", "g value glazing"}, muster(seite.g, 2));
        text.unterreihe({"Rahmenanteil", "Fraction of frame"}, muster(seite.rahmen * 100, 1), prozent);
        text.unterreihe({"Verschattung", "Shading"}, muster(seite.verschattung * 100, 1), prozent);
    }
}

void energie(Reporttext& text, const Energietexte& e) {
    text.abschnitt({"Energie", "Energy"});
    text.block(tabstopps::werte);
    text.textreihe({"Heizungssystem", "Heating system"}, e.System);
    text.textreihe({"Wärmeübergabe / Systemtemperatur", "Heat transfer / system temperature"}, e.Uebergabe);
    text.textreihe({"Energieträger", "Source of energy"}, e.Energietraeger);
}

}  // namespace

void report_datenblatt(Reporttext& text, const Dokumentquelle& quelle) {
    text.seitenkopf({"Datenblatt", "Data sheet"});
    geometrie(text, quelle.p);
    daemmung(text, quelle);
    gebaeude(text, quelle);
    klima(text, quelle.p);
    fenster(text, quelle);
    energie(text, quelle.energie);
}

}  // namespace velmaris
