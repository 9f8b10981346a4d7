#include "documents/planes/druckerwahl.h"

#include "language/beschriftungen.h"
#include "toolkit/wort.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace velmaris {
namespace {

constexpr Wort pdf_datei{"PDF-Datei", "PDF file"};
constexpr Wort nur_pdf{"kein Drucker installiert, Ausgabe als PDF-Datei",
                       "no printer installed, output as PDF file"};
constexpr Wort nicht_mehr_da{"Diesen Drucker gibt es nicht mehr: ", "This printer is no longer there: "};
constexpr Wort neu_waehlen{"Bitte wählen Sie einen anderen Drucker oder die Ausgabe als PDF-Datei.",
                           "Please choose another printer or the output as PDF file."};

}  // namespace

Druckerwahl::Druckerwahl(Sitzung& sitzung, std::function<void()> gewaehlt)
    : sitzung_(sitzung), gewaehlt_(std::move(gewaehlt)) {
    fenster.zeige(false);
    OK_Button.gedrueckt = [this] { uebernehmen(); };
    Abbrechen.gedrueckt = [this] { fenster.zeige(false); };
    beschriften("Druckerwahl", sitzung.p.Sprache, {&OK_Button, &Abbrechen});
}

void Druckerwahl::oeffnen() {
    std::vector<std::string> namen = sitzung_.plattform.druckerliste();
    Hinweis.schreibe(namen.empty() ? std::string(nur_pdf.in(sitzung_.p.Sprache)) : std::string());
    const auto ort = std::find(namen.begin(), namen.end(), sitzung_.plattform.aktueller_drucker());
    const auto index = static_cast<int>(ort - namen.begin());
    namen.emplace_back(pdf_datei.in(sitzung_.p.Sprache));
    Druckerliste.fuelle(std::move(namen));
    Druckerliste.markiere(index);
    fenster.zeige(true);
}

std::string Druckerwahl::anzeigename(const std::string& drucker) const {
    if (!drucker.empty()) return drucker;
    const bool ohne_drucker = sitzung_.plattform.druckerliste().empty();
    return std::string((ohne_drucker ? nur_pdf : pdf_datei).in(sitzung_.p.Sprache));
}

bool Druckerwahl::vorhanden(const std::string& drucker) const {
    const auto namen = sitzung_.plattform.druckerliste();
    return drucker.empty() || std::find(namen.begin(), namen.end(), drucker) != namen.end();
}

void Druckerwahl::verschwunden(const std::string& drucker) {
    const std::string_view sprache = sitzung_.p.Sprache;
    sitzung_.plattform.melde({.text = std::string(nicht_mehr_da.in(sprache)) + drucker,
                              .titel = "Velmaris",
                              .symbol = Symbol::ausrufezeichen,
                              .hinweis = std::string(neu_waehlen.in(sprache))});
    oeffnen();
}

void Druckerwahl::uebernehmen() {
    const int index = Druckerliste.index();
    const bool pdf = index + 1 == static_cast<int>(Druckerliste.eintraege().size());
    const std::string name = pdf ? std::string() : Druckerliste.text();
    if (!vorhanden(name)) {
        verschwunden(name);
        return;
    }
    sitzung_.plattform.drucker_waehlen(name);
    fenster.zeige(false);
    gewaehlt_();
}

}  // namespace velmaris
