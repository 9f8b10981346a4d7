#include "console/aufruf.h"

#include "console/auftrag.h"
#include "documents/report/report.h"
#include "studies/studienplan.h"
#include "studies/vergleich.h"
#include "toolkit/fehler.h"
#include "toolkit/programmordner.h"
#include "toolkit/text.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <filesystem>
#include <initializer_list>
#include <optional>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

namespace velmaris {
namespace {

constexpr int hoechste_kernzahl = 1024;

/// The placeholder of a number between two bounds.
std::string bereich(int von, int bis) {
    return std::to_string(von) + ".." + std::to_string(bis);
}

void import_beschreiben(CLI::App& app, Importauftrag& auftrag) {
    CLI::Option* quelle = app.add_option(
        "--import", auftrag.quelle,
        "liest Klimadaten (Meteonorm, EnergyPlus) als Station ein / imports climate data as a station");
    CLI::Option* name = app.add_option("--name", auftrag.name,
                                       "Name der neuen Klimadatei ohne Endung / name of the new climate file")
                            ->needs(quelle);
    quelle->needs(name);
    app.add_option("--land", auftrag.land, "Land des Standorts / country of the location")->needs(quelle);
    app.add_option("--ort", auftrag.ort, "Name des Standorts / name of the location")->needs(quelle);
    app.add_flag("--ersetzen", auftrag.ersetzen,
                 "überschreibt eine vorhandene Klimadatei / overwrites a climate file of that name")
        ->needs(quelle);
}

void beschreiben(CLI::App& app, Auftrag& auftrag, std::string& ordner) {
    app.add_option("PROJEKT", auftrag.projekte, "Projektdateien (.vel) / project files");
    app.add_option("--sprache", auftrag.sprache, "Sprache der Ausgabe: d oder e / language of the output")
        ->check(CLI::IsMember({"d", "e"}).description(""));
    CLI::Option* json = app.add_flag("--json", auftrag.json, "alle Werte als JSON / all values as JSON");
    app.add_option(
        "--csv", auftrag.csv,
        "Monate und Jahr aller Projekte als CSV, - ist die Standardausgabe / months and year of all "
        "projects as CSV, - is the standard output");
    app.add_option("--csv-stunden", auftrag.csv_stunden,
                   "die 8760 Stunden aller Projekte als CSV / the 8760 hours of all projects as CSV");
    app.add_option("--temperaturen", auftrag.temperaturen,
                   "Stundentemperaturen als Text / hourly temperatures as text");
    app.add_option("--neu", auftrag.neu, "schreibt das neue Projekt / writes the new project");
    app.add_option("--speichern", auftrag.speichern,
                   "schreibt das geöffnete Projekt / writes the opened project");
    app.add_option("--diagramme", auftrag.diagramme,
                   "alle Diagramme als SVG in einen Ordner / all charts as SVG");
    app.add_option("--bericht", auftrag.bericht, "schreibt den Report als RTF / writes the report as RTF");
    app.add_option("--bericht-seite", auftrag.berichtsseite,
                   "gibt eine Seite (1 bis 7) des Reports als Text aus / prints a page of the report as text")
        ->check(CLI::Range(1, reportseiten).description(""))
        ->excludes(json);
    CLI::Option* seite = app.add_option(
        "--vergleich", auftrag.vergleich,
        "vergleicht 2 bis 12 Projekte auf einer HTML-Seite / compares 2 to 12 projects on a page");
    app.add_option("--vergleich-csv", auftrag.vergleich_csv,
                   "die Zahlen des Vergleichs als CSV / the figures of the comparison as CSV");
    app.add_option("--monat", auftrag.monat,
                   "Monat der Temperaturen im Vergleich (1 bis 12) / month of the comparison's temperatures")
        ->check(CLI::Range(1, monate).description(""))
        ->needs(seite);
    app.add_option(
        "--empfindlichkeit", auftrag.empfindlichkeit,
        "jede Eingabe einen Schritt nach unten und oben, nach Wirkung geordnet, auf einer HTML-Seite / "
        "each input one step down and up, sorted by effect, on a page");
    app.add_option("--empfindlichkeit-csv", auftrag.empfindlichkeit_csv,
                   "die Zahlen der Schritte als CSV / the figures of the steps as CSV");
    app.add_option("--ordner", ordner, "Programmordner mit klima/ / program folder with klima/");
}

/// The words of a study as they stand in the call.
struct Studienworte {
    std::vector<std::string> variiere;
    std::string ergebnis{hauptergebnisse};
    std::string teil = "1/1";
    std::optional<std::string> bild = {};
};

void studie_beschreiben(CLI::App& app, Studienauftrag& auftrag, Studienworte& worte) {
    CLI::Option* variiere =
        app.add_option("--variiere", worte.variiere,
                       "NAME=VON:BIS:SCHRITT oder NAME=a,b,c; mehrere bilden alle Kombinationen / "
                       "NAME=FROM:TO:STEP or NAME=a,b,c; several make all combinations")
            ->allow_extra_args(false);
    app.add_option("--plan", auftrag.plan,
                   "CSV-Datei, deren Zeilen Eingaben setzen / CSV file whose rows set inputs")
        ->excludes(variiere);
    app.add_option("--ergebnis", worte.ergebnis,
                   "Namen von --json mit Kommas dazwischen / names of --json with commas between them");
    app.add_option("--ausgabe", auftrag.ausgabe,
                   "Ergebnisse der Studie als CSV, - ist die Standardausgabe / results of the study as CSV");
    app.add_option("--bild", worte.bild,
                   "zeichnet die Ergebnisse über eine oder zwei Eingaben auf einer HTML-Seite / draws the "
                   "results over one or two inputs on a page");
    app.add_option("--teil", worte.teil, "K/N: nur der K-te von N Teilen / only the K-th of N parts");
    app.add_option("--kerne", auftrag.kerne, "Zahl der Rechenkerne, 0: alle / number of cores, 0: all")
        ->check(CLI::Range(0, hoechste_kernzahl).description(""));
    app.add_flag("--fortsetzen", auftrag.fortsetzen,
                 "rechnet nur, was in der Ausgabe fehlt / calculates only what the output lacks");
}

/// What the values of the options are called; `Optionszeile` says how.
void werte_benennen(CLI::App& app) {
    for (const auto& [option, wert] : std::initializer_list<std::pair<const char*, std::string>>{
             {"PROJEKT", "DATEI.vel"},
             {"--sprache", "d|e"},
             {"--csv", "DATEI.csv"},
             {"--csv-stunden", "DATEI.csv"},
             {"--temperaturen", "DATEI.txt"},
             {"--neu", "DATEI.vel"},
             {"--speichern", "DATEI.vel"},
             {"--diagramme", "ORDNER"},
             {"--bericht", "DATEI.rtf"},
             {"--bericht-seite", bereich(1, reportseiten)},
             {"--vergleich", "DATEI.html"},
             {"--vergleich-csv", "DATEI.csv"},
             {"--empfindlichkeit", "DATEI.html"},
             {"--empfindlichkeit-csv", "DATEI.csv"},
             {"--monat", bereich(1, monate)},
             {"--ordner", "ORDNER"},
             {"--import", "DATEI"},
             {"--name", "NAME"},
             {"--land", "NAME"},
             {"--ort", "NAME"},
             {"--variiere", "NAME=WERTE"},
             {"--plan", "DATEI.csv"},
             {"--ergebnis", "NAMEN"},
             {"--ausgabe", "DATEI.csv"},
             {"--bild", "DATEI.html"},
             {"--teil", "K/N"},
             {"--kerne", bereich(0, hoechste_kernzahl)},
         })
        app.get_option(option)->type_name(wert);
}

/// True if the call asks for a study; options of one that is not asked for are a wrong call.
bool verlangt_studie(const CLI::App& app) {
    if (app.count("--variiere") + app.count("--plan") > 0) return true;
    for (const char* option : {"--ergebnis", "--ausgabe", "--bild", "--teil", "--kerne", "--fortsetzen"}) {
        if (app.count(option) > 0)
            throw CLI::ValidationError(option, "nur mit / only with --variiere, --plan");
    }
    return false;
}

/// Carries out a reading of words; what is wrong with them is a wrong call.
template <class Lesen>
auto gelesen(const char* option, const Lesen& lesen) {
    try {
        return lesen();
    } catch (const Laufzeitfehler& fehler) {
        throw CLI::ValidationError(option, fehler.text("d") + " / " + fehler.text("e"));
    }
}

/// A page of pictures has all rows of one run, and the table is written beside it only where that is asked
/// for.
void bild_pruefen(Studienauftrag& auftrag, bool geteilt, bool mit_tabelle) {
    if (geteilt || auftrag.fortsetzen)
        throw CLI::ValidationError(
            "--bild",
            "braucht alle Zeilen in einem Lauf, ohne --teil und --fortsetzen / needs all "
            "rows in one run, without --teil and --fortsetzen");
    auftrag.tabelle = mit_tabelle;
    if (auftrag.plan.empty())
        gelesen("--bild", [&] { return Studienbild(*plan_anlegen(auftrag), auftrag.ergebnisse).zeilen(); });
}

Studienauftrag studie_lesen(Studienauftrag auftrag, const Studienworte& worte) {
    for (const std::string& text : worte.variiere)
        auftrag.variiert.push_back(gelesen("--variiere", [&] { return Wertereihe(text); }));
    gelesen("--variiere", [&] { return Gitterplan(auftrag.variiert).anzahl(); });
    auftrag.ergebnisse = gelesen("--ergebnis", [&] { return ergebnisse_lesen(worte.ergebnis); });
    auftrag.teil = gelesen("--teil", [&] { return teil_lesen(worte.teil); });
    if (worte.bild) bild_pruefen(auftrag, auftrag.teil.teile > 1, !auftrag.ausgabe.empty());
    if (auftrag.ausgabe == standardausgabe) auftrag.ausgabe.clear();
    if (auftrag.fortsetzen && auftrag.ausgabe.empty())
        throw CLI::ValidationError("--fortsetzen", "braucht eine Datei / needs a file: --ausgabe");
    return auftrag;
}

/// No option is taken for the value of the option before it.
void werte_verlangen(CLI::App& app) {
    const CLI::Validator wert(
        [](const std::string& text) {
            return text.starts_with("--") ? "der Wert fehlt / the value is missing: " + text : std::string();
        },
        "");
    for (CLI::Option* option : app.get_options([](const CLI::Option* o) { return o->nonpositional(); })) {
        if (option->get_type_size() > 0) option->check(wert);
    }
}

/// True for an order whose output takes a single project.
bool nur_eines(const Auftrag& auftrag) {
    return auftrag.temperaturen || auftrag.speichern || auftrag.diagramme || auftrag.bericht ||
           auftrag.berichtsseite || schreitet(auftrag);
}

/// Where an output goes; an empty path is the standard output.
struct Ziel {
    std::string option;
    std::filesystem::path ort;
};

std::filesystem::path ort(const std::string& datei) {
    std::error_code fehler;
    const std::filesystem::path ganz = std::filesystem::absolute(pfad(datei), fehler);
    const std::filesystem::path wahr = std::filesystem::weakly_canonical(ganz, fehler);
    return fehler ? ganz : wahr;
}

std::filesystem::path ort_der_tabelle(const std::string& datei) {
    return datei.empty() || datei == standardausgabe ? std::filesystem::path() : ort(datei);
}

/// The outputs that are made of a project.
std::vector<Ziel> ausgaben(const Auftrag& auftrag) {
    std::vector<Ziel> ziele;
    if (auftrag.json) ziele.push_back({"--json", {}});
    if (auftrag.berichtsseite) ziele.push_back({"--bericht-seite", {}});
    if (auftrag.csv) ziele.push_back({"--csv", ort_der_tabelle(*auftrag.csv)});
    if (auftrag.csv_stunden) ziele.push_back({"--csv-stunden", ort_der_tabelle(*auftrag.csv_stunden)});
    if (auftrag.vergleich) ziele.push_back({"--vergleich", ort_der_tabelle(*auftrag.vergleich)});
    if (auftrag.vergleich_csv) ziele.push_back({"--vergleich-csv", ort_der_tabelle(*auftrag.vergleich_csv)});
    if (auftrag.empfindlichkeit)
        ziele.push_back({"--empfindlichkeit", ort_der_tabelle(*auftrag.empfindlichkeit)});
    if (auftrag.empfindlichkeit_csv)
        ziele.push_back({"--empfindlichkeit-csv", ort_der_tabelle(*auftrag.empfindlichkeit_csv)});
    if (auftrag.temperaturen) ziele.push_back({"--temperaturen", ort(*auftrag.temperaturen)});
    if (auftrag.bericht) ziele.push_back({"--bericht", ort(*auftrag.bericht)});
    if (auftrag.studie && auftrag.studie->tabelle)
        ziele.push_back({"--ausgabe", ort_der_tabelle(auftrag.studie->ausgabe)});
    if (auftrag.bild) ziele.push_back({"--bild", ort_der_tabelle(*auftrag.bild)});
    return ziele;
}

/// No output lies over another one, nor over a project that is read or written.
void ziele_pruefen(const Auftrag& auftrag) {
    std::vector<Ziel> belegt;
    for (const std::string& projekt : auftrag.projekte)
        belegt.push_back({"PROJEKT", ort(projekt)});
    if (auftrag.speichern) belegt.push_back({"--speichern", ort(*auftrag.speichern)});
    if (auftrag.neu) belegt.push_back({"--neu", ort(*auftrag.neu)});
    if (auftrag.studie && !auftrag.studie->plan.empty())
        belegt.push_back({"--plan", ort(auftrag.studie->plan)});
    for (const Ziel& ziel : ausgaben(auftrag)) {
        const auto treffer = std::ranges::find(belegt, ziel.ort, &Ziel::ort);
        if (treffer != belegt.end()) {
            throw CLI::ValidationError(
                ziel.option, "hat dasselbe Ziel wie / goes to the same place as " + treffer->option);
        }
        belegt.push_back(ziel);
    }
}

/// A study takes one project and gives nothing but its table and its pictures.
void studie_pruefen(const Auftrag& auftrag) {
    const bool anderes =
        auftrag.json || auftrag.csv || auftrag.csv_stunden || nur_eines(auftrag) || vergleicht(auftrag);
    if (auftrag.projekte.size() != 1 || anderes) {
        throw CLI::ValidationError("--variiere, --plan",
                                   "gelten einem einzigen Projekt und geben nur Tabelle und Bild aus / take "
                                   "one project and give their table and pictures alone");
    }
}

void pruefen(const Auftrag& auftrag) {
    if (auftrag.studie) studie_pruefen(auftrag);
    const bool anderes = auftrag.neu || auftrag.klimaimport;
    if (auftrag.projekte.empty() &&
        (!anderes || auftrag.json || auftrag.csv || auftrag.csv_stunden || nur_eines(auftrag))) {
        throw CLI::ValidationError("PROJEKT", "kein Projekt angegeben / no project given");
    }
    if (auftrag.projekte.size() > 1 && nur_eines(auftrag)) {
        throw CLI::ValidationError("PROJEKT",
                                   "--temperaturen, --speichern, --diagramme, --bericht, --bericht-seite und "
                                   "--empfindlichkeit gelten einem einzigen Projekt / take one project");
    }
    const std::size_t zahl = auftrag.projekte.size();
    if (vergleicht(auftrag) && (zahl < kleinster_vergleich || zahl > groesster_vergleich)) {
        throw CLI::ValidationError(
            "--vergleich", "braucht 2 bis 12 Projekte / takes 2 to 12 projects, not " + std::to_string(zahl));
    }
    ziele_pruefen(auftrag);
}

std::filesystem::path ordner_der_datei(const char* aufruf) {
    std::error_code fehler;
    const std::filesystem::path selbst = std::filesystem::read_symlink("/proc/self/exe", fehler);
    return (fehler ? std::filesystem::absolute(aufruf) : selbst).parent_path();
}

/// The words that a call may hold, and where they are put.
struct Aufruf {
    Aufruf() {
        app.set_help_flag("-h,--help", "zeigt diese Hilfe / shows this help");
        beschreiben(app, auftrag, ordner);
        import_beschreiben(app, klimaimport);
        studie_beschreiben(app, studie, studienworte);
        werte_benennen(app);
        werte_verlangen(app);
    }

