#include "charts/planes/monatsleiste.h"

#include "toolkit/zahlen.h"

#include <string>
#include <utility>

namespace velmaris {
namespace {

template <std::size_t... i>
std::array<Knopf, sizeof...(i)> knoepfe(std::index_sequence<i...>) {
    return {Knopf("Monatsbutton" + std::to_string(i + 1))...};
}

}  // namespace

Monatsleiste::Monatsleiste() : Monatsbutton(knoepfe(std::make_index_sequence<monate>())) {
    for (int m = 1; m <= monate; ++m) {
        knopf(m).gedrueckt = [this, m] {
            if (gewaehlt) gewaehlt(m);
        };
    }
}

void Monatsleiste::beschriften(const Projekt& p) {
    for (int m = 1; m <= monate; ++m)
        knopf(m).schreibe(p.Monat(m).Kurz);
}

void Monatsleiste::verteile(const Rechteck& leiste) {
    const auto links = [&](int i) { return runden((i - 1) / 12.0 * leiste.breite); };
    for (int m = 1; m <= monate; ++m)
        knopf(m).lege({.links = leiste.links + links(m),
                       .oben = leiste.oben,
                       .breite = links(m + 1) - links(m) + 1,
                       .hoehe = leiste.hoehe});
}

void Monatsleiste::markiere(int m) {
    const Knopf& gewaehlter = knopf(m);
    AktiverMonat1.schreibe(gewaehlter.text());
    if (!gewaehlter.lage()) return;
    const Rechteck& lage = *gewaehlter.lage();
    AktiverMonat.lege(lage);
    AktiverMonat1.lege({.links = 0, .oben = 0, .breite = lage.breite + 1, .hoehe = lage.hoehe + 1});
}

}  // namespace velmaris
