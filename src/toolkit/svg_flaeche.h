#pragma once

#include "toolkit/pixel.h"
#include "toolkit/zeichenflaeche.h"

#include <string>
#include <string_view>

namespace velmaris {

/// A chart surface that writes an SVG document. What lies along the axes is set on whole pixels and stays
/// crisp at any scale; neighbouring pieces of one colour share one path. It has no pixels to read.
class SvgFlaeche : public Zeichenflaeche {
  public:
    /// Width and height in pixels.
    SvgFlaeche(double breite, double hoehe, Farbe hintergrund = farben::weiss);

    /// The document of what has been drawn since the last `Cls`.
    [[nodiscard]] std::string svg() const;

    [[nodiscard]] double breite() const override { return breite_; }
    [[nodiscard]] double hoehe() const override { return hoehe_; }
    [[nodiscard]] Farbe hintergrund() const override { return hintergrund_; }
    void Cls() override;
    void linie(double x1, double y1, double x2, double y2, Farbe farbe, int dicke) override;
    void kasten(double x1, double y1, double x2, double y2, Farbe farbe) override;
    void flaeche(double x1, double y1, double x2, double y2, Farbe farbe) override;
    void kreis(double cx, double cy, double radius, Farbe rand, std::optional<Farbe> fuellung) override;
    void sektor(double cx, double cy, double radius, double von, double bis, Farbe farbe) override;
    [[nodiscard]] bool umriss(const Umriss& umriss, Farbe farbe) override;
    void punkt(double x, double y, Farbe farbe) override;
    void text(double x, double y, std::string_view text, Farbe farbe) override;
    [[nodiscard]] double textbreite(std::string_view text) const override;
    [[nodiscard]] double texthoehe(std::string_view text) const override;
    void schrift(const Schrift& schrift) override { schrift_ = schrift; }
    [[nodiscard]] Farbe lies_punkt(double, double) const override { return hintergrund_; }

  private:
    void fuelle(const Pixelkasten& kasten, Farbe farbe);
    void pfad(const std::string& attribute, const std::string& verlauf);
    void element(const std::string& text);

    double breite_;
    double hoehe_;
    Farbe hintergrund_;
    Schrift schrift_;
    std::string inhalt_;     ///< finished elements
    std::string attribute_;  ///< of the open path
    std::string verlauf_;    ///< of the open path, empty without one
};

}  // namespace velmaris
