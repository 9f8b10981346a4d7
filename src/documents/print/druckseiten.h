#pragma once

#include "documents/dokumentquelle.h"
#include "documents/print/blatt.h"

namespace velmaris {

/// What stands on the printed pages below their titles, in their order.
void seite_datenblatt_1(Blatt& blatt, const Dokumentquelle& quelle);
void seite_datenblatt_2(Blatt& blatt, const Dokumentquelle& quelle);
void seite_stunden(Blatt& blatt, const Dokumentquelle& quelle);
void seite_waermebilanz(Blatt& blatt, const Dokumentquelle& quelle);
void seite_kuehlbilanz(Blatt& blatt, const Dokumentquelle& quelle);
void seite_fensterbilanz(Blatt& blatt, const Dokumentquelle& quelle);
void seite_heizenergie(Blatt& blatt, const Dokumentquelle& quelle);
void seite_kuehlenergie(Blatt& blatt, const Dokumentquelle& quelle);

}  // namespace velmaris
