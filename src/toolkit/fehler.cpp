#include "toolkit/fehler.h"

namespace velmaris {
namespace {

std::string ort_in_datei(const std::string& datei, std::string_view zeilenwort, int zeile,
                         const std::string& feld) {
    std::string text = datei;
    if (zeile > 0) text.append(", ").append(zeilenwort).append(" ").append(std::to_string(zeile));
    if (!feld.empty()) text.append(" (").append(feld).append(")");
    return text + ": ";
}

Zweisprachig ort_der_groesse(const std::string& feld) {
    return feld.empty() ? Zweisprachig{} : Zweisprachig{feld + ": ", feld + ": "};
}

}  // namespace

Laufzeitfehler::Laufzeitfehler(const Zweisprachig& ort, Zweisprachig grund, std::string feld)
    : std::runtime_error(ort.de + grund.de),
      grund_(std::move(grund)),
      meldung_{ort.de + grund_.de, ort.en + grund_.en},
      feld_(std::move(feld)) {}

Laufzeitfehler::Laufzeitfehler(Zweisprachig grund, std::string feld)
    : Laufzeitfehler(ort_der_groesse(feld), std::move(grund), feld) {}

Dateifehler::Dateifehler(std::string datei, Zweisprachig grund, int zeile, const std::string& feld)
    : Laufzeitfehler({ort_in_datei(datei, "Zeile", zeile, feld), ort_in_datei(datei, "line", zeile, feld)},
                     std::move(grund), feld),
      datei_(std::move(datei)),
      zeile_(zeile) {}

Zweisprachig kein_speicher() {
    return {"nicht genug Speicher", "not enough memory"};
}

}  // namespace velmaris
