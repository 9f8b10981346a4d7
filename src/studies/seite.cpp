#include "studies/seite.h"

#include "toolkit/auszeichnung.h"
#include "toolkit/svg_flaeche.h"

#include <utility>

namespace velmaris {
namespace {

constexpr std::string_view stil = R"(
body{font:14px/1.4 "Liberation Sans",Arial,Helvetica,sans-serif;color:#1a1a1a;margin:24px auto;max-width:1100px;padding:0 16px}
h1{font-size:24px;color:#1f5fa8;margin:0 0 4px}
h2{font-size:17px;color:#1f5fa8;margin:26px 0 6px;border-bottom:1px solid #c4c8cc;break-after:avoid}
h3{font-size:14px;margin:14px 0 4px;break-after:avoid}
table{border-collapse:collapse;width:100%}
th,td{border-bottom:1px solid #dfe2e5;padding:3px 8px;text-align:right;vertical-align:top}
th:first-child,td:first-child,th:nth-child(2){text-align:left}
th{background:#f0f2f4}
td.einheit{text-align:left;color:#5a6068}
td.text{text-align:left}
td small,th small{display:block;color:#5a6068;white-space:nowrap}
th small{font-weight:normal}
table[id^=zahlen]{width:auto}
table[id^=zahlen] th:nth-child(2){text-align:right}
tr{break-inside:avoid}
.reihe{display:flex;flex-wrap:wrap;gap:14px}
figure{margin:0;break-inside:avoid}
figcaption{font-weight:bold;margin-bottom:2px}
figure.fluss{margin-bottom:12px}
svg{border:1px solid #dfe2e5;max-width:100%;height:auto}
figure.stueck svg{border:0;display:block}
#schritte td.text{width:46%}
#schritte small{white-space:normal}
.farbe{display:inline-block;width:18px;height:10px;margin:0 5px 0 14px}
@page{size:A4;margin:14mm}
@media print{body{margin:0;max-width:none;padding:0;font-size:11px}table[id^=zahlen] td,table[id^=zahlen] th{padding:3px 4px}}
)";

}  // namespace

Seite::Seite(std::string sprache, const Wort& titel) : sprache_(std::move(sprache)) {
    zeile("<!DOCTYPE html>\n<html lang=\"" + wort({"de", "en"}) + "\">\n<head>");
    zeile("<meta charset=\"utf-8\">");
    zeile("<meta name=\"viewport\" content=\"width=device-width\">");
    zeile(element("title", wort(titel)) + element("style", stil) + "</head>\n<body>");
    zeile(element("h1", wort(titel)));
}

void Seite::zeile(std::string_view inhalt) {
    text_.append(inhalt).append("\n");
}

void Seite::abschnitt(const Wort& name) {
    zeile(element("h2", wort(name)));
}

void Seite::unterabschnitt(const Wort& name) {
    zeile(element("h3", wort(name)));
}

void Seite::absatz(std::string_view inhalt) {
    zeile(element("p", inhalt));
}

void Seite::tabelle(std::string_view id, const std::vector<std::string>& kopf,
                    const std::vector<std::vector<Zelle>>& zeilen) {
    std::string koepfe;
    for (const std::string& name : kopf)
        koepfe += element("th", name);
    zeile("<table" + attribut("id", id) + ">\n" + element("thead", element("tr", koepfe)) + "<tbody>");
    for (const std::vector<Zelle>& reihe : zeilen) {
        std::string zellen;
        for (const Zelle& zelle : reihe)
            zellen += element("td", zelle.inhalt, zelle.klasse);
        zeile(element("tr", zellen));
    }
    zeile("</tbody></table>");
}

std::string Seite::html() const {
    return text_ + "</body>\n</html>\n";
}

std::string bild(double breite, double hoehe, const std::function<void(Zeichenflaeche&)>& zeichnen) {
    SvgFlaeche flaeche(breite, hoehe);
    zeichnen(flaeche);
    return flaeche.svg();
}

std::string farbfeld(Farbe farbe) {
    return "<span class=\"farbe\" style=\"background:" + farbtext(farbe) + "\"></span>";
}

std::string bildtafel(std::string_view name, std::string_view svg, std::string_view klasse) {
    return element("figure", element("figcaption", name).append(svg), klasse);
}

}  // namespace velmaris
