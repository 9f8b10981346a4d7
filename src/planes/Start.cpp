#include "planes/Start.h"

#include "language/beschriftungen.h"
#include "language/c_Sprache.h"
#include "project/klimaordner.h"
#include "toolkit/fehler.h"

#include <memory>
#include <utility>

namespace velmaris {
namespace {

constexpr const char* Timer1 = "Start.Timer1";
constexpr int splash_millisekunden = 10000;

/// The text of the about box: the version, what the program is for, and who publishes it.
std::string ueber_text(const std::string& sprache) {
    const auto wort = [&](const char* feld) { return beschriftung("Start", feld, sprache); };
    return "Version 3.2\n\n" + wort("Label_Zweck") + "\n\n" + wort("Label_Text");
}

}  // namespace

std::string sprache_bestimmen(const Befehlszeile& befehlszeile, const std::filesystem::path& programmordner,
                              const std::filesystem::path& benutzerordner,
                              const std::function<std::optional<std::string>()>& sprachfenster) {
    if (const auto sprache = befehlszeile.sprache()) return *sprache;
    const auto vorab = std::make_unique<Projekt>();
    vorab->AppPfad = programmordner;
    vorab->Datenordner = datenordner_bestimmen(programmordner, benutzerordner);
    sprache_lesen(*vorab, sprachfenster);
    return vorab->Sprache;
}

Start::Start(Haupt& haupt, Befehlszeile befehlszeile, std::function<void()> hauptfenster_zeigen)
    : haupt_(haupt),
      befehlszeile_(std::move(befehlszeile)),
      hauptfenster_zeigen_(std::move(hauptfenster_zeigen)) {
    fenster.zeige(false);
    Text.schreibe(ueber_text(haupt_.p.Sprache));
    OK_Button.schreibe(beschriftung("Start", OK_Button.name, haupt_.p.Sprache));
    OK_Button.gedrueckt = [this] { OK_Button_Click(); };
}

void Start::laden() {
    if (haupt_.p.Gestartet == 1) {
        fenster.zeige(true);
        return;
    }
    if (const auto ordner = befehlszeile_.ordner()) haupt_.p.InitDir = *ordner;
    if (befehlszeile_.sprache()) {
        schnell_starten();
        return;
    }
    fenster.zeige(true);
    haupt_.sitzung.plattform.zeitgeber_starten(Timer1, splash_millisekunden, [this] { Timer1_Timer(); });
}

/// The start window stays away, unless a fault leaves the program without its main window.
void Start::schnell_starten() {
    try {
        aufbauen();
    } catch (const Laufzeitfehler&) {
        fenster.zeige(true);
        throw;
    }
    hauptfenster_zeigen_();
}

void Start::aufbauen() {
    haupt_.sitzung.plattform.sanduhr(true);
    haupt_.datei.projekt_aufbauen();
    fenster.zeige(false);
    haupt_.sitzung.plattform.zeitgeber_stoppen(Timer1);
    haupt_.p.Gestartet = 1;
    haupt_.sitzung.plattform.sanduhr(false);
}

void Start::Timer1_Timer() {
    aufbauen();
    if (const auto projekt = befehlszeile_.projekt()) haupt_.datei.datei_oeffnen(*projekt);
    hauptfenster_zeigen_();
}

void Start::schliessen() {
    if (haupt_.p.Gestartet == 1) {
        fenster.zeige(false);
    } else {
        haupt_.sitzung.plattform.beenden();
    }
}

void Start::OK_Button_Click() {
    if (haupt_.p.Gestartet == 1) {
        fenster.zeige(false);
    } else {
        Timer1_Timer();
    }
}

}  // namespace velmaris
