#include "tests/climate/stationsdatei.h"

#include "toolkit/text.h"

namespace velmaris::test {

std::string Stationsdatei::text() const {
    std::string text =
        ort + "\r\n" + breite + "\r\n" + laenge + "\r\n" + zone + "\r\n\r\n   dy   Ta G_Gh G_Dh\r\n";
    for (int i = 0; i < zeilen; ++i) {
        const Datenzeile werte = zeile(i);
        text += "    1" + rechtsbuendig(werte.Ta, 5) + rechtsbuendig(werte.G_Gh, 5) +
                rechtsbuendig(werte.G_Dh, 5) + "\r\n";
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
