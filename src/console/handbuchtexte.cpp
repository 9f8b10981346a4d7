#include "console/aufruf.h"
#include "console/handbuch.h"
#include "planes/befehlszeile.h"

namespace velmaris {
namespace {

constexpr Wort beschreibung{"BESCHREIBUNG", "DESCRIPTION"};
constexpr Wort optionen{"OPTIONEN", "OPTIONS"};
constexpr Wort rueckgabe{"RÜCKGABEWERT", "EXIT STATUS"};
constexpr Wort dateien{"DATEIEN", "FILES"};
constexpr Wort beispiele{"BEISPIELE", "EXAMPLES"};
constexpr Wort siehe_auch{"SIEHE AUCH", "SEE ALSO"};

Optionszeile absatz(const char* de, const char* en) {
    return {"", "", {de, en}};
}

Handbuchteil rueckgabewerte() {
    return {
        rueckgabe,
        {{"0", "", {"alles gelang", "all went well"}},
         {"1",
          "",
          {"ein Projekt, eine Rechnung oder eine Datei ist fehlerhaft; eine Zeile der Fehlerausgabe nennt "
           "die Datei und den Grund",
           "a project, a calculation or a file failed; a line of the error output names the file and the "
           "cause"}},
         {"2", "", {"der Aufruf ist falsch", "the call is wrong"}}}};
}

Handbuchteil datenordner() {
    return {dateien,
            {{"/usr/share/velmaris",
              "",
              {"gelieferte Klimadaten (klima), Bilder, Hilfe und Beispielprojekte (beispiele)",
               "delivered climate data (klima), pictures, help and sample projects (beispiele)"}},
             {"$XDG_DATA_HOME/Velmaris/klima, ~/.local/share/Velmaris/klima",
              "",
              {"eingelesene Stationen und die gewählte Sprache (typ.dat); hier wird zuerst gelesen",
               "imported stations and the language chosen (typ.dat); this folder is read first"}}}};
}

Handbuch handbuch_des_programms() {
    return {
        "velmaris",
        {"Heiz- und Kühlenergie eines Gebäudes", "heating and cooling energy of a building"},
        {aufruf_des_programms, aufruf_des_programms},
        {{beschreibung,
          {absatz(
               "velmaris ist ein Lehrprogramm. Ein quaderförmiges Haus bekommt Größe, Dach, Fenster, "
               "Dämmung, "
               "Nutzung, Klima und Heizung; jede Eingabe rechnet das ganze Jahr neu: die Wärmebilanz der "
               "Monate, "
               "die Temperaturen der Stunden und den Weg vom Wärmebedarf zur Primärenergie.",
               "velmaris is a teaching program. A box-shaped house gets size, roof, windows, insulation, "
               "use, "
               "climate and heating; each input recalculates the whole year: the heat balance of the months, "
               "the temperatures of the hours and the way from heat demand to primary energy."),
           absatz("Die Taste F1 öffnet die Hilfe zu dem, was gerade in Gebrauch ist.",
                  "The key F1 opens the help on what is in use.")}},
         {optionen, worte_der_befehlszeile()},
         rueckgabewerte(),
         datenordner(),
         {siehe_auch, {absatz("velmaris_rechnen(1)", "velmaris_rechnen(1)")}}}};
}

Handbuch handbuch_der_konsole() {
    return {
        "velmaris_rechnen",
        {"Heiz- und Kühlenergie eines Gebäudes, ohne Bildschirm",
         "heating and cooling energy of a building, without a screen"},
        {"velmaris_rechnen [OPTIONEN] [PROJEKT.vel ...]", "velmaris_rechnen [OPTIONS] [PROJECT.vel ...]"},
        {{beschreibung,
          {absatz("velmaris_rechnen rechnet Projekte von velmaris(1). Ohne Option gibt es eine kurze "
                  "Zusammenfassung jedes Projekts aus.",
                  "velmaris_rechnen calculates projects of velmaris(1). Without an option it prints a short "
                  "summary of each project.")}},
         {optionen, worte_des_aufrufs()},
         rueckgabewerte(),
         datenordner(),
         {beispiele,
          {{"velmaris_rechnen --json haus.vel", "", {"alle Werte als JSON", "all values as JSON"}},
           {"velmaris_rechnen --vergleich seite.html alt.vel neu.vel",
            "",
            {"zwei Projekte nebeneinander", "two projects side by side"}},
           {"velmaris_rechnen --empfindlichkeit seite.html haus.vel",
            "",
            {"welche Eingabe am meisten bewirkt", "which input matters most"}},
           {"velmaris_rechnen --variiere Troom=19,20,21 --ausgabe studie.csv haus.vel",
            "",
            {"dasselbe Haus mit drei Raumtemperaturen", "the same house at three room temperatures"}},
           {"velmaris_rechnen --variiere fs=0:100:5 --variiere kws=0.1:1.4:0.1 --bild seite.html haus.vel",
            "",
            {"Bilder der Ergebnisse über zwei Eingaben", "pictures of the results over two inputs"}}}},
         {siehe_auch, {absatz("velmaris(1)", "velmaris(1)")}}}};
}

}  // namespace

std::vector<Handbuch> handbuecher() {
    return {handbuch_des_programms(), handbuch_der_konsole()};
}

}  // namespace velmaris
