#include "documents/Drucken.h"

#include "language/beschriftungen.h"
#include "toolkit/fehler.h"

#include <cstddef>
#include <utility>

namespace velmaris {
namespace {

constexpr Wort pdf_datei{"kein Drucker installiert, Ausgabe als PDF-Datei",
                         "no printer installed, output as PDF file"};
constexpr Wort nichts_gewaehlt{"Bitte wählen Sie mindestens eine Ausgabe.",
                               "Please choose at least one output."};

std::array<Pruefeld, druckausgaben> prueffelder() {
    return {Pruefeld("Druckausgabe1"), Pruefeld("Druckausgabe2"), Pruefeld("Druckausgabe3"),
            Pruefeld("Druckausgabe4"), Pruefeld("Druckausgabe5"), Pruefeld("Druckausgabe6"),
            Pruefeld("Druckausgabe7")};
}

}  // namespace

Drucken::Drucken(Sitzung& sitzung, std::function<Reportquelle()> quelle)
    : sitzung_(sitzung), quelle_(std::move(quelle)), ausgaben_(prueffelder()) {
    fenster.zeige(false);
    Command1.gedrueckt = [this] { drucken(); };
    Command2.gedrueckt = [this] { fenster.zeige(false); };
    Command3.gedrueckt = [this] {
        if (druckerwahl) druckerwahl();
        drucker_zeigen();
    };
    beschriften("Drucken", sitzung.p.Sprache, {&Command1, &Command2, &Command3});
}

void Drucken::oeffnen() {
    drucker_zeigen();
    fenster.zeige(true);
}

void Drucken::drucker_zeigen() {
    const auto namen = sitzung_.plattform.druckerliste();
    const int index = sitzung_.plattform.aktueller_drucker();
    const bool vorhanden = index >= 0 && static_cast<std::size_t>(index) < namen.size();
    const std::string name =
        vorhanden ? namen[static_cast<std::size_t>(index)] : std::string(pdf_datei.in(sitzung_.p.Sprache));
    DruckerName.schreibe(name);
    DruckerNameUnten.schreibe(name);
}

Druckauswahl Drucken::auswahl() const {
    Druckauswahl auswahl{};
    for (std::size_t i = 0; i < auswahl.size(); ++i)
        auswahl[i] = ausgaben_[i].wert() == 1;
    return auswahl;
}

void Drucken::drucken() {
    const std::string& sprache = sitzung_.p.Sprache;
    const auto melde = [&](const std::string& text) {
        sitzung_.plattform.melde({.text = text, .titel = "Velmaris", .symbol = Symbol::ausrufezeichen});
    };
    if (druckseitenzahl(auswahl()) == 0) {
        melde(std::string(nichts_gewaehlt.in(sprache)));
        return;
    }
    const std::unique_ptr<Drucker> drucker = dokument ? dokument() : nullptr;
    if (!drucker) return;
    try {
        Ausdrucken(*drucker, quelle_(), auswahl(), heutiges_datum());
    } catch (const Laufzeitfehler& fehler) {
        melde(fehler.text(sprache));
        return;
    }
    fenster.zeige(false);
}

}  // namespace velmaris
