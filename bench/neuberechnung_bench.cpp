#include "calc/gebaeudekennwerte.h"
#include "calc/geometrie.h"
#include "calc/heizgrenze.h"
#include "calc/monatsbilanz.h"
#include "calc/rechenstufen.h"
#include "climate/strahlung.h"
#include "energy/energiebilanz.h"
#include "tests/musterprojekt.h"
#include "tests/wie_geschrieben.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstddef>
#include <ctime>
#include <memory>
#include <vector>

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
    static_cast<void>(energ_refresh(p));
    klimawerte(p);
}

void im_kern(Projekt& p, bool dreht_das_haus) {
    if (dreht_das_haus) monatsstrahlung_berechnen(p);
    geometrie_stufe(p);
    bilanz_stufe(p);
    simulation_stufe(p);
    benchmark::DoNotOptimize(energie_stufe(p));
    klimawerte(p);
}

/// Seconds of the processor for one recalculation after the change; time that a busy machine gives to others
/// does not count.
template <class Rechnung>
double dauer(Projekt& p, const Aenderung& a, bool gerade, Rechnung&& rechne) {
    a.aendern(p, gerade);
    const std::clock_t beginn = std::clock();
    rechne(p, a.dreht_das_haus);
    benchmark::DoNotOptimize(p.Heizlast_max);
    benchmark::ClobberMemory();
    return static_cast<double>(std::clock() - beginn) / CLOCKS_PER_SEC;
}

/// The middle one: interrupts and cold caches lengthen some runs.
double median(std::vector<double> dauern) {
    const auto mitte = dauern.begin() + static_cast<std::ptrdiff_t>(dauern.size() / 2);
    std::nth_element(dauern.begin(), mitte, dauern.end());
    return *mitte;
}

/// Both ways by turns on one house with a flat or a heated saddle roof. The time shown is the kernel's mean;
/// the counters give the medians of the kernel and of the plain way, and how many times longer that takes.
void neuberechnung(benchmark::State& zustand, const Aenderung& a, bool dachgeschoss) {
    const auto p = test::musterprojekt();
    p->Check_Dachgeschoss = dachgeschoss ? 1 : 0;
    p->Option_Dachfirst = 2;
    std::vector<double> kern;
    std::vector<double> plan;
    bool gerade = false;
    for ([[maybe_unused]] auto runde : zustand) {
        plan.push_back(dauer(*p, a, gerade, wie_geschrieben));
        kern.push_back(dauer(*p, a, !gerade, im_kern));
        zustand.SetIterationTime(kern.back());
        gerade = !gerade;
    }
    const double kern_s = median(kern);
    const double plan_s = median(plan);
    zustand.counters["median_us"] = 1e6 * kern_s;
    zustand.counters["plain_us"] = 1e6 * plan_s;
    zustand.counters["ratio"] = plan_s / kern_s;
}

/// Few runs are enough: the plain way takes milliseconds.
void einstellen(benchmark::internal::Benchmark* messung) {
    messung->UseManualTime()->MinTime(0.05)->Unit(benchmark::kMicrosecond);
}

BENCHMARK_CAPTURE(neuberechnung, set_point_flat_roof, sollwert, false)->Apply(einstellen);
BENCHMARK_CAPTURE(neuberechnung, set_point_saddle_roof, sollwert, true)->Apply(einstellen);
BENCHMARK_CAPTURE(neuberechnung, orientation_saddle_roof, ausrichtung, true)->Apply(einstellen);
BENCHMARK_CAPTURE(neuberechnung, pitch_saddle_roof, dachneigung, true)->Apply(einstellen);

}  // namespace
}  // namespace velmaris

BENCHMARK_MAIN();
