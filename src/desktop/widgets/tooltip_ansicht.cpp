#include "desktop/widgets/tooltip_ansicht.h"

#include "desktop/platform/massstab.h"
#include "desktop/widgets/tippfenster.h"

#include <QLabel>

namespace velmaris {

void tooltip_ansicht(Tooltip& tooltip, const Ansichtsmittel& mittel, QWidget* ebene) {
    const auto ort = [](QPointF ecke, double s) {
        return Platz{.links = ecke.x() / s, .oben = ecke.y() / s};
    };
    auto* fenster = new Tippfenster(ebene);
    mittel.binder.binde(*fenster, tooltip.Frame_ToolTip);
    mittel.binder.binde(*fenster->text(), tooltip.Label_Tooltip);
    bei_mausbewegung(*fenster->text(), mittel.wache, [&tooltip] { tooltip.Label_Tooltip_MouseMove(); });
    bei_mausdruck(*fenster->text(), mittel.wache, [&tooltip] { tooltip.Label_Tooltip_MouseDown(); });
    bei_ereignis(*fenster, QEvent::Leave, mittel.wache, [&tooltip] { tooltip.verlassen(); });
    bei_ereignis(*ebene, QEvent::WindowDeactivate, mittel.wache, [&tooltip] { tooltip.verlassen(); });
    tooltip.ebenenlage = [ebene, ort] {
        const double s = massstab(*ebene);
        const QPoint rahmenecke = ebene->window()->frameGeometry().topLeft();
        return Ebenenlage{.haupt = ort(rahmenecke, s),
                          .ebene = ort(ebene->parentWidget()->pos() + ebene->pos(), s),
                          .hoehe = ebene->height() / s};
    };
    tooltip.platzbedarf = [fenster] {
        const QSizeF bedarf = QSizeF(fenster->sizeHint()) / massstab(*fenster);
        return Groesse{.breite = bedarf.width(), .hoehe = bedarf.height()};
    };
}

}  // namespace velmaris
