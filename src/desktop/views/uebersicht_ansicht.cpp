#include "charts/balkenfarben.h"
#include "desktop/platform/qt_text.h"
#include "desktop/views/ansichten.h"
#include "desktop/widgets/bildflaeche.h"
#include "desktop/widgets/ebene.h"
#include "desktop/widgets/legende.h"
#include "desktop/widgets/monatsleiste_ansicht.h"
#include "desktop/widgets/nebenfenster.h"
#include "desktop/widgets/tooltip_ansicht.h"

#include <QPushButton>
#include <QWidget>

namespace velmaris {

QWidget* uebersicht_ansicht(A_Uebersicht& a, const Ansichtsmittel& mittel, QWidget* eltern) {
    QWidget* ebene = ebene_bauen(a.ebene, ausgabegroesse, mittel, eltern);
    const Ebenenbau bau(*ebene, "A_Uebersicht", mittel);
    bau.bild(a.Temperaturen)->setAccessibleName(qtext(bau.text(a.Temperaturen.name)));
    monatsleiste_ansicht(a.monatsleiste, bau, ebene);
    legende(bau, ebene, 8, 187, 430, {{balkenfarben::heizen, &a.Label9}, {balkenfarben::kuehlen, &a.Label1}});
    bau.bild(a.Monatsbilanz);
    bau.bild(a.JahrBilanz);
    legende(bau, ebene, 8, 345, 430,
            {{balkenfarben::heizen, &a.Label32},
             {balkenfarben::komfort, &a.Label01},
             {balkenfarben::kuehlen, &a.Label02}});
    bau.bild(a.UeberGrafik);
    bau.bild(a.UeberJahr);
    tooltip_ansicht(a.tooltip, mittel, ebene);
    return ebene;
}

QWidget* zoom_ansicht(A_Zoom& a, const Ansichtsmittel& mittel, QWidget* eltern) {
    auto* fenster = new Nebenfenster(
        mittel.wache, [&a] { a.ebene.zeige(false); }, eltern);
    fenster->setWindowTitle(QStringLiteral("Velmaris"));
    fenster->setMinimumSize(400, 240);
    fenster->einheitsgroesse({784, 500}, {784, 500});
    fenster->anordnen = [&a](QSizeF innen) { a.anordnen(innen.width(), innen.height()); };
    const Ebenenbau bau(*fenster, "A_Zoom", mittel);
    monatsleiste_ansicht(a.monatsleiste, bau, fenster);
    bau.bild(a.Temperaturen);
    bau.knopf(a.Command_Schliessen);
    mittel.binder.binde(static_cast<QWidget&>(*fenster), a.ebene);
    return fenster;
}

}  // namespace velmaris
