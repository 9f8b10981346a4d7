#pragma once

#include "climate/planes/E_Zoom_Klima.h"
#include "climate/planes/kartenweg.h"
#include "climate/planes/stationskarte.h"
#include "climate/stationslisten.h"
#include "project/klimabereich.h"
#include "project/sitzung.h"
#include "toolkit/fehler.h"
#include "toolkit/felder.h"
#include "toolkit/textfeld.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace velmaris {

/// The plane on which the climate station is chosen: by one of the twelve German regions, also over a post
/// code, or among the stations of Europe or of the world. Each choice makes its station the current climate.
struct E_Klima {
    /// Lists the stations of the program's folder. `wetter_laden` makes the station named by the record the
    /// current climate; it leaves the former one by a Dateifehler if the station cannot be read.
    E_Klima(Sitzung& sitzung, std::function<void()> wetter_laden);

    const Stationslisten stationen;

    Feld ebene{"E_Klima"};  ///< the plane itself, hidden at first

    Optionsgruppe Option{"Option", 1, 3};  ///< `Option1` to `Option3`, by the number of their scope

    Anzeige Frame_Karte{"Frame_Karte"};  ///< around the map of the scope

    // --- Germany ---
    Anzeige Frame_Region{"Frame_Region"};
    Auswahlliste Klimaregionwahl{"Klimaregionwahl"};  ///< the twelve regions
    Bildfeld Picture1{"Picture1"};                    ///< map of the regions, 230 x 308 pixels
    Anzeige Label2{"Label2"};  ///< region under the pointer; place in pixels of the map
    Anzeige Frame_plz{"Frame_plz"};
    Textfeld plz{"plz", "0123456789", 5};  ///< post code
    Knopf PLZsuchen{"PLZsuchen"};

    // --- Europe and world ---
    Anzeige Frame_Station{"Frame_Station"};
    Auswahlliste Klimaregionwahl2{"Klimaregionwahl2"};  ///< the stations of the scope
    Anzeige MausRegion{"MausRegion"};                   ///< station under the pointer
    Bildfeld Picture2{"Picture2"};                      ///< map of Europe, 234 x 201 pixels
    Feld picture3f{"picture3f"};                        ///< frame around the visible strip of the world map
    Bildfeld Picture3{
        "Picture3"};         ///< map of the world, 650 x 246 pixels; its place is relative to the frame
    Scrollfeld HScroll1;     ///< moves the world map; twips
    Knopf Image1{"Image1"};  ///< opens the enlarged map
    E_Zoom_Klima zoom;

    // --- Figures of the climate in force, degC ---
    Anzeige Frame_Klimadaten{"Frame_Klimadaten"};
    Anzeige anz_MittelJahrText{"anz_MittelJahrText"}, anz_MittelJahrTemp{"anz_MittelJahrTemp"};
    Anzeige anz_MinMonatText{"anz_MinMonatText"}, anz_MinMonatTemp{"anz_MinMonatTemp"};
    Anzeige anz_MaxMonatText{"anz_MaxMonatText"}, anz_MaxMonatTemp{"anz_MaxMonatTemp"};

    /// The figures of `Frame_Klimadaten`.
    [[nodiscard]] Wertetafel klimawerte() const;

    /// Width of `picture3f` in pixels. More than half of the map, so that each station comes into view at one
    /// end or the other of `HScroll1`.
    static constexpr int rahmenbreite = 330;

    /// Reads a pixel of one of the maps.
    Kartenfarbe kartenfarbe = gezeigte_kartenfarbe;

    /// Sets the option of `Klimaauswahl` and runs its logic, also if it is set already. A value without an
    /// option does nothing.
    void klima_anzeigen();

    /// The logic behind the options: shows the controls of the scope and brings its list and the record's
    /// station together. A station that no list has is replaced as by `station_ersetzen`; if none can be read
    /// it stays in force.
    void Option_Click(int option);

    /// Replaces the record's station, which cannot be used for the reason of `fehler`, and tells the user: by
    /// that of region 4 in Germany, by one drawn by lot elsewhere; where that cannot be read either, by
    /// another one of the scope, or of all stations. If none can be read the record keeps its station and
    /// `klima_fehlt` is true. Throws the fault on where stations are not to be replaced.
    void station_ersetzen(const Dateifehler& fehler);

    /// True if no station could be read since the last one was asked for; then nothing can be calculated.
    [[nodiscard]] bool klima_fehlt() const { return klima_fehlt_; }

    /// False for a program that rather fails than calculates another climate than the project's.
    bool ersatz_erlaubt = true;

    /// Shows the record's station on the German map, if it is that of a region, and the temperatures of the
    /// climate in force, which has just been read. Its `warnung` is told once for a station.
    void klima_zeigen(const std::optional<Zweisprachig>& warnung = std::nullopt);

    /// Lets the next warning be told, whichever station it is about.
    void warnung_vergessen() { gewarnt_vor_.clear(); }

  private:
    void verbinden();
    void bereich_zeigen(Klimabereich bereich);
    void region_zeigen();
    void station_zeigen(bool versucht);
    [[nodiscard]] bool gelistet() const;
    [[nodiscard]] std::vector<std::string> ersatzstationen() const;
    [[nodiscard]] bool ersatz_laden(const Dateifehler& grund);
    void fehlt_melden(const std::string& text, const Dateifehler& grund, const std::string& folge);
    void auswahl_nachziehen();
    void region_gewaehlt();
    void station_gewaehlt();
    void weltkarte_legen();
    void station_in_sicht(const Station& station);
    void uebernehmen(const std::string& datei);
    void karte_bewegt(double x, double y);
    void karte_geklickt(double x, double y);
    void hinweis_legen(Kartenpunkt ort);
    void region_nennen(int region);
    void hinweis_ein();
    void plz_suchen();
    void melde(const std::string& text);
    [[nodiscard]] bool in_region(double x, double y, int region) const;
    [[nodiscard]] const std::vector<Station>& stationen_des_bereichs() const;
    [[nodiscard]] std::string stationsname() const;

    Sitzung& s_;
    std::function<void()> wetter_laden_;
    bool klima_fehlt_ = false;
    std::string gewarnt_vor_;  ///< the station whose warning was the last one
    Stationskarte europakarte_;
    Stationskarte weltkarte_;

    [[nodiscard]] Kartenweg weg_der_regionen();
    void region_andeuten(int stelle);

  public:
    /// The ways over the maps by keyboard: `Picture1`, `Picture2` and `Picture3`.
    Kartenweg regionenweg = weg_der_regionen();
    Kartenweg europaweg = europakarte_.weg();
    Kartenweg weltweg = weltkarte_.weg();
};

}  // namespace velmaris
