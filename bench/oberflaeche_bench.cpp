#include "desktop/platform/stil.h"
#include "desktop/programm.h"
#include "desktop/widgets/scrollleiste.h"
#include "tests/testprogramm.h"

#include <QApplication>
#include <QKeyEvent>
#include <algorithm>
#include <array>
#include <benchmark/benchmark.h>
#include <chrono>
#include <map>
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

/// The sizes of the main window: the smallest, and maximised on two usual screens.
constexpr std::array fenstergroessen{QSize(800, 567), QSize(1920, 1050), QSize(3840, 2130)};

/// The benchmark for each of the sizes, by number.
void alle_groessen(benchmark::internal::Benchmark* messung) {
    messung->DenseRange(0, static_cast<int>(fenstergroessen.size()) - 1)->Unit(benchmark::kMillisecond);
}

/// The program in its window of that size, with an output plane in front, all painted.
void vorbereiten(Programm& programm, benchmark::State& zustand, const char* ebene) {
    programm.starten();
    const QSize groesse = fenstergroessen.at(static_cast<std::size_t>(zustand.range(0)));
    programm.fenster().resize(groesse);
    zustand.SetLabel(std::to_string(groesse.width()) + " x " + std::to_string(groesse.height()));
    programm.haupt().a_menue.klicke(ebene);
    QApplication::processEvents();
}

/// One step of a scroll field, all visible charts repainted, with each output plane in front.
void Schritt(benchmark::State& zustand, const char* ebene) {
    const Ordner ordner;
    Programm programm(ordner.pfad(), "d", Befehlszeile("d"));
    vorbereiten(programm, zustand, ebene);
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
BENCHMARK_CAPTURE(Schritt, Uebersicht, "Uebersicht")->Apply(alle_groessen);
BENCHMARK_CAPTURE(Schritt, Heizen, "Heizen")->Apply(alle_groessen);
BENCHMARK_CAPTURE(Schritt, Kuehlen, "Kuehlen")->Apply(alle_groessen);
BENCHMARK_CAPTURE(Schritt, Sankey, "Sankey")->Apply(alle_groessen);

/// One step of a drag at the edge of the window, with each output plane in front: 30 pictures a second are
/// wanted.
void Groesse_ziehen(benchmark::State& zustand, const char* ebene) {
    const Ordner ordner;
    Programm programm(ordner.pfad(), "d", Befehlszeile("d"));
    vorbereiten(programm, zustand, ebene);
    const QSize groesse = programm.fenster().size();
    constexpr int weite = 40;
    int schritt = 0;
    for ([[maybe_unused]] auto _ : zustand) {
        schritt = (schritt + 1) % weite;
        programm.fenster().resize(groesse + QSize(schritt, schritt) * 2);
        QApplication::processEvents();
    }
}
BENCHMARK_CAPTURE(Groesse_ziehen, Uebersicht, "Uebersicht")->Apply(alle_groessen);
BENCHMARK_CAPTURE(Groesse_ziehen, Sankey, "Sankey")->Apply(alle_groessen);

using Uhr = std::chrono::steady_clock;

/// Presses the key of a small step there or back and waits until all is painted; milliseconds.
double schritt_mit_taste(Scrollleiste& leiste, bool hin) {
    const bool waagrecht = leiste.orientation() == Qt::Horizontal;
    const int hintaste = waagrecht ? Qt::Key_Right : Qt::Key_Down;
    const int ruecktaste = waagrecht ? Qt::Key_Left : Qt::Key_Up;
    QKeyEvent taste(QEvent::KeyPress, hin ? hintaste : ruecktaste, Qt::NoModifier);
    const auto anfang = Uhr::now();
    QApplication::sendEvent(&leiste, &taste);
    QApplication::processEvents();
    return std::chrono::duration<double, std::milli>(Uhr::now() - anfang).count();
}

/// A step of each scroll field of the input planes, with the overview beside them. The label names the field
/// that takes longest in the mean, the counter tells how many milliseconds.
void Schritt_jedes_Feldes(benchmark::State& zustand) {
    const Ordner ordner;
    Programm programm(ordner.pfad(), "d", Befehlszeile("d"));
    programm.starten();
    Haupt& haupt = programm.haupt();
    haupt.e_geometrie.Check_Dachgeschoss.setze(1);
    haupt.e_fenster.Option1.setze(1);
    std::map<std::string, double> zeiten;
    int runden = 0;
    for ([[maybe_unused]] auto _ : zustand) {
        for (const auto& eintrag : haupt.e_menue.eintraege()) {
            haupt.e_menue.klicke(eintrag.knopf->name);
            QApplication::processEvents();
            for (auto* leiste : programm.fenster().findChildren<Scrollleiste*>()) {
                if (leiste->isVisible())
                    zeiten[leiste->objectName().toStdString()] += schritt_mit_taste(*leiste, runden % 2 == 0);
            }
        }
        ++runden;
    }
    const auto laengster = std::max_element(zeiten.begin(), zeiten.end(),
                                            [](const auto& a, const auto& b) { return a.second < b.second; });
    zustand.SetLabel(laengster->first);
    zustand.counters["fields"] = static_cast<double>(zeiten.size());
    zustand.counters["slowest_ms"] = laengster->second / runden;
}
BENCHMARK(Schritt_jedes_Feldes)->Unit(benchmark::kMillisecond);

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
