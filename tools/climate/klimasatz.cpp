#include "tools/climate/klimasatz.h"

#include "toolkit/fehler.h"
#include "toolkit/text.h"
#include "toolkit/textdatei.h"
#include "tools/climate/stationsdatei.h"

#include <atomic>
#include <exception>
#include <system_error>
#include <thread>

namespace velmaris::klimasatz {
namespace {

namespace fs = std::filesystem;

Klimadatei klimadatei(const Stationsfakten& station) {
    std::string bytes = stationsdatei_erzeugen(station);
    const Befund befund = untersuchen(bytes, station);
    befund_pruefen(befund, station);
    return {station.datei, std::move(bytes), befund};
}

/// Two folders beside the files' places: one for the new files, one for those they replace. Both go at
/// the end, and with them whatever was not moved.
class Umzug {
  public:
    explicit Umzug(const fs::path& ordner) : ordner_(ordner), neu_(ordner / "neu~"), alt_(ordner / "alt~") {
        for (const fs::path& hilfsordner : {neu_, alt_}) {
            fs::remove_all(hilfsordner);
            fs::create_directories(hilfsordner);
        }
    }
    Umzug(const Umzug&) = delete;
    Umzug& operator=(const Umzug&) = delete;
    ~Umzug() {
        std::error_code fehler;
        while (!umgezogen_.empty()) {
            zurueck(umgezogen_.back());
            umgezogen_.pop_back();
        }
        fs::remove_all(neu_, fehler);
        fs::remove_all(alt_, fehler);
    }

    void schreiben(const Klimadatei& datei) const { datei_ersetzen(neu_ / pfad(datei.name), datei.bytes); }

    void umziehen(const Klimadatei& datei) {
        const fs::path name = pfad(datei.name);
        if (fs::is_directory(ordner_ / name))
            throw Dateifehler(pfadtext(ordner_ / name),
                              {"ist ein Ordner, keine Datei", "is a folder, not a file"});
        if (fs::exists(ordner_ / name)) fs::rename(ordner_ / name, alt_ / name);
        umgezogen_.push_back(name);
        fs::rename(neu_ / name, ordner_ / name);
    }

    /// From here on the new files stay.
    void abschliessen() { umgezogen_.clear(); }

  private:
    void zurueck(const fs::path& name) const {
        std::error_code fehler;
        fs::remove(ordner_ / name, fehler);
        if (fs::exists(alt_ / name, fehler)) fs::rename(alt_ / name, ordner_ / name, fehler);
    }

    fs::path ordner_;
    fs::path neu_;
    fs::path alt_;
    std::vector<fs::path> umgezogen_;
};

}  // namespace

std::vector<Klimadatei> klimasatz_erzeugen(const std::vector<Stationsfakten>& stationen, unsigned faeden) {
    std::vector<Klimadatei> dateien(stationen.size());
    std::vector<std::exception_ptr> fehler(stationen.size());
    std::atomic<std::size_t> naechste{0};
    const auto arbeiten = [&] {
        for (std::size_t i = naechste++; i < stationen.size(); i = naechste++) {
            try {
                dateien[i] = klimadatei(stationen[i]);
            } catch (...) {
                fehler[i] = std::current_exception();
            }
        }
    };
    std::vector<std::thread> helfer;
    for (unsigned i = 1; i < faeden; ++i)
        helfer.emplace_back(arbeiten);
    arbeiten();
    for (std::thread& faden : helfer)
        faden.join();
    for (const std::exception_ptr& einer : fehler) {
        if (einer) std::rethrow_exception(einer);
    }
    return dateien;
}

void klimasatz_schreiben(const fs::path& ordner, const std::vector<Klimadatei>& dateien) {
    try {
        Umzug umzug(ordner);
        for (const Klimadatei& datei : dateien)
            umzug.schreiben(datei);
        for (const Klimadatei& datei : dateien)
            umzug.umziehen(datei);
        umzug.abschliessen();
    } catch (const fs::filesystem_error& grund) {
        const std::string wo = pfadtext(grund.path1().empty() ? ordner : grund.path1());
        throw Dateifehler(wo, {grund.code().message(), grund.code().message()});
    }
}

}  // namespace velmaris::klimasatz
