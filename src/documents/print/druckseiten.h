#pragma once

#include "documents/print/blatt.h"
#include "documents/reportquelle.h"

namespace velmaris {

/// What stands on the printed pages below their titles, in their order.
void seite_datenblatt_1(Blatt& blatt, const Reportquelle& quelle);
void seite_datenblatt_2(Blatt& blatt, const Reportquelle& quelle);
void seite_stunden(Blatt& blatt, const Reportquelle& quelle);
void seite_waermebilanz(Blatt& blatt, const Reportquelle& quelle);
void seite_kuehlbilanz(Blatt& blatt, const Reportquelle& quelle);
void seite_fensterbilanz(Blatt& blatt, const Reportquelle& quelle);
void seite_heizenergie(Blatt& blatt, const Reportquelle& quelle);
void seite_kuehlenergie(Blatt& blatt, const Reportquelle& quelle);

}  // namespace velmaris
