#include "tests/testprogramm.h"

#include "project/projektdatei.h"
#include "tests/climate/stationsdatei.h"
#include "toolkit/text.h"
#include "toolkit/textdatei.h"
#include "toolkit/zahlen.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace velmaris::test {
namespace {

constexpr double zwei_pi = 6.283185307179586;

Datenzeile sinuswetter(int zeile) {
    const int stunde = (zeile + stunden_im_jahr - 1) % stunden_im_jahr;
    const double tag = std::cos(zwei_pi * (stunde % stunden - 14) / stunden);
    const double jahr = std::cos(zwei_pi * (stunde / static_cast<double>(stunden) - 200) / tage_im_jahr);
    const double global = std::max(0.0, tag) * (450 + 300 * jahr);
    return {muster(10 + 9 * jahr + 5 * tag, 1), muster(global, 0), muster(global * 0.4, 0)};
}

}  // namespace

std::string stationsbytes(const std::string& name) {
    Stationsdatei datei;
    datei.ort = name;
    datei.zeile = sinuswetter;
    return datei.text();
}

Testprogramm::Testprogramm(const std::string& sprache) {
    ordner.schreibe("klima/trier.met", stationsbytes("Trier (Deutschland)"));
    ordner.schreibe("klima/fern.met", stationsbytes("Fern (Ausland)"));
    haupt = std::make_unique<Haupt>(plattform, ordner.pfad(), sprache);
    haupt->datei.projekt_aufbauen();
}

std::unique_ptr<Testprogramm> aus_rettung(const std::filesystem::path& datei) {
    auto programm = std::make_unique<Testprogramm>();
    programm->haupt->datei.datei_oeffnen(pfadtext(datei));
    if (!programm->plattform.meldungen.empty() || programm->p().Datei_offen != 1)
        throw std::runtime_error("does not open: " + pfadtext(datei));
    std::filesystem::remove(datei);
    return programm;
}

std::vector<std::string> projektzeilen(const Projekt& p) {
    const std::string text = projekt_schreiben(p);
    Zeilenleser leser(text);
    std::vector<std::string> zeilen;
    while (const auto zeile = leser.naechste())
        zeilen.emplace_back(*zeile);
    return zeilen;
}

std::string projekttext(const std::vector<std::string>& zeilen) {
    std::string text;
    for (const std::string& zeile : zeilen)
        text += zeile + "\r\n";
    return text;
}

}  // namespace velmaris::test
