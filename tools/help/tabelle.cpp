#include "tools/help/tabelle.h"

namespace velmaris::hilfe {

Tabelle::Tabelle(const std::vector<std::string>& kopf)
    : text_("<table border=\"1\" cellspacing=\"0\" cellpadding=\"4\">\n") {
    reihe("th", kopf);
}

void Tabelle::zeile(const std::vector<std::string>& zellen) {
    reihe("td", zellen);
}

void Tabelle::reihe(std::string_view marke, const std::vector<std::string>& zellen) {
    text_ += "<tr>";
    for (const std::string& zelle : zellen) {
        text_.append("<").append(marke).append(">").append(zelle).append("</").append(marke).append(">");
    }
    text_ += "</tr>\n";
}

}  // namespace velmaris::hilfe
