#include "calc/rechenstufen.h"
#include "studies/studie.h"
#include "tests/testprogramm.h"
#include "toolkit/text.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstddef>
#include <ctime>
#include <sstream>
#include <thread>
#include <vector>

namespace velmaris {
namespace {

constexpr int neuberechnungen = 2000;

/// Seconds by the clock on the wall and of all processors together.
struct Dauer {
    double wand = 0;
    double rechner = 0;
};

template <class Arbeit>
Dauer dauer(Arbeit&& arbeit) {
    const auto beginn = std::chrono::steady_clock::now();
    const std::clock_t takt = std::clock();
    arbeit();
    const std::chrono::duration<double> wand = std::chrono::steady_clock::now() - beginn;
    return {wand.count(), static_cast<double>(std::clock() - takt) / CLOCKS_PER_SEC};
}

void neu_rechnen(Projekt& p) {
    for (int i = 0; i < neuberechnungen; ++i) {
        p.Troom = i % 2 == 0 ? 20.0F : 20.5F;
        geometrie_stufe(p);
        bilanz_stufe(p);
        simulation_stufe(p);
        benchmark::DoNotOptimize(energie_stufe(p));
    }
}

/// A project file over two stations, and studies that vary it.
class Versuch {
  public:
    Versuch() {
        programm_.ordner.schreibe("haus.vel", test::projekttext(test::projektzeilen(programm_.p())));
    }

    [[nodiscard]] Projekt& p() const { return programm_.p(); }

    void studie(const std::vector<const char*>& reihen, int kerne) const {
        Studienauftrag auftrag;
        auftrag.ergebnisse = ergebnisse_lesen(hauptergebnisse);
        for (const char* reihe : reihen)
            auftrag.variiert.emplace_back(reihe);
        auftrag.kerne = kerne;
        std::ostringstream aus;
        std::ostringstream fehler;
        const Studienumgebung umgebung{.projekt = pfadtext(programm_.ordner / "haus.vel"),
                                       .programmordner = programm_.ordner.pfad(),
                                       .datenordner = {},
                                       .sprache = "d",
                                       .aus = aus,
                                       .fehler = fehler};
        if (!studie_rechnen(auftrag, umgebung)) std::abort();
    }

  private:
    test::Testprogramm programm_;
};

double median(std::vector<double> werte) {
    const auto mitte = werte.begin() + static_cast<std::ptrdiff_t>(werte.size() / 2);
    std::nth_element(werte.begin(), mitte, werte.end());
    return *mitte;
}

/// Rows in a second against 1 / recalculation, by turns on one house. `share_1` and `share_all` are the parts
/// of it that one and all cores reach, `speedup` is all cores against one; on a busy machine `work`, the
/// processor seconds of one core over those of all, tells more.
void zeilen(benchmark::State& zustand, const std::vector<const char*>& reihen, double anzahl) {
    const Versuch versuch;
    const double kerne = std::max(1U, std::thread::hardware_concurrency());
    std::vector<double> neu, einer, alle, anteil_1, anteil_alle, faktor, arbeit;
    for ([[maybe_unused]] auto runde : zustand) {
        neu.push_back(dauer([&] { neu_rechnen(versuch.p()); }).rechner / neuberechnungen);
        const Dauer ein_kern = dauer([&] { versuch.studie(reihen, 1); });
        const Dauer alle_kerne = dauer([&] { versuch.studie(reihen, 0); });
        zustand.SetIterationTime(alle_kerne.wand);
        einer.push_back(anzahl / ein_kern.rechner);
        alle.push_back(anzahl / alle_kerne.wand);
        anteil_1.push_back(einer.back() * neu.back());
        anteil_alle.push_back(alle.back() * neu.back() / kerne);
        faktor.push_back(ein_kern.wand / alle_kerne.wand);
        arbeit.push_back(ein_kern.rechner / alle_kerne.rechner);
    }
    zustand.counters["recalculation_us"] = 1e6 * median(neu);
    zustand.counters["rows_per_s_1"] = median(einer);
    zustand.counters["rows_per_s_all"] = median(alle);
    zustand.counters["share_1"] = median(anteil_1);
    zustand.counters["share_all"] = median(anteil_alle);
    zustand.counters["speedup"] = median(faktor);
    zustand.counters["work"] = median(arbeit);
}

void einstellen(benchmark::internal::Benchmark* messung) {
    messung->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);
}

BENCHMARK_CAPTURE(zeilen, set_points_u_values_windows, {"kws=0.1:1.4:0.1", "fs=1:60:1", "Troom=18:22:0.25"},
                  14.0 * 60 * 17)
    ->Apply(einstellen);
BENCHMARK_CAPTURE(zeilen, stations_orientations,
                  {"kws=0.1:1.4:0.1", "orient=-45:45:1", "Klimadatei=trier.met,fern.met"}, 14.0 * 91 * 2)
    ->Apply(einstellen);

}  // namespace
}  // namespace velmaris

BENCHMARK_MAIN();
