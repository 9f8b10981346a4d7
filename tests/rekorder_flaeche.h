#pragma once

#include "toolkit/pixel.h"
#include "toolkit/zeichenflaeche.h"

#include <cstddef>
#include <string>
#include <vector>

namespace velmaris {

/// One drawing operation as it was called.
struct Zeichnung {
    enum class Art { cls, linie, kasten, flaeche, kreis, sektor, punkt, text };
    Art art = Art::cls;
    std::vector<double> zahlen;  ///< coordinates, radius and angles in the order of the call
    Farbe farbe;                 ///< of a circle the edge
    std::optional<Farbe> fuellung = std::nullopt;
    int dicke = 1;
    std::string text = {};
    Schrift schrift = {};  ///< font in force
};

/// A chart surface that writes down what is drawn and keeps its pixels, texts left out. Each
/// character of a text is 6 pixels wide and 13 high, whatever the font.
class RekorderFlaeche : public Zeichenflaeche {
  public:
    using Art = Zeichnung::Art;

    explicit RekorderFlaeche(double breite = 330, double hoehe = 140, Farbe hintergrund = {240, 240, 240});

    std::vector<Zeichnung> zeichnungen;

    /// All operations of one kind, in their order.
    [[nodiscard]] std::vector<Zeichnung> alle(Art art) const;
    /// All operations of one kind in one colour.
    [[nodiscard]] std::vector<Zeichnung> alle(Art art, Farbe farbe) const;
    /// The texts alone, in their order.
    [[nodiscard]] std::vector<std::string> texte() const;

    [[nodiscard]] double breite() const override { return breite_; }
    [[nodiscard]] double hoehe() const override { return hoehe_; }
    [[nodiscard]] Farbe hintergrund() const override { return hintergrund_; }
    void Cls() override;
    void linie(double x1, double y1, double x2, double y2, Farbe farbe, int dicke) override;
    void kasten(double x1, double y1, double x2, double y2, Farbe farbe) override;
    void flaeche(double x1, double y1, double x2, double y2, Farbe farbe) override;
    void kreis(double cx, double cy, double radius, Farbe rand, std::optional<Farbe> fuellung) override;
    void sektor(double cx, double cy, double radius, double von, double bis, Farbe farbe) override;
    void punkt(double x, double y, Farbe farbe) override;
    void text(double x, double y, std::string_view text, Farbe farbe) override;
    [[nodiscard]] double textbreite(std::string_view text) const override;
    [[nodiscard]] double texthoehe(std::string_view) const override { return 13; }
    void schrift(const Schrift& schrift) override { schrift_ = schrift; }
    [[nodiscard]] Farbe lies_punkt(double x, double y) const override;

  private:
    void merke(Zeichnung zeichnung);
    [[nodiscard]] bool enthaelt(int x, int y) const {
        return x >= 0 && x < spalten_ && y >= 0 && y < zeilen_;
    }
    [[nodiscard]] std::size_t stelle(int x, int y) const {
        return static_cast<std::size_t>(y * spalten_ + x);
    }
    void faerbe(int x, int y, Farbe farbe);
    void faerbe(const std::optional<Pixelkasten>& kasten, Farbe farbe);

    double breite_;
    double hoehe_;
    Farbe hintergrund_;
    Schrift schrift_;
    int spalten_;
    int zeilen_;
    std::vector<Farbe> raster_;  ///< row by row from the top
};

}  // namespace velmaris
