#include "planes/E_Gebaeude.h"

#include "calc/zeitkonstante.h"
#include "charts/gewichtbild.h"
#include "language/beschriftungen.h"
#include "toolkit/wort.h"
#include "toolkit/zahlen.h"

#include <string>
#include <vector>

namespace velmaris {
namespace {

std::vector<std::string> bauarten(const std::string& sprache) {
    const Sprachpaar<std::vector<std::string>> namen{
        {"Schwere Bauweise", "Mittelschwere Bauweise", "Leichte Bauweise"},
        {"heavy construction", "medium construction", "light construction"}};
    return namen.in(sprache);
}

}  // namespace

E_Gebaeude::E_Gebaeude(Sitzung& sitzung, E_Fenster& fenster) : s_(sitzung), fenster_(fenster) {
    for (Eingabefeld* feld : {&intg_sb, &infiltration_sb, &lw_sb, &WRG_Sb, &Klimaeffizienz_sb}) {
        feld->geaendert = [this, feld] {
            feld->uebernehmen(s_.p);
            zeigen(*feld);
            geaendert(s_);
        };
    }
    Troom_sb.geaendert = [this] { troom_geaendert(); };
    Tueber_sb.geaendert = [this] { tueber_geaendert(); };
    for (const Wand& wand : waende()) {
        wand.check->geklickt = [this, fassade = wand.fassade] { wand_geklickt(fassade); };
    }
    Aussenwandart.fuelle(bauarten(s_.p.Sprache));
    Innenwandart.fuelle(bauarten(s_.p.Sprache));
    Aussenwandart.gewaehlt = [this] { bauart_gewaehlt(&Projekt::Aussenwandart, Aussenwandart); };
    Innenwandart.gewaehlt = [this] { bauart_gewaehlt(&Projekt::Innenwandart, Innenwandart); };
    Traegheit.zeichnen = [this](Zeichenflaeche& flaeche) { gewicht_zeichnen(s_.p, flaeche); };
    Traegheit.einzeln = {.breite = 76, .hoehe = 72};
    Traegheit.titel = beschriftung(ebene.name, Traegheit.name, s_.p.Sprache);
    ebene.zeige(false);
}

std::array<E_Gebaeude::Wand, 4> E_Gebaeude::waende() {
    return {{{Wandseite::nord, &awn_cb, &Projekt::awn},
             {Wandseite::sued, &aws_cb, &Projekt::aws},
             {Wandseite::west, &aww_cb, &Projekt::aww},
             {Wandseite::ost, &awo_cb, &Projekt::awo}}};
}

void E_Gebaeude::zeigen(const Eingabefeld& feld) {
    const std::array<std::pair<const Eingabefeld*, Anzeige*>, 7> paare{
        {{&Troom_sb, &troom_anz},
         {&Tueber_sb, &Tueber_anz},
         {&intg_sb, &intg_anz},
         {&infiltration_sb, &infiltration_anz},
         {&lw_sb, &lw_anz},
         {&WRG_Sb, &WRG_anz},
         {&Klimaeffizienz_sb, &KlimaEffizienz_anz}}};
    for (const auto& [schieber, anzeige] : paare) {
        if (schieber == &feld) anzeige->schreibe(feld.anzeigetext(s_.p));
    }
    if (&feld == &intg_sb) intg_anz2.schreibe(muster(s_.p.intg * 1000.0 / stunden_im_jahr, 1));
}

void E_Gebaeude::troom_geaendert() {
    Projekt& p = s_.p;
    p.Geaendert = 1;
    Troom_sb.uebernehmen(p);
    zeigen(Troom_sb);
    if (p.Troom >= p.Tueber) Troom_sb.setze(i16(p.Tueber * 10.0 - 1, "Tueber"));
    s_.alles_berechnen();
}

void E_Gebaeude::tueber_geaendert() {
    Projekt& p = s_.p;
    p.Geaendert = 1;
    Tueber_sb.uebernehmen(p);
    zeigen(Tueber_sb);
    if (p.Tueber <= p.Troom) Tueber_sb.setze(i16(p.Troom * 10.0 + 1, "Troom"));
    s_.alles_berechnen();
}

void E_Gebaeude::wand_geklickt(Wandseite fassade) {
    for (const Wand& wand : waende()) {
        if (wand.fassade != fassade) continue;
        s_.p.*wand.feld = i16(1 - wand.check->wert(), wand.check->name);
        fenster_.nachbar_zeigen(fassade, wand.check->wert() == 1);
    }
    geaendert(s_);
}

void E_Gebaeude::bauart_gewaehlt(std::int16_t Projekt::*ziel, const Auswahlliste& liste) {
    s_.p.*ziel = i16(liste.index(), liste.name);
    geaendert(s_);
}

void E_Gebaeude::gebaeude_zeigen() {
    Cwirk_anz.schreibe(muster(kapazitaet_je_volumen(s_.p), 1));
    cges_anz.schreibe(muster(double{s_.p.Cwirk} / 3600 / 1000, 1));
    Traegheit.neu_zeichnen();
}

void E_Gebaeude::eingaben_anzeigen() {
    Projekt& p = s_.p;
    for (Eingabefeld* feld : {&Troom_sb, &intg_sb, &infiltration_sb, &lw_sb, &WRG_Sb})
        feld->stellen(p);
    for (const Eingabefeld* feld : {&intg_sb, &Troom_sb, &infiltration_sb, &lw_sb, &WRG_Sb})
        zeigen(*feld);
    for (const Wand& wand : waende())
        wand.check->setze_verneint(p.*wand.feld);
    Tueber_sb.stellen(p);
    Klimaeffizienz_sb.stellen(p);
}

}  // namespace velmaris
