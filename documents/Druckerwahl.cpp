#include "documents/Druckerwahl.h"

#include "documents/wort.h"
#include "language/beschriftungen.h"

#include <cstddef>
#include <utility>
#include <vector>

namespace velmaris {
namespace {

constexpr Wort pdf_datei{"PDF-Datei", "PDF file"};
constexpr Wort nur_pdf{"kein Drucker installiert, Ausgabe als PDF-Datei",
                       "no printer installed, output as PDF file"};

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
    const int drucker = static_cast<int>(namen.size());
    const int index = sitzung_.plattform.aktueller_drucker();
    Hinweis.schreibe(namen.empty() ? name_des_druckers() : std::string());
    namen.emplace_back(pdf_datei.in(sitzung_.p.Sprache));
    Druckerliste.fuelle(std::move(namen));
    Druckerliste.markiere(index < 0 ? drucker : index);
    fenster.zeige(true);
}

std::string Druckerwahl::name_des_druckers() const {
    const auto namen = sitzung_.plattform.druckerliste();
    const int index = sitzung_.plattform.aktueller_drucker();
    if (index >= 0) return namen.at(static_cast<std::size_t>(index));
    return std::string((namen.empty() ? nur_pdf : pdf_datei).in(sitzung_.p.Sprache));
}

void Druckerwahl::uebernehmen() {
    const int index = Druckerliste.index();
    const bool pdf = index + 1 == static_cast<int>(Druckerliste.eintraege().size());
    sitzung_.plattform.drucker_waehlen(pdf ? -1 : index);
    fenster.zeige(false);
    gewaehlt_();
}

}  // namespace velmaris
