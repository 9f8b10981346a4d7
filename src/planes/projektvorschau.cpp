#include "planes/projektvorschau.h"

#include "planes/projekt_rechnen.h"
#include "toolkit/konsolenplattform.h"
#include "toolkit/text.h"
#include "toolkit/wort.h"
#include "toolkit/zahlen.h"

#include <ostream>
#include <sstream>

namespace velmaris {
namespace {

std::string geschosse(const Projekt& p) {
    const Wort eines{" Geschoss", " floor"}, mehrere{" Geschosse", " floors"};
    const Wort dach{" und Dachgeschoss", " and attic"};
    std::string text = muster(p.ag, 0).append((p.ag == 1 ? eines : mehrere).in(p.Sprache));
    if (p.Check_Dachgeschoss == 1) text.append(dach.in(p.Sprache));
    return text;
}

std::string beschreibung(const Projekt& p) {
    const Wort bedarf{"Heizwärmebedarf ", "heat demand "};
    return muster(p.l, 1) + " m × " + muster(p.b, 1) + " m, " + geschosse(p) + ", " + p.Stationsname + ", " +
           std::string(bedarf.in(p.Sprache)) + muster(p.qhs_sum, 1) + " kWh/(m² a)";
}

/// A fault as it was told of a file, without the path that the dialog shows already.
std::string unlesbar(std::string fehler, const std::string& datei, const std::string& sprache) {
    const Wort nicht{"Nicht lesbar", "Not readable"};
    const std::string pfad = in_einer_zeile(datei);
    fehler.pop_back();
    return std::string(nicht.in(sprache)) +
           (fehler.starts_with(pfad) ? fehler.substr(pfad.size()) : ": " + fehler);
}

}  // namespace

std::string projektvorschau(const std::filesystem::path& programmordner, const std::string& sprache,
                            const std::filesystem::path& datei) {
    if (kleinschreiben(pfadtext(datei.extension())) != ".vel") return {};
    std::ostream niemand(nullptr);
    Konsolenplattform plattform(niemand);
    std::ostringstream fehler;
    std::string zeile;
    const std::string name = pfadtext(datei);
    const bool gut = versuchen(fehler, sprache, name, [&] {
        zeile = beschreibung(projekt_rechnen(plattform, programmordner, sprache, name)->p);
    });
    return gut ? zeile : unlesbar(fehler.str(), name, sprache);
}

}  // namespace velmaris
