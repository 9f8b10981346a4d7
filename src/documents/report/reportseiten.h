#pragma once

#include "documents/dokumentquelle.h"
#include "documents/report/reporttext.h"

namespace velmaris {

/// The seven pages of the report, in their order.
void report_datenblatt(Reporttext& text, const Dokumentquelle& quelle);
void report_uebersicht(Reporttext& text, const Dokumentquelle& quelle);
void report_klima(Reporttext& text, const Dokumentquelle& quelle);
void report_waermebilanz(Reporttext& text, const Dokumentquelle& quelle);
void report_kuehlbilanz(Reporttext& text, const Dokumentquelle& quelle);
void report_heizenergie(Reporttext& text, const Dokumentquelle& quelle);
void report_kuehlenergie(Reporttext& text, const Dokumentquelle& quelle);

}  // namespace velmaris
