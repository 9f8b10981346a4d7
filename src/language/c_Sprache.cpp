#include "language/c_Sprache.h"

#include "project/klimaordner.h"
#include "toolkit/text.h"
#include "toolkit/textdatei.h"
#include "toolkit/wort.h"

#include <array>
#include <system_error>

namespace velmaris {
namespace {

/// Bytes of the language file that are looked at; a letter and its line end take three.
constexpr std::size_t hoechste_sprachzeile = 64;

struct Textzeile {
    std::string Texte::*feld;
    Wort text;
};

constexpr std::array<Textzeile, 10> gemeinsame_texte{{
    {&Texte::txt_Aenderung,
     {"          Ihr Projekt wurde geändert.\n\nMöchten Sie die Änderungen speichern?",
      "        The project has been changed.\n\nDo you want to save the changes?"}},
    {&Texte::txt_Aenderung_Titel, {"Änderungen speichern ?", "Save changes ?"}},
    {&Texte::txt_Ersetzen,
     {"Diese Datei ist bereits vorhanden.\n\nVorhandene Datei ersetzen?",
      "This file already exists.\n\n      Overwrite it?"}},
    {&Texte::txt_Klima_fehlt,
     {"   Klimadatensatz nicht gefunden!\rDefault-Klimadatensatz wird geladen!",
      "     Climatic data not found!\rDefault climatic data will be loaded!"}},
    {&Texte::txt_Klima_Titel, {"Klimadatensatz nicht vorhanden", "Climatic data not found!"}},
    {&Texte::txt_Ueberwaermung, {"Überwärmung", "overheating"}},
    {&Texte::txt_Monat, {"Monat", "month"}},
    {&Texte::txt_Jahresbilanz, {"Jahresbilanz", "yearly balance"}},
    {&Texte::txt_Raumluft, {"Raumlufttemperatur", "room air temperature"}},
    {&Texte::txt_Aussenluft, {"Außenlufttemperatur", "outdoor air temperature"}},
}};

constexpr const char* sprache_aendert_sich =
    "Sprache wird beim nächsten Start des Programms geändert!\r\r"
    "Language will be changed after the next start of the program!";

struct Monatsname {
    Wort Name;
    Wort Kurz;
};

constexpr std::array<Monatsname, monate> monatsnamen{{
    {{"Januar", "January"}, {"Jan.", "Jan."}},
    {{"Februar", "February"}, {"Feb.", "Feb."}},
    {{"März", "March"}, {"Mär.", "Mar."}},
    {{"April", "April"}, {"Apr.", "Apr."}},
    {{"Mai", "May"}, {"Mai", "May"}},
    {{"Juni", "June"}, {"Jun.", "Jun."}},
    {{"Juli", "July"}, {"Jul.", "Jul."}},
    {{"August", "August"}, {"Aug.", "Aug."}},
    {{"September", "September"}, {"Sep.", "Sep."}},
    {{"Oktober", "October"}, {"Okt.", "Oct."}},
    {{"November", "November"}, {"Nov.", "Nov."}},
    {{"Dezember", "December"}, {"Dez.", "Dec."}},
}};

constexpr const char* sprachdatei = "typ.dat";

void sprachdatei_schreiben(const Projekt& p, std::string_view buchstabe) {
    Klimaordner(p).schreiben(sprachdatei, nach_windows1252(buchstabe) + "\r\n");
}

}  // namespace

void sprachtexte_setzen(Projekt& p) {
    p.texte.txt_Sprache = sprache_aendert_sich;
    if (!bekannte_sprache(p.Sprache)) return;
    for (const Textzeile& zeile : gemeinsame_texte)
        p.texte.*zeile.feld = zeile.text.in(p.Sprache);
    int m = 0;
    for (const Monatsname& monat : monatsnamen) {
        ++m;
        p.Monat(m).Name = monat.Name.in(p.Sprache);
        p.Monat(m).Kurz = monat.Kurz.in(p.Sprache);
    }
}

std::array<std::string, monate> monatskuerzel(const Projekt& p) {
    std::array<std::string, monate> namen;
    for (int m = 1; m <= monate; ++m)
        namen[static_cast<std::size_t>(m - 1)] = p.Monat(m).Kurz;
    return namen;
}

bool datei_da(const std::filesystem::path& datei) {
    std::error_code fehler;
    return std::filesystem::is_regular_file(datei, fehler);
}

void sprache_lesen(Projekt& p, const Sprachfenster& sprachfenster) {
    if (const auto datei = Klimaordner(p).datei(sprachdatei); datei_da(datei)) {
        const std::string text = anfang_lesen(datei, hoechste_sprachzeile);
        p.Sprache = aus_windows1252(Listenleser(text).naechster().value_or(""));
    } else if (const auto buchstabe = sprachfenster()) {
        schreibe_sprache(p, *buchstabe);
    }
}

void schreibe_sprache(Projekt& p, const std::string& buchstabe) {
    sprachdatei_schreiben(p, buchstabe);
    p.Sprache = buchstabe;
}

void sprache_merken(const Projekt& p, Plattform& plattform, std::string_view buchstabe) {
    plattform.melde({.text = p.texte.txt_Sprache, .titel = "Velmaris", .symbol = Symbol::information});
    sprachdatei_schreiben(p, buchstabe);
}

}  // namespace velmaris
