#include "planes/hauptmenue.h"

#include "language/beschriftungen.h"
#include "toolkit/wort.h"

#include <array>
#include <stdexcept>

namespace velmaris {
namespace {

/// A row of the menu: depth 0 stands in the bar, an empty name is a separator.
struct Menuezeile {
    std::size_t tiefe;
    std::string_view name;
};

constexpr std::array<Menuezeile, 27> zeilen{{
    {0, "mnuFile"},
    {1, "mnuFileNeu"},
    {1, "mnuFileOeffnen"},
    {1, "mnuFileSpeichern"},
    {1, "mnuFileunter"},
    {1, ""},
    {1, "mnuFileDrucken"},
    {1, ""},
    {1, "mnuFileExit"},
    {0, "mnuAusgaben"},
    {1, "mnuBerechnungsergebnisseExportieren"},
    {1, "mnuTemperaturExport"},
    {0, "mnuWin"},
    {1, "mnuWinGeo"},
    {1, "mnuWinFens"},
    {1, "mnuWinDaem"},
    {1, "mnuWinGeb"},
    {1, "mnuWinKlima"},
    {1, "mnuWinEnerg"},
    {0, "mnuExtras"},
    {1, "mnuKlimaImportieren"},
    {1, "mnuSprache"},
    {2, "mnuSpracheDeutsch"},
    {2, "mnuSpracheEnglisch"},
    {0, "mnuQuest"},
    {1, "mnuQuestHilfe"},
    {1, "mnuQuestInfo"},
}};

Menueknoten knoten(std::string_view name, std::string_view sprache) {
    Menueknoten neu;
    if (name.empty()) return neu;
    neu.punkt = std::make_unique<Menuepunkt>(std::string(name));
    neu.punkt->schreibe(beschriftung("Haupt", name, sprache));
    return neu;
}

Menuepunkt* suchen(const std::vector<Menueknoten>& ebene, std::string_view name) {
    for (const Menueknoten& kind : ebene) {
        if (kind.punkt && kind.punkt->name == name) return kind.punkt.get();
        if (Menuepunkt* tiefer = suchen(kind.kinder, name)) return tiefer;
    }
    return nullptr;
}

}  // namespace

Hauptmenue::Hauptmenue(std::string_view sprache) {
    for (const Menuezeile& zeile : zeilen) {
        std::vector<Menueknoten>* ebene = &menues_;
        for (std::size_t i = 0; i < zeile.tiefe; ++i)
            ebene = &ebene->back().kinder;
        ebene->push_back(knoten(zeile.name, sprache));
    }
    punkt(englisch(sprache) ? "mnuSpracheEnglisch" : "mnuSpracheDeutsch").kreuze_an(true);
}

Menuepunkt& Hauptmenue::punkt(std::string_view name) {
    Menuepunkt* gefunden = suchen(menues_, name);
    if (gefunden == nullptr) throw std::out_of_range("no menu entry " + std::string(name));
    return *gefunden;
}

}  // namespace velmaris
