#include "tests/climate/stationsdatei.h"

#include "toolkit/text.h"

namespace velmaris::test {

std::string Stationsdatei::text() const {
    std::string text;
    for (const std::string& kopf :
         {ort, breite, laenge, zone, std::string(), std::string("   dy   Ta G_Gh G_Dh")})
        text += kopf + zeilenende;
    for (int i = 0; i < zeilen; ++i) {
        const Datenzeile werte = zeile(i);
        text += "    1" + rechtsbuendig(werte.Ta, 5) + rechtsbuendig(werte.G_Gh, 5) +
                rechtsbuendig(werte.G_Dh, 5);
        text += zeilenende;
    }
    return text;
}

std::string kopftext(const std::string& name, double breite, double laenge) {
    return Stationsdatei{.ort = name,
                         .breite = "Breitengrad:  " + std::to_string(breite),
                         .laenge = "Laengengrad:  " + std::to_string(-laenge),
                         .zeilen = 0}
        .text();
}

}  // namespace velmaris::test
