#include "console/zusammenfassung.h"

#include "calc/jahressummen.h"
#include "toolkit/text.h"
#include "toolkit/wort.h"
#include "toolkit/zahlen.h"

#include <string_view>

namespace velmaris {
namespace {

constexpr std::size_t breite_wort = 34;
constexpr std::size_t breite_zahl = 12;

/// Lines of word, number and unit in one language.
class Bogen {
  public:
    explicit Bogen(std::string_view sprache) : sprache_(sprache) {}

    void titel(const Wort& wort) { text_.append("\n").append(wort.in(sprache_)).append("\n"); }

    void zeile(const Wort& wort, std::string_view inhalt) {
        const std::string_view anfang = wort.in(sprache_);
        text_.append("  ")
            .append(anfang)
            .append(std::string(breite_wort - zeichenzahl(anfang), ' '))
            .append(inhalt) += '\n';
    }

    void zahl(const Wort& wort, double wert, int stellen, std::string_view einheit) {
        zeile(wort, rechtsbuendig(muster(wert, stellen), breite_zahl) + " " + std::string(einheit));
    }

    [[nodiscard]] const std::string& text() const { return text_; }

  private:
    std::string_view sprache_;
    std::string text_;
};

void gebaeude(Bogen& bogen, const Projekt& p) {
    bogen.titel({"Gebäude", "Building"});
    bogen.zahl({"Grundfläche", "ground area"}, p.f_gd, 1, "m²");
    bogen.zahl({"Nutzfläche", "heated floor"}, p.f_nutz, 1, "m²");
    bogen.zahl({"Gebäudevolumen", "total volume"}, p.v_geb, 1, "m³");
    bogen.zahl({"Fensterfläche", "window area"}, p.f_gf, 1, "m²");
    bogen.zahl({"A/V - Verhältnis", "S/V-ratio"}, p.AV, 2, "1/m");
    bogen.zahl({"Zeitkonstante", "time constant"}, p.tau / 3600.0, 1, "h");
}

void heizen_und_kuehlen(Bogen& bogen, const Projekt& p) {
    const Betriebsstunden jahr = betriebsstunden_im_jahr(p);
    bogen.titel({"Heizen und Kühlen", "Heating and cooling"});
    bogen.zahl({"Heizwärmebedarf", "heat energy demand"}, p.qh, 0, "kWh/a");
    bogen.zahl({"", ""}, p.qhs_sum, 1, "kWh/(m² a)");
    bogen.zahl({"Kühlbedarf", "cooling demand"}, summe_der_monate(p, &Monatswerte::Kuehlbedarf), 0, "kWh/a");
    bogen.zahl({"", ""}, jahreskuehlbedarf(p), 1, "kWh/(m² a)");
    bogen.zahl({"Heizstunden", "heating hours"}, jahr.kalt, 0, "h");
    bogen.zahl({"Nullenergiestunden", "zero energy hours"}, jahr.komfort, 0, "h");
    bogen.zahl({"Kühlstunden", "cooling hours"}, jahr.heiss, 0, "h");
    bogen.zahl({"Maximale Heizlast", "maximum heating load"}, p.Heizlast_max, 1, "kW");
    bogen.zahl({"Maximale Kühllast", "maximum cooling load"}, p.Kuehllast_max, 1, "kW");
}

void energie(Bogen& bogen, const Haupt& haupt) {
    const Projekt& p = haupt.p;
    const Kurzname& namen = haupt.e_energie.kennwerte().name;
    const Wort traeger{namen.Traegername, namen.Traegername_e};
    bogen.titel({"Endenergie", "End energy"});
    bogen.zahl(traeger, p.q_HE_Energietraeger, 1, "kWh/(m² a)");
    bogen.zahl({"Hilfsenergie (Strom)", "auxiliary energy (electricity)"}, p.q_HE_Strom, 1, "kWh/(m² a)");
    bogen.titel({"Primärenergie", "Primary energy"});
    bogen.zahl(traeger, p.q_PE_Energietraeger, 1, "kWh/(m² a)");
    bogen.zahl({"Hilfsenergie (Strom)", "auxiliary energy (electricity)"}, p.q_PE_Strom, 1, "kWh/(m² a)");
}

}  // namespace

std::string zusammenfassung(const Haupt& haupt) {
    Bogen bogen(haupt.p.Sprache);
    bogen.zeile({"Klimastation", "climate station"}, haupt.p.Stationsname);
    gebaeude(bogen, haupt.p);
    heizen_und_kuehlen(bogen, haupt.p);
    energie(bogen, haupt);
    return lesbar(haupt.p.Datei) + "\n" + bogen.text();
}

}  // namespace velmaris
