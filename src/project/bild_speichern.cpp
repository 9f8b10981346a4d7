#include "project/bild_speichern.h"

#include "project/dateiwahl.h"
#include "toolkit/bildmitnahme.h"
#include "toolkit/fehler.h"
#include "toolkit/text.h"
#include "toolkit/textdatei.h"
#include "toolkit/wort.h"

#include <algorithm>
#include <string_view>

namespace velmaris {
namespace {

constexpr std::string_view svg_endung = ".svg";
constexpr std::string_view png_endung = ".png";
constexpr Wort svg_filter{"SVG-Bild|*.svg|", "SVG picture|*.svg|"};
constexpr Wort png_filter{"PNG-Bild|*.png", "PNG picture|*.png"};

/// The name without what a file system or a shell takes for something else.
std::string dateiname(std::string name) {
    constexpr std::string_view fremd = "/\\:*?\"<>|";
    std::ranges::replace_if(
        name, [fremd](char zeichen) { return fremd.find(zeichen) != std::string_view::npos; }, '-');
    return name;
}

Dateidialog bilddialog(const Sitzung& sitzung, const Bildfeld& bild) {
    const std::string& sprache = sitzung.p.Sprache;
    const std::string projekt = namensvorschlag(sitzung, " ");
    Dateidialog dialog{.art = Dateidialog::Art::speichern,
                       .filter = std::string(png_filter.in(sprache)),
                       .dateiname = projekt + dateiname(bildname(bild)),
                       .endungen = {std::string(png_endung)}};
    if (als_svg_moeglich(bild)) {
        dialog.filter.insert(0, svg_filter.in(sprache));
        dialog.endungen.insert(dialog.endungen.begin(), std::string(svg_endung));
    }
    return dialog;
}

}  // namespace

void bild_speichern(Sitzung& sitzung, const Bildfeld& bild, const std::function<std::string()>& png) {
    const auto datei = zieldatei_erfragen(sitzung, bilddialog(sitzung, bild));
    if (!datei) return;
    const bool als_svg = kleinschreiben(pfadtext(datei->extension())) == svg_endung;
    const std::string bytes = als_svg ? svg_bild(bild) : png();
    if (bytes.empty()) throw Dateifehler(pfadtext(*datei), kein_speicher());
    datei_ersetzen(*datei, bytes);
}

}  // namespace velmaris
