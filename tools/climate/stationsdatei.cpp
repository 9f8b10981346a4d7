#include "tools/climate/stationsdatei.h"

#include "toolkit/text.h"
#include "toolkit/zahlen.h"
#include "tools/climate/temperatur.h"
#include "tools/climate/witterung.h"

namespace velmaris::klimasatz {
namespace {

constexpr std::size_t spaltenbreite = 5;

Jahreszeiten jahreszeiten(const Stationsfakten& station, const Tageswerte& draussen) {
    const Tageswerte gang = jahresgang(station.ta);
    const Tageswerte streuung = jahresgang(tagesstreuung(station.ta));
    Jahreszeiten z;
    for (int n = 1; n <= tage_im_jahr; ++n) {
        z.kopplung(n) = sonnenwaerme(draussen(n), station.breite_n);
        z.schiefe(n) = waermeschiefe(z.kopplung(n), gang(n));
        z.stand(n) = gang(n) / streuung(n);
    }
    return z;
}

}  // namespace

std::array<std::string, 6> kopfzeilen(const Stationsfakten& station) {
    const Kopfzahlen zahlen = kopfzahlen(station);
    return {station.name + " (" + station.land + ")",
            "Breitengrad:  " + zahlen.breite,
            "Längengrad:   " + zahlen.laenge,
            "Zeitzone:     " + zahlen.zeitzone,
            "",
            "   dy   Ta G_Gh G_Dh"};
}

std::string stationsdatei(const Stationsfakten& station, const Stundenwerte& ta,
                          const Strahlungsjahr& strahlung) {
    constexpr std::size_t zeilenlaenge = 4 * spaltenbreite + 2;
    std::string bytes;
    bytes.reserve(zeilenlaenge * (stunden_im_jahr + 10));
    for (const std::string& zeile : kopfzeilen(station))
        bytes += nach_windows1252(zeile) + "\r\n";
    const auto zeile = [&](int n, int h) {
        bytes += rechtsbuendig(std::to_string(n), spaltenbreite);
        bytes += rechtsbuendig(muster(ta(n)(h), 1), spaltenbreite);
        bytes += rechtsbuendig(muster(strahlung.global(n)(h), 0), spaltenbreite);
        bytes += rechtsbuendig(muster(strahlung.diffus(n)(h), 0), spaltenbreite);
        bytes += "\r\n";
    };
    zeile(tage_im_jahr, stunden);
    for (int n = 1; n <= tage_im_jahr; ++n) {
        for (int h = 1; h <= stunden; ++h) {
            if (n < tage_im_jahr || h < stunden) zeile(n, h);
        }
    }
    return bytes;
}

std::string stationsdatei_erzeugen(const Stationsfakten& station) {
    const Sonnenstand sonne = sonnenstand(standort(station));
    const Witterung witterung =
        witterung_erzeugen(station.datei + ":himmel", jahreszeiten(station, tagessummen_draussen(sonne)));
    const Strahlungsjahr strahlung = strahlung_erzeugen(station, sonne, witterung.helle);
    return stationsdatei(station, temperatur_erzeugen(station, witterung.waerme, strahlung.klarheit),
                         strahlung);
}

}  // namespace velmaris::klimasatz
