#pragma once

#include "toolkit/wort.h"
#include "toolkit/zeichenflaeche.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace velmaris {

/// What one sees in a cell: text that stands as it is given (masked by the caller) and its class in the
/// page's style: "" a number, "text", "einheit".
struct Zelle {
    std::string inhalt;
    std::string_view klasse;
};

/// An HTML page under construction that needs nothing else: the style stands in its head, charts are inline
/// SVG. One look for all pages of the studies, on the screen and on A4.
class Seite {
  public:
    /// An empty page with its title as the first heading, in the language ("d", "e").
    Seite(std::string sprache, const Wort& titel);

    [[nodiscard]] const std::string& sprache() const { return sprache_; }
    [[nodiscard]] std::string wort(const Wort& w) const { return std::string(w.in(sprache_)); }

    /// A piece of HTML as it stands.
    void zeile(std::string_view inhalt);

    void abschnitt(const Wort& name);       ///< a heading
    void unterabschnitt(const Wort& name);  ///< a smaller one
    void absatz(std::string_view inhalt);   ///< a paragraph of HTML

    /// A table with its name for whoever reads the page by program; the headings are HTML, too.
    void tabelle(std::string_view id, const std::vector<std::string>& kopf,
                 const std::vector<std::vector<Zelle>>& zeilen);

    /// The finished page.
    [[nodiscard]] std::string html() const;

  private:
    std::string sprache_;
    std::string text_;
};

/// A drawing of a size (pixels) as inline SVG.
[[nodiscard]] std::string bild(double breite, double hoehe,
                               const std::function<void(Zeichenflaeche&)>& zeichnen);

/// A swatch of a colour in front of what it stands for.
[[nodiscard]] std::string farbfeld(Farbe farbe);

/// A drawing (inline SVG) with its caption, which is HTML.
[[nodiscard]] std::string bildtafel(std::string_view name, std::string_view svg,
                                    std::string_view klasse = {});

}  // namespace velmaris
