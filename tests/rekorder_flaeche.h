#pragma once

#include "toolkit/zeichenflaeche.h"

#include <functional>
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

/// A chart surface that writes down what is drawn. Each character of a text is 6 pixels wide and 13 high,
/// whatever the font.
class RekorderFlaeche : public Zeichenflaeche {
  public:
    using Art = Zeichnung::Art;

    explicit RekorderFlaeche(double breite = 330, double hoehe = 140, Farbe hintergrund = {240, 240, 240})
        : breite_(breite), hoehe_(hoehe), hintergrund_(hintergrund) {}

    /// A surface on which `zeichnen` has run.
    RekorderFlaeche(double breite, double hoehe, const std::function<void(Zeichenflaeche&)>& zeichnen)
        : RekorderFlaeche(breite, hoehe) {
        zeichnen(*this);
    }

    std::vector<Zeichnung> zeichnungen;

    /// All operations of one kind, or of one kind in one colour, in their order.
    [[nodiscard]] std::vector<Zeichnung> alle(Art art, std::optional<Farbe> farbe = std::nullopt) const;
    /// The texts alone, in their order.
    [[nodiscard]] std::vector<std::string> texte() const;

    [[nodiscard]] double breite() const override { return breite_; }
    [[nodiscard]] double hoehe() const override { return hoehe_; }
    [[nodiscard]] Farbe hintergrund() const override { return hintergrund_; }
    void Cls() override { merke({.zahlen = {}, .farbe = hintergrund_}); }
    void linie(double x1, double y1, double x2, double y2, Farbe farbe, int dicke) override {
        merke({.art = Art::linie, .zahlen = {x1, y1, x2, y2}, .farbe = farbe, .dicke = dicke});
    }
    void kasten(double x1, double y1, double x2, double y2, Farbe farbe) override {
        merke({.art = Art::kasten, .zahlen = {x1, y1, x2, y2}, .farbe = farbe});
    }
    void flaeche(double x1, double y1, double x2, double y2, Farbe farbe) override {
        merke({.art = Art::flaeche, .zahlen = {x1, y1, x2, y2}, .farbe = farbe});
    }
    void kreis(double cx, double cy, double radius, Farbe rand, std::optional<Farbe> fuellung) override {
        merke({.art = Art::kreis, .zahlen = {cx, cy, radius}, .farbe = rand, .fuellung = fuellung});
    }
    void sektor(double cx, double cy, double radius, double von, double bis, Farbe farbe) override {
        merke({.art = Art::sektor, .zahlen = {cx, cy, radius, von, bis}, .farbe = farbe});
    }
    void punkt(double x, double y, Farbe farbe) override {
        merke({.art = Art::punkt, .zahlen = {x, y}, .farbe = farbe});
    }
    void text(double x, double y, std::string_view text, Farbe farbe) override {
        merke({.art = Art::text, .zahlen = {x, y}, .farbe = farbe, .text = std::string(text)});
    }
    [[nodiscard]] double textbreite(std::string_view text) const override;
    [[nodiscard]] double texthoehe(std::string_view) const override { return 13; }
    void schrift(const Schrift& schrift) override { schrift_ = schrift; }
    /// The colour of the last drawing at the pixel; texts and outlines of boxes leave no pixels.
    [[nodiscard]] Farbe lies_punkt(double x, double y) const override;

  private:
    void merke(Zeichnung zeichnung) { zeichnungen.emplace_back(std::move(zeichnung)).schrift = schrift_; }

    double breite_;
    double hoehe_;
    Farbe hintergrund_;
    Schrift schrift_;
};

}  // namespace velmaris
