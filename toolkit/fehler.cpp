#include "toolkit/fehler.h"

namespace velmaris {
namespace {

std::string ort(const std::string& datei, std::string_view zeilenwort, int zeile, const std::string& feld) {
    std::string text = datei;
    if (zeile > 0) text.append(", ").append(zeilenwort).append(" ").append(std::to_string(zeile));
    if (!feld.empty()) text.append(" (").append(feld).append(")");
    return text + ": ";
}

}  // namespace

Dateifehler::Dateifehler(std::string datei, Zweisprachig text, int zeile, const std::string& feld)
    : Laufzeitfehler({ort(datei, "Zeile", zeile, feld) + text.de, ort(datei, "line", zeile, feld) + text.en},
                     feld),
      datei_(std::move(datei)),
      zeile_(zeile) {}

}  // namespace velmaris
