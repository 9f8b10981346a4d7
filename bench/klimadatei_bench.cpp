#include "climate/klimadatei.h"
#include "tests/climate/stationsdatei.h"
#include "tests/hilfen.h"
#include "toolkit/zahlen.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cmath>
#include <memory>

namespace velmaris {
namespace {

/// A day of sun in every row, so that the direct radiation has to be worked out.
test::Datenzeile zeile(int nummer) {
    const double hoehe = std::max(0.0, -std::cos(nummer % stunden * 6.2832 / stunden));
    return {muster(5 + 10 * hoehe, 1), muster(600 * hoehe, 0), muster(200 * hoehe, 0)};
}

/// The whole way from the file to the monthly radiation.
void klimadatei(benchmark::State& zustand) {
    const test::Testordner ordner;
    test::Stationsdatei datei;
    datei.zeile = zeile;
    ordner.schreibe("klima/probe.met", datei.text());
    const auto p = std::make_unique<Projekt>();
    p->AppPfad = ordner.pfad();
    p->Klimadatei = "probe.met";
    for ([[maybe_unused]] auto runde : zustand) {
        klimadatei_lesen(*p);
        benchmark::DoNotOptimize(p->Monat(7).Strahlung_S);
        benchmark::ClobberMemory();
    }
}

BENCHMARK(klimadatei)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace velmaris

BENCHMARK_MAIN();
