#include "desktop/widgets/tooltip_ansicht.h"

#include "desktop/widgets/tippfenster.h"

#include <QLabel>

namespace velmaris {

void tooltip_ansicht(Tooltip& tooltip, const Ansichtsmittel& mittel, QWidget* ebene) {
    const auto ort = [](const QPoint& ecke) {
        return Platz{.links = static_cast<double>(ecke.x()), .oben = static_cast<double>(ecke.y())};
    };
    auto* fenster = new Tippfenster(ebene);
    mittel.binder.binde(*fenster, tooltip.Frame_ToolTip);
    mittel.binder.binde(*fenster->text(), tooltip.Label_Tooltip);
    bei_mausbewegung(*fenster->text(), mittel.wache, [&tooltip] { tooltip.Label_Tooltip_MouseMove(); });
    bei_mausdruck(*fenster->text(), mittel.wache, [&tooltip] { tooltip.Label_Tooltip_MouseDown(); });
    bei_ereignis(*fenster, QEvent::Leave, mittel.wache, [&tooltip] { tooltip.verlassen(); });
    bei_ereignis(*ebene, QEvent::WindowDeactivate, mittel.wache, [&tooltip] { tooltip.verlassen(); });
    tooltip.ebenenlage = [ebene, ort] {
        return Ebenenlage{.haupt = ort(ebene->window()->frameGeometry().topLeft()),
                          .ebene = ort(ebene->pos()),
                          .hoehe = static_cast<double>(ebene->height())};
    };
    tooltip.platzbedarf = [fenster] {
        const QSizeF bedarf = fenster->sizeHint();
        return Groesse{.breite = bedarf.width(), .hoehe = bedarf.height()};
    };
}

}  // namespace velmaris
