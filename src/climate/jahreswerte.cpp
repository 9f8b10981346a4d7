#include "climate/jahreswerte.h"

#include "toolkit/zahlen.h"

namespace velmaris {

Jahreswerte jahreswerte(const Projekt& p) {
    Jahreswerte jahr{1, 1, 0, p.Strahlung.werte.Ta_max, p.Strahlung.werte.Ta_min};
    float max = -1000;
    float min = 1000;
    for (int m = 1; m <= monate; ++m) {
        const float tmittel = p.Monat(m).Tmittel;
        if (tmittel > max) {
            max = tmittel;
            jahr.waermster_monat = m;
        }
        if (tmittel < min) {
            min = tmittel;
            jahr.kaeltester_monat = m;
        }
        jahr.mittel = f32(jahr.mittel + static_cast<double>(tmittel) / monate);
    }
    return jahr;
}

}  // namespace velmaris
