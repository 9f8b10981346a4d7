#include "documents/planes/A_Report.h"

#include "documents/report/report.h"
#include "documents/report/temperaturverlauf.h"
#include "language/beschriftungen.h"
#include "project/dateiwahl.h"
#include "toolkit/fehler.h"
#include "toolkit/wort.h"

#include <optional>
#include <utility>

namespace velmaris {
namespace {

constexpr double rand_ = 8;
constexpr double knopfhoehe = 25;
constexpr double seitenbreite = 28;
constexpr double seitenabstand = 30;
constexpr double befehlsbreite = 136;
constexpr double markenabstand = 2;
constexpr double hinweishoehe = 58;

constexpr Wort nichts_gespeichert{"Es wurde nichts gespeichert: ", "Nothing was saved: "};

/// What a save dialog offers, and the ending of a name that has none.
struct Dateiart {
    const char* filter;
    const char* endung;
};

constexpr Dateiart report_datei{"Rich Text Format (*.rtf)|*.rtf", ".rtf"};
constexpr Dateiart text_datei{"Textdatei (*.txt)|*.txt", ".txt"};

std::optional<std::filesystem::path> zieldatei(Sitzung& sitzung, const Dateiart& art) {
    return zieldatei_erfragen(sitzung, {.art = Dateidialog::Art::speichern,
                                        .filter = art.filter,
                                        .filterindex = 1,
                                        .dateiname = namensvorschlag(sitzung, art.endung),
                                        .endung = art.endung});
}

/// The buttons of the pages, by name and number.
std::array<Knopf, A_Report::knoepfe> seitenknoepfe() {
    const auto knopf = [](const char* nummer) { return Knopf(std::string("Seite") + nummer, nummer); };
    return {knopf("1"), knopf("2"), knopf("3"), knopf("4"),  knopf("5"),  knopf("6"),
            knopf("7"), knopf("8"), knopf("9"), knopf("10"), knopf("11"), knopf("12")};
}

}  // namespace

A_Report::A_Report(Sitzung& sitzung, std::function<Dokumentquelle()> quelle)
    : sitzung_(sitzung), quelle_(std::move(quelle)), seiten_(seitenknoepfe()) {
    fenster.zeige(false);
    Temperaturverlauf1.zeige(false);
    Hinweis.zeige(false);
    for (int i = 1; i <= knoepfe; ++i)
        Seite(i).gedrueckt = [this, i] { Seite_Click(i); };
    Command_Speichern.gedrueckt = [this] { speichern(); };
    Command_Schliessen.gedrueckt = [this] { fenster.zeige(false); };
    beschriften("A_Report", sitzung.p.Sprache, {&Command_Speichern, &Command_Schliessen});
}

void A_Report::report_zeigen() {
    oeffnen(true);
}

void A_Report::temperaturverlauf_zeigen() {
    oeffnen(false);
}

void A_Report::oeffnen(bool report) {
    Report1.zeige(report);
    Temperaturverlauf1.zeige(!report);
    for (int i = reportseiten + 1; i <= knoepfe; ++i)
        Seite(i).zeige(!report);
    Seite_Click(1);
    fenster.zeige(true);
}

void A_Report::Seite_Click(int i) {
    markieren(i);
    hinweisen({});
    if (Temperaturverlauf1.sichtbar()) {
        temperatur_text = temperaturverlauf_schreiben(sitzung_.p, i);
        Temperaturverlauf1.schreibe(temperatur_text);
    } else {
        report_text = report_in_sprache(quelle_(), i);
        Report1.schreibe(report_text);
    }
}

void A_Report::markieren(int i) {
    seite_ = i;
    AktSeite.schreibe(Seite(i).text());
    if (const auto& lage = Seite(i).lage()) AktSeite.setze({lage->links + markenabstand, lage->oben});
}

void A_Report::hinweisen(std::string text) {
    if (text == Hinweis.text()) return;
    Hinweis.zeige(!text.empty());
    Hinweis.schreibe(std::move(text));
    anordnen(breite_, hoehe_);
}

void A_Report::speichern() {
    const bool temperaturen = Temperaturverlauf1.sichtbar();
    const auto datei = zieldatei(sitzung_, temperaturen ? text_datei : report_datei);
    if (!datei) return;
    try {
        if (temperaturen) {
            temperaturverlauf_exportieren(sitzung_.p, *datei);
        } else {
            report_text = report_exportieren(quelle_(), *datei);
            Report1.schreibe(report_text);
        }
        hinweisen({});
    } catch (const Dateifehler& fehler) {
        const std::string& sprache = sitzung_.p.Sprache;
        hinweisen(std::string(nichts_gespeichert.in(sprache)) + fehler.text(sprache));
    }
}

double A_Report::mindestbreite() {
    return rand_ + knoepfe * seitenabstand + 2 * (rand_ + befehlsbreite) + rand_;
}

void A_Report::anordnen(double breite, double hoehe) {
    breite_ = breite;
    hoehe_ = hoehe;
    const double oben = hoehe - knopfhoehe - rand_;
    const double unter_texten = Hinweis.sichtbar() ? oben - hinweishoehe - rand_ : oben;
    const Rechteck texte{
        .links = rand_, .oben = rand_, .breite = breite - 2 * rand_, .hoehe = unter_texten - 2 * rand_};
    Hinweis.lege(
        {.links = rand_, .oben = oben - rand_ - hinweishoehe, .breite = texte.breite, .hoehe = hinweishoehe});
    Report1.lege(texte);
    Temperaturverlauf1.lege(texte);
    for (int i = 1; i <= knoepfe; ++i)
        Seite(i).lege({.links = rand_ + (i - 1) * seitenabstand,
                       .oben = oben,
                       .breite = seitenbreite,
                       .hoehe = knopfhoehe});
    Command_Schliessen.lege({.links = breite - rand_ - befehlsbreite,
                             .oben = oben,
                             .breite = befehlsbreite,
                             .hoehe = knopfhoehe});
    Command_Speichern.lege({.links = breite - 2 * (rand_ + befehlsbreite),
                            .oben = oben,
                            .breite = befehlsbreite,
                            .hoehe = knopfhoehe});
    markieren(seite_);
}

}  // namespace velmaris
