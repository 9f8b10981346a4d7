#pragma once

#include "documents/report/reporttext.h"
#include "documents/reportquelle.h"

namespace velmaris {

/// The seven pages of the report, in their order.
void report_datenblatt(Reporttext& text, const Reportquelle& quelle);
void report_uebersicht(Reporttext& text, const Reportquelle& quelle);
void report_klima(Reporttext& text, const Reportquelle& quelle);
void report_waermebilanz(Reporttext& text, const Reportquelle& quelle);
void report_kuehlbilanz(Reporttext& text, const Reportquelle& quelle);
void report_heizenergie(Reporttext& text, const Reportquelle& quelle);
void report_kuehlenergie(Reporttext& text, const Reportquelle& quelle);

}  // namespace velmaris
