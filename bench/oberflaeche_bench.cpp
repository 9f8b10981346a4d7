#include "desktop/programm.h"
#include "desktop/stil.h"
#include "tests/testprogramm.h"

#include <QApplication>
#include <benchmark/benchmark.h>
#include <chrono>
#include <string_view>

namespace velmaris {
namespace {

/// The program's folder with two stations; the pictures of the build, where there are any.
struct Ordner : test::Testordner {
    Ordner() {
        schreibe("klima/trier.met", test::stationsbytes("Trier (Deutschland)"));
        schreibe("klima/fern.met", test::stationsbytes("Fern (Ausland)"));
        std::filesystem::copy(VELMARIS_GRAFIKEN, *this / "Grafiken");
    }
};

/// From the language letter on the command line to the painted main window, without the start of the process.
void Start_bis_Hauptfenster(benchmark::State& zustand) {
    const Ordner ordner;
    for ([[maybe_unused]] auto _ : zustand) {
        Programm programm(ordner.pfad(), "d", Befehlszeile("d"));
        programm.starten();
        QApplication::processEvents();
    }
}
BENCHMARK(Start_bis_Hauptfenster)->Unit(benchmark::kMillisecond);

/// From the click on an output plane's button to its first full picture, in a program newly started.
void Erstes_Bild(benchmark::State& zustand, const char* ebene) {
    using Uhr = std::chrono::steady_clock;
    const Ordner ordner;
    for ([[maybe_unused]] auto _ : zustand) {
        Programm programm(ordner.pfad(), "d", Befehlszeile("d"));
        programm.starten();
        QApplication::processEvents();
        if (std::string_view(ebene) == "Uebersicht") programm.haupt().a_menue.klicke("Heizen");
        QApplication::processEvents();
        const Uhr::time_point beginn = Uhr::now();
        programm.haupt().a_menue.klicke(ebene);
        QApplication::processEvents();
        zustand.SetIterationTime(std::chrono::duration<double>(Uhr::now() - beginn).count());
    }
}

BENCHMARK_CAPTURE(Erstes_Bild, Uebersicht, "Uebersicht")->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Erstes_Bild, Klima, "Klima")->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Erstes_Bild, Heizen, "Heizen")->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Erstes_Bild, Kuehlen, "Kuehlen")->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Erstes_Bild, Sankey, "Sankey")->UseManualTime()->Unit(benchmark::kMillisecond);

/// One step of a scroll field, all visible charts repainted, with each output plane in front.
void Schritt(benchmark::State& zustand, const char* ebene) {
    const Ordner ordner;
    Programm programm(ordner.pfad(), "d", Befehlszeile("d"));
    programm.starten();
    programm.haupt().a_menue.klicke(ebene);
    QApplication::processEvents();
    Bildfeld& plan = programm.haupt().e_geometrie.AV_Picture;
    int gezeichnet = 0;
    plan.zeichnen = [&gezeichnet, vorher = plan.zeichnen](Zeichenflaeche& flaeche) {
        ++gezeichnet;
        vorher(flaeche);
    };
    Scrollfeld& laenge = programm.haupt().e_geometrie.l_sb;
    int stellung = laenge.position();
    for ([[maybe_unused]] auto _ : zustand) {
        stellung = stellung == 100 ? 101 : 100;
        laenge.setze(stellung);
        QApplication::processEvents();
    }
    if (gezeichnet < zustand.iterations()) zustand.SkipWithError("not every step was painted");
}
BENCHMARK_CAPTURE(Schritt, Uebersicht, "Uebersicht")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Schritt, Heizen, "Heizen")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Schritt, Kuehlen, "Kuehlen")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Schritt, Sankey, "Sankey")->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace velmaris

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication anwendung(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    velmaris::stil_setzen();
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
