#include "documents/planes/Drucken.h"

#include "language/beschriftungen.h"
#include "project/dateiwahl.h"
#include "toolkit/fehler.h"
#include "toolkit/text.h"

#include <cstddef>
#include <utility>

namespace velmaris {
namespace {

constexpr Wort pdf_filter{"PDF-Dateien (*.pdf)|*.pdf", "PDF files (*.pdf)|*.pdf"};
constexpr Wort nichts_gewaehlt{"Bitte wählen Sie mindestens eine Ausgabe.",
                               "Please choose at least one output."};

std::array<Pruefeld, druckausgaben> prueffelder() {
    return {Pruefeld("Druckausgabe1"), Pruefeld("Druckausgabe2"), Pruefeld("Druckausgabe3"),
            Pruefeld("Druckausgabe4"), Pruefeld("Druckausgabe5"), Pruefeld("Druckausgabe6"),
            Pruefeld("Druckausgabe7")};
}

}  // namespace

Drucken::Drucken(Sitzung& sitzung, std::function<Dokumentquelle()> quelle)
    : wahl(sitzung, [this] { drucker_zeigen(); }),
      sitzung_(sitzung),
      quelle_(std::move(quelle)),
      ausgaben_(prueffelder()) {
    fenster.zeige(false);
    Command1.gedrueckt = [this] { drucken(); };
    Command2.gedrueckt = [this] { fenster.zeige(false); };
    Command3.gedrueckt = [this] { wahl.oeffnen(); };
    beschriften("Drucken", sitzung.p.Sprache, {&Command1, &Command2, &Command3});
}

void Drucken::oeffnen() {
    drucker_zeigen();
    fenster.zeige(true);
}

void Drucken::drucker_zeigen() {
    drucker_ = sitzung_.plattform.aktueller_drucker();
    const std::string name = wahl.anzeigename(drucker_);
    DruckerName.schreibe(name);
    DruckerNameUnten.schreibe(name);
}

Druckauswahl Drucken::auswahl() const {
    Druckauswahl auswahl{};
    for (std::size_t i = 0; i < auswahl.size(); ++i)
        auswahl[i] = ausgaben_[i].wert() == 1;
    return auswahl;
}

/// The printer that the dialog shows or a file that is asked for; nothing if the user gives up.
std::optional<Druckziel> Drucken::ziel() const {
    const Projekt& p = sitzung_.p;
    const std::filesystem::path projekt = pfad(p.Datei).filename();
    if (!drucker_.empty()) return Druckziel{.titel = pfadtext(projekt), .drucker = drucker_};
    const auto datei = zieldatei_erfragen(
        sitzung_, {.art = Dateidialog::Art::speichern,
                   .filter = std::string(pdf_filter.in(p.Sprache)),
                   .dateiname = pfadtext(std::filesystem::path(projekt).replace_extension(".pdf")),
                   .endung = ".pdf"});
    if (!datei) return std::nullopt;
    return Druckziel{.titel = pfadtext(projekt), .pdf = *datei};
}

void Drucken::melde(const std::string& text) const {
    sitzung_.plattform.melde({.text = text, .titel = "Velmaris", .symbol = Symbol::ausrufezeichen});
}

void Drucken::drucken() {
    if (druckseitenzahl(auswahl()) == 0) {
        melde(std::string(nichts_gewaehlt.in(sitzung_.p.Sprache)));
        return;
    }
    if (!wahl.vorhanden(drucker_)) {
        wahl.verschwunden(drucker_);
        return;
    }
    const std::optional<Druckziel> wohin = ziel();
    if (!wohin) return;
    try {
        Ausdrucken(*dokument(*wohin), quelle_(), auswahl(), heutiges_datum());
        fenster.zeige(false);
    } catch (const Laufzeitfehler& fehler) {
        melde(fehler.text(sitzung_.p.Sprache));
        if (!wahl.vorhanden(drucker_)) wahl.oeffnen();
    }
}

}  // namespace velmaris
