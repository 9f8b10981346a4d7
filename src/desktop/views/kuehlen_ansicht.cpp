#include "desktop/views/ansichten.h"
#include "desktop/widgets/bildflaeche.h"
#include "desktop/widgets/ebene.h"
#include "desktop/widgets/tooltip_ansicht.h"

#include <QLabel>
#include <QWidget>

namespace velmaris {

QWidget* kuehlen_ansicht(A_Kuehlen& a, const Ansichtsmittel& mittel, QWidget* eltern) {
    struct Paar {
        Anzeige& titel;
        int oben;
        Bildfeld& monate;
        Bildfeld& jahr;
    };
    constexpr int titelhoehe = 16;
    QWidget* ebene = ebene_bauen(a.ebene, ausgabegroesse, mittel, eltern);
    const Ebenenbau bau(*ebene, "A_Kuehlen", mittel);
    for (const Paar& paar : {Paar{a.Label1, 6, a.StundenProTagMonat, a.StundenProTagJahr},
                             {a.Label10, 172, a.KuehlbedarfMonat, a.KuehlbedarfJahr},
                             {a.Label2, 338, a.KuehlGradStundenMonat, a.KuehlGradStundenJahr}}) {
        setze(bau.anzeige(paar.titel), ebene, 8, paar.oben, 430, titelhoehe);
        bau.bild(paar.monate);
        bau.bild(paar.jahr);
    }
    tooltip_ansicht(a.tooltip, mittel, ebene);
    return ebene;
}

}  // namespace velmaris
