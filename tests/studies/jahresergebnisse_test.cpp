#include "studies/jahresergebnisse.h"

#include "toolkit/zahlen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmaris {
namespace {

/// A record with a number of its own in each field, so that the results tell which of them they come from.
Projekt projekt() {
    Projekt p;
    p.f_nutz = 100;
    p.Klimaeffizienz = 2.5F;
    p.qhs_sum = 61.25F;
    p.q_HE_Energietraeger = 70.5F;
    p.q_HE_Strom = 2.25F;
    p.q_PE_Energietraeger = 77.5F;
    p.q_PE_Strom = 6.75F;
    p.Heizlast_max = 5.5F;
    p.Kuehllast_max = 3.25F;
    p.tau = 180000;
    p.Monat(1).Stunden_kalt = 700;
    p.Monat(12).Stunden_kalt = 13;
    p.Monat(4).Stunden_komfort = 500;
    p.Monat(7).Stunden_heiss = 301;
    p.Monat(7).Kuehlbedarf = 900;
    p.Monat(8).Kuehlbedarf = 350;
    p.Monat(7).Kuehlgradstunden = 412;
    p.Monat(8).Kuehlgradstunden = 80;
    p.T_frei(7, 31, 24) = 35;
    p.T_regel(1, 1, 1) = 21.9F;
    return p;
}

TEST(Jahresergebnisse, KommenAusIhrenFeldern) {
    const Projekt p = projekt();
    std::vector<std::string> zeilen;
    for (const Ergebniszeile& ergebnis : jahresergebnisse())
        zeilen.push_back(std::string(ergebnis.name.en) + " " +
                         mit_einheit(kuerzeste(f32(ergebnis.wert(p))), ergebnis.einheit));
    EXPECT_THAT(zeilen,
                testing::ElementsAre(
                    "heat energy demand 61.25 kWh/(m² a)", "cooling demand 12.5 kWh/(m² a)",
                    "end energy for heating 72.75 kWh/(m² a)", "end energy for cooling 5 kWh/(m² a)",
                    "primary energy for heating 84.25 kWh/(m² a)", "primary energy for cooling 15 kWh/(m² a)",
                    "maximum heating load 5.5 kW", "maximum cooling load 3.25 kW", "heating hours 713 h",
                    "zero energy hours 500 h", "cooling hours 301 h", "cooling degree hours 492 Kh",
                    "highest free-running room temperature 35 °C",
                    "mean free-running room temperature 0.003995434 °C",
                    "mean controlled room temperature 0.0025 °C", "time constant 50 h"));
    EXPECT_DOUBLE_EQ(ergebnis_primaer.wert(p), 99.25);
}

}  // namespace
}  // namespace velmaris
