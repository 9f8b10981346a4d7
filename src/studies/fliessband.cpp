#include "studies/fliessband.h"

#include <new>
#include <oneapi/tbb/blocked_range.h>
#include <oneapi/tbb/enumerable_thread_specific.h>
#include <oneapi/tbb/global_control.h>
#include <oneapi/tbb/info.h>
#include <oneapi/tbb/parallel_for.h>
#include <oneapi/tbb/parallel_pipeline.h>
#include <oneapi/tbb/task_arena.h>

namespace velmaris {
namespace {

namespace tbb = oneapi::tbb;

/// So many that one is read and one written while the workers share one or two.
constexpr std::size_t fenster_unterwegs = 4;

constexpr std::size_t zeilen_am_stueck = 8;

/// The workers of all studies: at the end of the program they are gone before its constants.
class Arbeiterschaft {
  public:
    Arbeiterschaft() = default;
    Arbeiterschaft(const Arbeiterschaft&) = delete;
    Arbeiterschaft& operator=(const Arbeiterschaft&) = delete;
    ~Arbeiterschaft() { tbb::finalize(griff_, std::nothrow); }

  private:
    tbb::task_scheduler_handle griff_{tbb::attach{}};
};

using Fenster = std::shared_ptr<Studienfenster>;
using Plaetze = tbb::enumerable_thread_specific<std::unique_ptr<Rechenplatz>>;

void fenster_rechnen(const Fliessband& band, Plaetze& plaetze, Studienfenster& fenster) {
    band.ordnen(fenster);
    const tbb::blocked_range<std::size_t> alle(0, fenster.zeilen.size(), zeilen_am_stueck);
    tbb::parallel_for(alle, [&](const tbb::blocked_range<std::size_t>& stueck) {
        band.rechnen(*plaetze.local(), fenster, stueck.begin(), stueck.end());
    });
}

void durchlaufen(const Fliessband& band) {
    Plaetze plaetze(band.einrichten);
    const auto eingang = tbb::make_filter<void, Fenster>(tbb::filter_mode::serial_in_order,
                                                         [&](tbb::flow_control& steuerung) -> Fenster {
                                                             Fenster fenster = band.lesen();
                                                             if (!fenster) steuerung.stop();
                                                             return fenster;
                                                         });
    const auto mitte = tbb::make_filter<Fenster, Fenster>(tbb::filter_mode::parallel, [&](Fenster fenster) {
        fenster_rechnen(band, plaetze, *fenster);
        return fenster;
    });
    const auto ausgang = tbb::make_filter<Fenster, void>(
        tbb::filter_mode::serial_in_order, [&](const Fenster& fenster) { band.schreiben(*fenster); });
    tbb::parallel_pipeline(fenster_unterwegs, eingang & mitte & ausgang);
}

}  // namespace

void laufen(const Fliessband& band, int kerne) {
    const int alle = tbb::info::default_concurrency();
    const int zahl = kerne > 0 ? kerne : alle;
    const tbb::global_control grenze(tbb::global_control::max_allowed_parallelism,
                                     static_cast<std::size_t>(zahl));
    static const Arbeiterschaft arbeiter;
    tbb::task_arena(zahl).execute([&] { durchlaufen(band); });
}

}  // namespace velmaris
