#include "calc/alles_berechnen.h"
#include "calc/gebaeudekennwerte.h"
#include "calc/geometrie.h"
#include "calc/monatsbilanz.h"
#include "climate/A_Klima.h"
#include "climate/strahlung.h"
#include "tests/musterprojekt.h"
#include "tests/wie_geschrieben.h"

#include <benchmark/benchmark.h>
#include <chrono>
#include <memory>

namespace velmaris {
namespace {

/// A change of one input, another one at each call, and what has to follow it.
struct Aenderung {
    void (*aendern)(Projekt&, bool gerade);
    bool dreht_das_haus;  ///< the monthly radiation follows too
};

constexpr Aenderung sollwert{[](Projekt& p, bool gerade) { p.Troom = gerade ? 20.0F : 20.5F; }, false};
constexpr Aenderung ausrichtung{[](Projekt& p, bool gerade) { p.orient = gerade ? 10 : 15; }, true};
constexpr Aenderung dachneigung{[](Projekt& p, bool gerade) { p.hd = gerade ? 3.0F : 3.1F; }, false};

/// The figures of building and climate that are shown after each recalculation.
void klimawerte(const Projekt& p) {
    benchmark::DoNotOptimize(gebaeudekennwerte(p));
    benchmark::DoNotOptimize(heizgrenze(p));
}

void wie_geschrieben(Projekt& p, bool dreht_das_haus) {
    if (dreht_das_haus) test::monatsstrahlung_wie_geschrieben(p);
    geometrie_berechnen(p);
    monatsbilanz(p);
    test::stundensimulation_wie_geschrieben(p);
    klimawerte(p);
}

void im_kern(Projekt& p, bool dreht_das_haus) {
    if (dreht_das_haus) monatsstrahlung_berechnen(p);
    alles_berechnen(p, {});
    klimawerte(p);
}

/// Seconds of one recalculation after the change.
template <class Rechnung>
double dauer(Projekt& p, const Aenderung& a, bool gerade, Rechnung&& rechne) {
    a.aendern(p, gerade);
    const auto beginn = std::chrono::steady_clock::now();
    rechne(p, a.dreht_das_haus);
    benchmark::DoNotOptimize(p.Heizlast_max);
    benchmark::ClobberMemory();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - beginn).count();
}

/// Both ways by turns on one house with a flat or a heated saddle roof. The time shown is the kernel's; the
/// counters give the plain way's and how many times longer it takes.
void neuberechnung(benchmark::State& zustand, const Aenderung& a, bool dachgeschoss) {
    const auto p = test::musterprojekt();
    p->Check_Dachgeschoss = dachgeschoss ? 1 : 0;
    p->Option_Dachfirst = 2;
    double kern = 0;
    double plan = 0;
    bool gerade = false;
    for ([[maybe_unused]] auto runde : zustand) {
        plan += dauer(*p, a, gerade, wie_geschrieben);
        const double zeit = dauer(*p, a, !gerade, im_kern);
        zustand.SetIterationTime(zeit);
        kern += zeit;
        gerade = !gerade;
    }
    zustand.counters["plain_ms"] = 1000 * plan / static_cast<double>(zustand.iterations());
    zustand.counters["ratio"] = plan / kern;
}

BENCHMARK_CAPTURE(neuberechnung, set_point_flat_roof, sollwert, false)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(neuberechnung, set_point_saddle_roof, sollwert, true)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(neuberechnung, orientation_saddle_roof, ausrichtung, true)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(neuberechnung, pitch_saddle_roof, dachneigung, true)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace velmaris

BENCHMARK_MAIN();