    CLI::App app{
        "velmaris_rechnen - Heiz- und Kühlenergie eines Gebäudes / heating and cooling energy of a building"};
    Auftrag auftrag;
    Importauftrag klimaimport;
    Studienauftrag studie;
    Studienworte studienworte;
    std::string ordner;
};

}  // namespace

std::vector<Optionszeile> worte_des_aufrufs() {
    const Aufruf aufruf;
    std::vector<Optionszeile> zeilen;
    for (const CLI::Option* option : aufruf.app.get_options()) {
        zeilen.push_back({.name = option->get_name(option->get_positional(), true),
                          .wert = option->get_type_size() > 0 ? option->get_type_name() : std::string(),
                          .text = zweisprachig(option->get_description())});
    }
    return zeilen;
}

int aufrufen(int argc, const char* const* argv, std::ostream& aus, std::ostream& fehler) {
    Aufruf a;
    try {
        a.app.parse(argc, argv);
        if (a.app.count("--import") > 0) a.auftrag.klimaimport = a.klimaimport;
        if (verlangt_studie(a.app)) {
            a.auftrag.studie = studie_lesen(a.studie, a.studienworte);
            a.auftrag.bild = a.studienworte.bild;
        }
        pruefen(a.auftrag);
    } catch (const CLI::ParseError& grund) {
        return a.app.exit(grund, aus, fehler) == 0 ? alles_gut : falscher_aufruf;
    }
    a.auftrag.programmordner =
        a.ordner.empty() ? programmordner_bestimmen(ordner_der_datei(argv[0])) : pfad(a.ordner);
    return ausfuehren(a.auftrag, aus, fehler);
}

}  // namespace velmaris
