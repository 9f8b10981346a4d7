#include "tests/zufallsprojekt.h"

#include "toolkit/zahlen.h"

namespace velmaris::test {
namespace {

/// So many lines, one after the other, hold a number of steps between two bounds, each 1 / `teiler` wide.
struct Gruppe {
    int zeilen, von, bis, teiler;
};

// In the order of the file; windows of no type, each facade its own, and a limit above the set temperature:
// the dimensions to the limit, walls and window types, insulation, windows,
// station, constructions and roof, cooling and climate, heating, infiltration and heat bridges.
const std::vector<Gruppe> gruppen{{2, 20, 500, 10},  {1, 20, 500, 10}, {1, 1, 20, 1},     {1, 0, 1000, 100},
                                  {1, 0, 100, 100},  {1, -45, 45, 1},  {1, 0, 800, 2},    {1, -100, 199, 10},
                                  {1, 200, 400, 10}, {4, 0, 1, 1},     {4, 7, 7, 1},      {4, 1, 150, 100},
                                  {2, 0, 150, 100},  {1, 0, 500, 10},  {1, 0, 200, 10},   {1, 0, 3, 1},
                                  {1, 0, 4, 1},      {1, 0, 100, 100}, {1, 0, 1, 1},      {4, 0, 100, 1},
                                  {8, 0, 100, 100},  {8, 0, 600, 100}, {4, 0, 100, 100},  {1, 0, 0, 1},
                                  {2, 0, 2, 1},      {1, 0, 1, 1},     {1, 1, 2, 1},      {1, 0, 50, 10},
                                  {1, 1, 1, 1},      {1, 5, 80, 10},   {1, 1, 3, 1},      {1, 1, 2, 1},
                                  {1, 1, 2, 1},      {1, 1, 2, 1},     {1, 0, 1000, 100}, {1, 0, 2, 20}};

}  // namespace

std::vector<std::string> zufallszeilen(std::mt19937& zufall) {
    std::vector<std::string> zeilen{"Velmaris Version 3.2"};
    for (const Gruppe& gruppe : gruppen) {
        std::uniform_int_distribution<int> wurf(gruppe.von, gruppe.bis);
        for (int i = 0; i < gruppe.zeilen; ++i)
            zeilen.push_back(zahltext(f32(wurf(zufall) / static_cast<double>(gruppe.teiler))));
    }
    zeilen[55] = zufall() % 2 == 0 ? "trier.met" : "fern.met";
    for (const std::size_t option : {60U, 62U})
        zeilen[option - 1].erase(0, 1);
    return zeilen;
}

}  // namespace velmaris::test
