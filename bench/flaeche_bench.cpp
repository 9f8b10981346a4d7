#include "desktop/platform/bilddatei.h"
#include "desktop/platform/qt_flaeche.h"
#include "tests/testprogramm.h"

#include <QGuiApplication>
#include <benchmark/benchmark.h>
#include <memory>
#include <vector>

namespace velmaris {
namespace {

/// A picture of a plane; what no plane has laid out has the size that its window gives it.
struct Bild {
    const Bildfeld& feld;
    Rechteck lage = {};
};

std::vector<Bild> uebersicht(const Haupt& h) {
    const A_Uebersicht& a = h.a_uebersicht;
    return {{a.Temperaturen}, {a.Monatsbilanz}, {a.JahrBilanz}, {a.UeberGrafik}, {a.UeberJahr}};
}

std::vector<Bild> heizen(const Haupt& h) {
    const A_Heizen& a = h.a_heizen;
    return {{a.Heizbilanz}, {a.JahrBilanz}, {a.NutzungsgradMonat}, {a.NutzungsgradJahr},
            {a.Gewinne_N},  {a.Verluste_N}, {a.Gewinne_S},         {a.Verluste_S},
            {a.Gewinne_O},  {a.Verluste_O}, {a.Gewinne_W},         {a.Verluste_W}};
}

std::vector<Bild> kuehlen(const Haupt& h) {
    const A_Kuehlen& a = h.a_kuehlen;
    return {{a.StundenProTagMonat}, {a.StundenProTagJahr},     {a.KuehlbedarfMonat},
            {a.KuehlbedarfJahr},    {a.KuehlGradStundenMonat}, {a.KuehlGradStundenJahr}};
}

std::vector<Bild> sankey(const Haupt& h) {
    return {{h.a_sankey.Sankey}, {h.a_sankey.Sankey_Kühlen}};
}

std::vector<Bild> energie(const Haupt& h) {
    const E_Energie& e = h.e_energie;
    return {{e.Picture2, {0, 0, 80, 60}},
            {e.Picture3, {0, 0, 80, 60}},
            {e.Monatsübersicht_Energieträger, {0, 0, 330, 118}}};
}

std::vector<Bild> zoom(const Haupt& h) {
    return {{h.a_zoom.Temperaturen, {0, 0, 784, 509}}};
}

/// The surface of a picture at a device pixel ratio.
std::unique_ptr<QtFlaeche> flaeche_fuer(const Bild& bild, double verhaeltnis) {
    const Rechteck lage = bild.feld.lage().value_or(bild.lage);
    const QSize groesse(static_cast<int>(lage.breite), static_cast<int>(lage.hoehe));
    return std::make_unique<QtFlaeche>(groesse, verhaeltnis, farben::weiss);
}

void zeichne(const Bild& bild, QtFlaeche& flaeche) {
    flaeche.Cls();
    bild.feld.zeichnen(flaeche);
    benchmark::DoNotOptimize(flaeche.bild().constBits());
}

/// All pictures of a plane drawn anew on the surfaces that they have, as after each step of a slider. The
/// argument is the device pixel ratio in tenths.
void Ebene(benchmark::State& zustand, std::vector<Bild> (*bilder_der_ebene)(const Haupt&)) {
    const test::Testprogramm programm;
    const std::vector<Bild> bilder = bilder_der_ebene(*programm.haupt);
    std::vector<std::unique_ptr<QtFlaeche>> flaechen;
    for (const Bild& bild : bilder)
        flaechen.push_back(flaeche_fuer(bild, static_cast<double>(zustand.range()) / 10));
    for ([[maybe_unused]] auto _ : zustand) {
        for (std::size_t i = 0; i < bilder.size(); ++i)
            zeichne(bilder[i], *flaechen[i]);
    }
}

void verhaeltnisse(benchmark::internal::Benchmark* messung) {
    messung->Arg(10)->Arg(19)->Arg(38)->Unit(benchmark::kMillisecond);
}
BENCHMARK_CAPTURE(Ebene, Uebersicht, uebersicht)->Apply(verhaeltnisse);
BENCHMARK_CAPTURE(Ebene, Heizen, heizen)->Apply(verhaeltnisse);
BENCHMARK_CAPTURE(Ebene, Kuehlen, kuehlen)->Apply(verhaeltnisse);
BENCHMARK_CAPTURE(Ebene, Sankey, sankey)->Apply(verhaeltnisse);
BENCHMARK_CAPTURE(Ebene, Energie, energie)->Apply(verhaeltnisse);
BENCHMARK_CAPTURE(Ebene, Zoom, zoom)->Apply(verhaeltnisse);

/// The map of the world with its stations: after a choice, or at a size that it has not had before, as
/// while the window's edge is dragged.
void Weltkarte(benchmark::State& zustand, bool neue_groesse) {
    const test::Testprogramm programm;
    const Bild bild{programm.haupt->e_klima.Picture3, {0, 0, 650, 246}};
    const std::filesystem::path datei = VELMARIS_GRAFIKEN "/welt.bmp";
    const QImage karte = bild_lesen(datei), fein = feines_bild_lesen(datei);
    const double verhaeltnis = static_cast<double>(zustand.range()) / 10;
    std::unique_ptr<QtFlaeche> flaeche;
    for ([[maybe_unused]] auto _ : zustand) {
        if (neue_groesse || !flaeche) flaeche = flaeche_fuer(bild, verhaeltnis);
        flaeche->hintergrundbild(karte, verhaeltnis > 1 ? fein : QImage());
        zeichne(bild, *flaeche);
    }
}
BENCHMARK_CAPTURE(Weltkarte, Auswahl, false)->Apply(verhaeltnisse);
BENCHMARK_CAPTURE(Weltkarte, Groesse, true)->Apply(verhaeltnisse);

}  // namespace
}  // namespace velmaris

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication anwendung(argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
