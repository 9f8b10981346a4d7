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

}  // namespace velmaris::test
