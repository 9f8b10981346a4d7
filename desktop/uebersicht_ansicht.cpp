#include "charts/schema.h"
#include "desktop/ansichten.h"
#include "desktop/bildflaeche.h"
#include "desktop/ebene.h"
#include "desktop/legende.h"
#include "desktop/monatsleiste_ansicht.h"
#include "desktop/tooltip_ansicht.h"
#include "desktop/zoomfenster.h"

#include <QPushButton>
#include <QWidget>

namespace velmaris {

QWidget* uebersicht_ansicht(A_Uebersicht& a, const Ansichtsmittel& mittel, QWidget* eltern) {
    QWidget* ebene = ebene_bauen(a.ebene, ausgabegroesse, mittel, eltern);
    const Ebenenbau bau(*ebene, "A_Uebersicht", mittel);
    bau.bild(a.Temperaturen);
    monatsleiste_ansicht(a.monatsleiste, bau, ebene);
    legende(bau, ebene, 8, 187, 430, {{farben::rot, &a.Label9}, {farben::blau, &a.Label1}});
    bau.bild(a.Monatsbilanz);
    bau.bild(a.JahrBilanz);
    legende(bau, ebene, 8, 345, 430,
            {{farben::rot, &a.Label32}, {farben::gelb, &a.Label01}, {farben::blau, &a.Label02}});
    bau.bild(a.UeberGrafik);
    bau.bild(a.UeberJahr);
    tooltip_ansicht(a.tooltip, mittel, ebene);
    return ebene;
}

QWidget* zoom_ansicht(A_Zoom& a, const Ansichtsmittel& mittel, QWidget* eltern) {
    auto* fenster = new Zoomfenster(a, eltern);
    const Ebenenbau bau(*fenster, "A_Zoom", mittel);
    monatsleiste_ansicht(a.monatsleiste, bau, fenster);
    bau.bild(a.Temperaturen);
    bau.knopf(a.Command_Schliessen);
    mittel.binder.binde(*fenster, a.ebene);
    return fenster;
}

}  // namespace velmaris
