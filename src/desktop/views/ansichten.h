#pragma once

#include "charts/planes/A_Heizen.h"
#include "charts/planes/A_Kuehlen.h"
#include "charts/planes/A_Sankey.h"
#include "charts/planes/A_Uebersicht.h"
#include "charts/planes/A_Zoom.h"
#include "climate/planes/A_Klima.h"
#include "climate/planes/E_Klima.h"
#include "climate/planes/E_Klimaimport.h"
#include "desktop/widgets/ebenenbau.h"
#include "documents/planes/A_Report.h"
#include "documents/planes/Drucken.h"
#include "energy/planes/E_Energie.h"
#include "planes/E_Daemmung.h"
#include "planes/E_Fenster.h"
#include "planes/E_Gebaeude.h"
#include "planes/E_Geometrie.h"

#include <QSize>

class QWidget;

namespace velmaris {

/// Sizes of the planes in pixels.
inline constexpr QSize eingabegroesse(352, 521);
inline constexpr QSize ausgabegroesse(448, 502);

// One view per plane: each builds the widgets of its plane below `eltern` and binds them. Everything that the
// plane does is in its records, which must outlive the view.

QWidget* geometrie_ansicht(E_Geometrie& e, const Ansichtsmittel& mittel, QWidget* eltern);
QWidget* fenster_ansicht(E_Fenster& e, const Ansichtsmittel& mittel, QWidget* eltern);
QWidget* daemmung_ansicht(E_Daemmung& e, const Ansichtsmittel& mittel, QWidget* eltern);
QWidget* gebaeude_ansicht(E_Gebaeude& e, const Ansichtsmittel& mittel, QWidget* eltern);
QWidget* klima_ansicht(E_Klima& e, const Ansichtsmittel& mittel, QWidget* eltern);
QWidget* energie_ansicht(E_Energie& e, const Ansichtsmittel& mittel, QWidget* eltern);

QWidget* uebersicht_ansicht(A_Uebersicht& a, const Ansichtsmittel& mittel, QWidget* eltern);
QWidget* klima_gebaeude_ansicht(A_Klima& a, const Ansichtsmittel& mittel, QWidget* eltern);
QWidget* heizen_ansicht(A_Heizen& a, const Ansichtsmittel& mittel, QWidget* eltern);
QWidget* kuehlen_ansicht(A_Kuehlen& a, const Ansichtsmittel& mittel, QWidget* eltern);
QWidget* sankey_ansicht(A_Sankey& a, const Ansichtsmittel& mittel, QWidget* eltern);

/// The windows of the enlarged temperature chart and of the enlarged map of the world.
QWidget* zoom_ansicht(A_Zoom& a, const Ansichtsmittel& mittel, QWidget* eltern);
QWidget* zoom_klima_ansicht(E_Zoom_Klima& e, const Ansichtsmittel& mittel, QWidget* eltern);

/// The window of the report and of the temperature course, and the print dialog with its choice of a printer;
/// the dialog prints through the desktop from then on.
QWidget* report_ansicht(A_Report& a, const Ansichtsmittel& mittel, QWidget* eltern);
QWidget* druck_ansicht(Drucken& drucken, const Ansichtsmittel& mittel, QWidget* eltern);

/// The window that imports climate data.
QWidget* klimaimport_ansicht(E_Klimaimport& e, const Ansichtsmittel& mittel, QWidget* eltern);

}  // namespace velmaris
