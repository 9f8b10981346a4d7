#include "climate/klimadatei.h"
#include "toolkit/text.h"
#include "toolkit/textdatei.h"
#include "toolkit/zahlen.h"

#include <benchmark/benchmark.h>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

namespace velmaris {
namespace {

/// A year of weather with the columns as full as those of the delivered stations.
std::string station() {
    std::string text =
        "Messfeld (Deutschland)\r\nBreitengrad:  49.75\r\nL\xE4ngengrad:   -6.66\r\nZeitzone:     -1\r\n\r\n"
        "   dy   Ta G_Gh G_Dh\r\n";
    for (int i = 0; i < stunden_im_jahr; ++i) {
        const int stunde = i % stunden;
        const int sonne = stunde > 6 && stunde < 20 ? (stunde - 6) * (20 - stunde) * 14 : 0;
        const double ta = -12.5 + (i * 37 % 431) * 0.1;
        for (const std::string& spalte : {std::to_string(i / stunden + 1), muster(ta, 1),
                                          std::to_string(sonne), std::to_string(sonne / 2)})
            text += rechtsbuendig(spalte, 5);
        text += "\r\n";
    }
    return text;
}

/// A program folder with one station file, removed at the end.
class Stationsordner {
  public:
    Stationsordner() : pfad_(std::filesystem::temp_directory_path() / "velmaris_klimadatei_bench") {
        std::filesystem::create_directories(pfad_ / "klima");
        std::ofstream(datei(), std::ios::binary) << station();
    }
    Stationsordner(const Stationsordner&) = delete;
    Stationsordner& operator=(const Stationsordner&) = delete;
    ~Stationsordner() { std::filesystem::remove_all(pfad_); }

    [[nodiscard]] const std::filesystem::path& pfad() const { return pfad_; }
    [[nodiscard]] std::filesystem::path datei() const { return pfad_ / "klima" / "messfeld.met"; }

  private:
    std::filesystem::path pfad_;
};

/// The floor under the reader: the bytes, the lines and the three numbers of each row.
void bytes_und_spalten(benchmark::State& zustand) {
    const Stationsordner ordner;
    for (auto _ : zustand) {
        const std::string bytes = bytes_lesen(ordner.datei());
        Zeilenleser leser(bytes);
        double summe = 0;
        while (const auto zeile = leser.naechste()) {
            for (const std::size_t von : {6U, 11U, 16U})
                summe += zahl_lesen(spalten(*zeile, von, von + 4));
        }
        benchmark::DoNotOptimize(summe);
    }
}
BENCHMARK(bytes_und_spalten)->Unit(benchmark::kMicrosecond);

/// The whole reader, with the sun, the four walls and the sums of the months.
void klimadatei(benchmark::State& zustand) {
    const Stationsordner ordner;
    const auto p = std::make_unique<Projekt>();
    p->AppPfad = ordner.pfad();
    p->Klimadatei = "messfeld.met";
    for (auto _ : zustand) {
        klimadatei_lesen(*p);
        benchmark::DoNotOptimize(p->Monat(7).Strahlung_S);
    }
}
BENCHMARK(klimadatei)->Unit(benchmark::kMicrosecond);

/// The head alone, as the station lists read it.
void stationskopf(benchmark::State& zustand) {
    const Stationsordner ordner;
    for (auto _ : zustand)
        benchmark::DoNotOptimize(stationskopf_lesen(ordner.datei()));
}
BENCHMARK(stationskopf)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace velmaris

BENCHMARK_MAIN();
