#include "desktop/views/ansichten.h"
#include "desktop/widgets/bildflaeche.h"
#include "desktop/widgets/ebene.h"

#include <QLabel>

namespace velmaris {

QWidget* sankey_ansicht(A_Sankey& a, const Ansichtsmittel& mittel, QWidget* eltern) {
    QWidget* ebene = ebene_bauen(a.ebene, ausgabegroesse, mittel, eltern);
    const Ebenenbau bau(*ebene, "A_Sankey", mittel);
    for (const auto& [titel, bild] : {std::pair{&a.Label1, &a.Sankey}, {&a.Label2, &a.Sankey_Kühlen}}) {
        bau.anzeige(*titel);
        bau.bild(*bild);
    }
    return ebene;
}

}  // namespace velmaris
