#include "tests/climate/import/importprobe.h"

#include "toolkit/text.h"
#include "toolkit/zahlen.h"

#include <cmath>

namespace velmaris::test {
namespace {

std::string epw_zeile(int m, int d, int h, const Quellwerte& w) {
    const auto t = [](int zahl) { return std::to_string(zahl) + ","; };
    return "1995," + t(m) + t(d) + t(h) + "60,A7A7*9?9," + dezimal(w.Ta) + ",1.5,80,95000,0,1415,280," +
           t(w.G_Gh) + t(w.G_Gh + 77) + t(w.G_Dh) +
           "0,0,0,0,250,2.1,5,5,10,7777,9,999999999,0,0.05,0,88,0.2,0,0";
}

}  // namespace

Quellwerte quellwerte(int i) {
    const int diffus = (i * 13) % 400;
    return {((i * 37) % 500 - 150) / 10.0, diffus + (i * 29) % 500, diffus};
}

std::string dezimal(double wert, char zeichen) {
    const long zehntel = std::lround(std::fabs(wert) * 10);
    return (wert < 0 ? "-" : "") + std::to_string(zehntel / 10) + zeichen + std::to_string(zehntel % 10);
}

std::string Quellbau::reihen(const std::function<std::string(const Quellwerte&)>& zeile) const {
    std::string text;
    for (int i = 1; i <= zeilen; ++i) {
        const auto anders = ersetzt.find(i);
        text += (anders == ersetzt.end() ? zeile(quellwerte(i - 1)) : anders->second) + zeilenende;
    }
    return text;
}

std::string Quellbau::meteonorm() const {
    return "\"Bern\"" + zeilenende + "46.95,7.43,565,-1" + zeilenende + "Standard" + zeilenende +
           "dy\th\tTa\tG_Gh\tG_Dh\tG_Bh" + zeilenende + reihen([](const Quellwerte& w) {
               return "1\t1\t" + dezimal(w.Ta) + "\t" + std::to_string(w.G_Gh) + "\t" +
                      std::to_string(w.G_Dh) + "\t" + std::to_string(w.G_Gh - w.G_Dh);
           });
}

std::string Quellbau::epw(bool schaltjahr) const {
    std::string text;
    for (const char* kopf :
         {"LOCATION,Bern,BE,CHE,IWEC Data,066310,46.92,7.50,1.0,565.0", "DESIGN CONDITIONS,0",
          "TYPICAL/EXTREME PERIODS,0", "GROUND TEMPERATURES,0", "HOLIDAYS/DAYLIGHT SAVINGS,No,0,0,0",
          "COMMENTS 1,", "COMMENTS 2,", "DATA PERIODS,1,1,Data,Sunday,1/1,12/31"})
        text += kopf + zeilenende;
    int i = 0, stunde = 0;
    const auto zeile = [&](int m, int d, int h, const Quellwerte& werte) {
        if (++i > zeilen) return;
        text += (ersetzt.contains(i) ? ersetzt.at(i) : epw_zeile(m, d, h, werte)) + zeilenende;
    };
    fuer_jeden_tag([&](int m, int d, int) {
        for (int h = 1; h <= stunden; ++h)
            zeile(m, d, h, quellwerte(stunde++));
        for (int h = 1; schaltjahr && m == 2 && d == 28 && h <= stunden; ++h)
            zeile(2, 29, h, {-77, 5000, 5000});
    });
    return text;
}

Importprobe::Importprobe(const std::string& sprache) {
    std::filesystem::create_directories(ordner / "klima");
    p->AppPfad = ordner.pfad();
    p->Sprache = sprache;
    e = std::make_unique<E_Klimaimport>(sitzung);
    e->oeffnen();
}

void Importprobe::oeffne(const std::string& name, const std::string& bytes) {
    plattform.dateien.push_back(ordner.schreibe(name, bytes));
    e->Command1.druecke();
}

void Importprobe::ort_eintippen() {
    e->Standortname.tippe("Feld");
    e->Land.tippe("Land");
    e->Breitengrad.tippe("50.5");
    e->Laengengrad.tippe("7");
    e->Zeitzone.tippe("1");
}

Meldung Importprobe::importiere(const std::string& name) {
    plattform.eingaben = {name};
    plattform.meldungen.clear();
    e->Command2.druecke();
    return plattform.meldungen.empty() ? Meldung{} : plattform.meldungen.back();
}

std::string Importprobe::station(const std::string& name) const {
    const auto datei = ordner / ("klima/" + name + ".met");
    return std::filesystem::exists(datei) ? inhalt(datei) : std::string();
}

std::vector<std::string> Importprobe::dateien() const {
    std::vector<std::string> namen;
    for (const auto& eintrag : std::filesystem::directory_iterator(ordner / "klima"))
        namen.push_back(pfadtext(eintrag.path().filename()));
    return namen;
}

}  // namespace velmaris::test
