#pragma once

#include "toolkit/zeichenflaeche.h"

#include <functional>
#include <string>
#include <vector>

namespace velmaris::test {

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

/// A surface that writes down what is drawn. Each character of a text is 6 pixels wide and 13 high.
class Testflaeche : public Zeichenflaeche {
  public:
    using Art = Zeichnung::Art;

    explicit Testflaeche(double breite = 330, double hoehe = 140) : breite_(breite), hoehe_(hoehe) {}

    /// A surface on which `zeichnen` has run.
    Testflaeche(double breite, double hoehe, const std::function<void(Zeichenflaeche&)>& zeichnen)
        : Testflaeche(breite, hoehe) {
        zeichnen(*this);
    }

    std::vector<Zeichnung> zeichnungen;

    /// All operations of one kind, in their order.
    [[nodiscard]] std::vector<Zeichnung> alle(Art art) const;
    /// All operations of one kind in one colour.
    [[nodiscard]] std::vector<Zeichnung> alle(Art art, Farbe farbe) const;
    /// The texts alone, in their order.
    [[nodiscard]] std::vector<std::string> texte() const;

    [[nodiscard]] double breite() const override { return breite_; }
    [[nodiscard]] double hoehe() const override { return hoehe_; }
    [[nodiscard]] Farbe hintergrund() const override { return {240, 240, 240}; }
    void Cls() override { merke({.art = Art::cls, .zahlen = {}, .farbe = hintergrund()}); }
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
    [[nodiscard]] Farbe lies_punkt(double, double) const override { return hintergrund(); }

  private:
    void merke(Zeichnung zeichnung);

    double breite_;
    double hoehe_;
    Schrift schrift_;
};

}  // namespace velmaris::test
