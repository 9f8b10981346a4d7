#include "desktop/tooltip_ansicht.h"

#include "desktop/tippfenster.h"

#include <QLabel>

namespace velmaris {

void tooltip_ansicht(Tooltip& tooltip, const Ansichtsmittel& mittel, QWidget* ebene) {
    auto* fenster = new Tippfenster(ebene);
    mittel.binder.binde(*fenster, tooltip.Frame_ToolTip);
    mittel.binder.binde(*fenster->text(), tooltip.Label_Tooltip);
    bei_mausbewegung(*fenster->text(), mittel.wache, [&tooltip] { tooltip.Label_Tooltip_MouseMove(); });
    tooltip.ebenenlage = [ebene] {
        const QPoint haupt = ebene->window()->frameGeometry().topLeft();
        const QPoint in_haupt = ebene->pos();
        return Ebenenlage{.haupt = {static_cast<double>(haupt.x()), static_cast<double>(haupt.y())},
                          .ebene = {static_cast<double>(in_haupt.x()), static_cast<double>(in_haupt.y())}};
    };
}

}  // namespace velmaris
