#include "tests/climate/planes/klimaprobe.h"

#include "climate/regionen.h"
#include "language/c_Sprache.h"
#include "tests/climate/stationsdatei.h"
#include "toolkit/text.h"

namespace velmaris::test {

Klimaprobe::Klimaprobe(const std::string& sprache) {
    ordner.schreibe("klima/bremen.met", kopftext("Bremen (Deutschland)", 53.0, 8.8));
    ordner.schreibe("klima/honolulu.met", kopftext("Honolulu (USA)", 21.3, -157.6));
    ordner.schreibe("klima/paris.met", kopftext("Paris (Frankreich)", 48.9, 2.3));
    ordner.schreibe("klima/passau.met", kopftext("Passau (Deutschland)", 48.6, 13.5));
    ordner.schreibe("klima/tokyo.met", kopftext("Tokyo (Japan)", 35.7, 139.8));
    ordner.schreibe("klima/trier.met", kopftext("Trier (Deutschland)", 49.75, 6.66));
    ordner.schreibe("klima/plz.txt", "282; 1\r\n542; 4\r\n940;11\r\n001; 0\r\n");
    p->AppPfad = ordner.pfad();
    p->Sprache = sprache;
    sprachtexte_setzen(*p);
    regionsdateien_setzen(*p);
    sitzung_ = std::make_unique<Sitzung>(Sitzung{*p, plattform, [] {}});
    e = std::make_unique<E_Klima>(*sitzung_, [this] { wetter_laden(); });
}

void Klimaprobe::wetter_laden() {
    static_cast<void>(inhalt(ordner / ("klima/" + p->Klimadatei)));
    geladen.push_back(p->Klimadatei);
    e->klima_zeigen();
}

void Klimaprobe::oeffne(int bereich, const std::string& klimadatei) {
    p->Klimadatei = klimadatei;
    p->Klimaauswahl = static_cast<std::int16_t>(bereich);
    e->klima_anzeigen();
    p->Geaendert = 0;
    geladen.clear();
}

void Klimaprobe::karten_sehen() {
    e->kartenfarbe = farbe;
    e->zoom.kartenfarbe = farbe;
}

Farbe Klimaprobe::farbe(const Bildfeld& karte, double x, double y) {
    RekorderFlaeche bild(975, 369);
    karte.zeichnen(bild);
    return bild.lies_punkt(x, y);
}

}  // namespace velmaris::test
