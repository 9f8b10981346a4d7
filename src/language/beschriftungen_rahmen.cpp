#include "language/beschriftungstabellen.h"

#include <array>

namespace velmaris::beschriftungstabellen {
namespace {

constexpr std::array Haupt{
    Beschriftung{"mnuFile", "&Datei", "File"},
    Beschriftung{"mnuFileNeu", "&Neu", "New"},
    Beschriftung{"mnuFileOeffnen", "Ö&ffnen", "Open ..."},
    Beschriftung{"mnuFileSpeichern", "&Speichern", "Save"},
    Beschriftung{"mnuFileunter", "Speichern &unter...", "Save as ..."},
    Beschriftung{"mnuFileDrucken", "&Drucken...", "Print"},
    Beschriftung{"mnuFileExit", "&Beenden", "Exit"},
    Beschriftung{"mnuAusgaben", "&Report", "Report"},
    Beschriftung{"mnuBerechnungsergebnisseExportieren", "&Report anzeigen", "Show report"},
    Beschriftung{"mnuTemperaturExport", "&Temperaturwerte anzeigen", "Show temperature values"},
    Beschriftung{"mnuWin", "&Arbeitsebene", "Working planes"},
    Beschriftung{"mnuWinGeo", "&Geometrie", "Geometry"},
    Beschriftung{"mnuWinFens", "&Fenster", "Windows"},
    Beschriftung{"mnuWinDaem", "&Dämmung", "Insulation"},
    Beschriftung{"mnuWinGeb", "Ge&bäude", "Building"},
    Beschriftung{"mnuWinKlima", "&Klima", "Climate"},
    Beschriftung{"mnuWinEnerg", "&Energie", "Energy"},
    Beschriftung{"mnuExtras", "&Extras", "Extras"},
    Beschriftung{"mnuKlimaImportieren", "&Klimadaten importieren", "Import climatic data"},
    Beschriftung{"mnuSprache", "&Sprache", "Language"},
    Beschriftung{"mnuSpracheDeutsch", "&Deutsch", "&Deutsch"},
    Beschriftung{"mnuSpracheEnglisch", "&English", "&English"},
    Beschriftung{"mnuQuest", "&?", "&?"},
    Beschriftung{"mnuQuestHilfe", "&Hilfe", "Help"},
    Beschriftung{"mnuQuestInfo", "&Info...", "Info"},
};

constexpr std::array Start{
    Beschriftung{fenstertitel, "Velmaris", "Velmaris"},
    Beschriftung{"Label_Zweck", "Energiebedarf und Temperaturverhalten eines Gebäudes",
                 "Energy demand and temperature behaviour of a building"},
    Beschriftung{
        "Label_Text",
        "Ein Lehrprogramm: Heizen, Kühlen, Stundenwerte eines Jahres und der Weg vom Wärmebedarf zur "
        "Primärenergie.\nHerausgeber: das Velmaris-Team",
        "A teaching program: heating, cooling, the hours of a year and the way from heat demand to "
        "primary energy.\nPublished by the Velmaris team"},
    Beschriftung{"OK_Button", "OK", "OK"},
};

constexpr std::array Sprachwahl{
    Beschriftung{fenstertitel, "Sprache / Language", "Sprache / Language"},
    Beschriftung{"Label4", "Deutsch", "Deutsch"},
    Beschriftung{"Label5", "English", "English"},
};

constexpr std::array E_Klimaimport{
    Beschriftung{fenstertitel, "Klimadaten importieren", "Import climatic data"},
    Beschriftung{"Frame1", "Quelldatei", "Source file"},
    Beschriftung{"Command1", "Quelldatei auswählen", "Select source file"},
    Beschriftung{"Frame2", "Datenformat", "Data format"},
    Beschriftung{"Datentrennung0", "Daten durch Tabulatoren getrennt", "Data separated by tabs"},
    Beschriftung{"Datentrennung1", "Daten in Spalten (durch Leerzeichen getrennt, linksbündig)",
                 "Data in columns (separated by blanks, left-aligned)"},
    Beschriftung{"Datentrennung2", "Daten in Spalten (durch Leerzeichen getrennt, rechtsbündig)",
                 "Data in columns (separated by blanks, right-aligned)"},
    Beschriftung{"Label_Kopfzeilen", "Anzahl der Kopfzeilen:", "Number of heading lines:"},
    Beschriftung{"Label_Dezimalzeichen", "Dezimalzeichen:", "Decimal sign:"},
    Beschriftung{"Frame3", "Standort", "Location"},
    Beschriftung{"Label_Standortname", "Name des Standorts:", "Name of Location:"},
    Beschriftung{"Label_Land", "Land:", "Country:"},
    Beschriftung{"Label_Breitengrad", "Breitengrad:", "Latitude:"},
    Beschriftung{"Label_Laengengrad", "Längengrad:", "Longitude:"},
    Beschriftung{"Label_Zeitzone", "Zeitzone:", "Time zone:"},
    Beschriftung{"Frame4", "Datenzuordnung", "Data assignment"},
    Beschriftung{"Frame5", "Vorschau der Datei", "Preview of file"},
    Beschriftung{"VScroll1", "Gezeigte Zeilen", "Rows shown"},
    Beschriftung{"HScroll1", "Gezeigte Spalten", "Columns shown"},
    Beschriftung{"Fortschritt", "Fortschritt des Imports", "Progress of the import"},
    Beschriftung{"Command2", "Klimaimport starten", "Start climate import"},
    Beschriftung{"Command3", "Abbrechen", "Abort"},
};

constexpr std::array Drucken{
    Beschriftung{fenstertitel, "Drucken", "Print"},
    Beschriftung{"Frame1", "Drucker", "Printer"},
    Beschriftung{"Frame2", "Ausgaben", "Output"},
    Beschriftung{"Command1", "Drucken", "Print"},
    Beschriftung{"Command2", "Abbrechen", "Cancel"},
    Beschriftung{"Command3", "Ändern", "Change"},
    Beschriftung{"Druckausgabe1", "Eingabedaten (2 Seiten)", "Input data (2 pages)"},
    Beschriftung{"Druckausgabe2", "Heiz- und Kühlstunden (1 Seite)", "Heating and cooling hours (1 page)"},
    Beschriftung{"Druckausgabe3", "Wärmebilanz (1 Seite)", "Heat balance (1 page)"},
    Beschriftung{"Druckausgabe4", "Kühlbilanz (1 Seite)", "Cooling balance (1 page)"},
    Beschriftung{"Druckausgabe5", "Solare Gewinne / Transmissionsverluste der Fenster (1 Seite)",
                 "Solar gains / transmission losses of the windows (1 page)"},
    Beschriftung{"Druckausgabe6", "Primär- und Endenergiebedarf Heizung (1 Seite)",
                 "Primary and end energy demand for heating (1 page)"},
    Beschriftung{"Druckausgabe7", "Primär- und Endenergiebedarf Kühlung (1 Seite)",
                 "Primary and end energy demand for cooling (1 page)"},
};

constexpr std::array Druckerwahl{
    Beschriftung{fenstertitel, "Drucker wählen", "Choose printer"},
    Beschriftung{"Frame1", "Drucker", "Printer"},
    Beschriftung{"OK_Button", "OK", "OK"},
    Beschriftung{"Abbrechen", "Abbrechen", "Cancel"},
};

constexpr std::array fenster{
    Fenster{"Haupt", Haupt},           Fenster{"Start", Start},
    Fenster{"Sprachwahl", Sprachwahl}, Fenster{"E_Klimaimport", E_Klimaimport},
    Fenster{"Drucken", Drucken},       Fenster{"Druckerwahl", Druckerwahl},
};

}  // namespace

std::span<const Fenster> rahmen() {
    return fenster;
}

}  // namespace velmaris::beschriftungstabellen
