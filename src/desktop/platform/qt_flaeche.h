#pragma once

#include "desktop/platform/qt_schrift.h"
#include "toolkit/zeichenflaeche.h"

#include <QImage>
#include <QPainter>
#include <QRect>
#include <QSize>
#include <cstdint>
#include <optional>
#include <vector>

namespace velmaris {

/// The chart surface over an image of the screen's resolution. Its pixels are logical ones: at a device pixel
/// ratio of 2 each is a square of four; areas between two of them, round and slanted shapes use the finer
/// grid, so that curves and bars have the steps of the screen. Shapes are solid, with no half-tones at their
/// edges, but for slanted lines: these are smooth, and parallel ones of one colour that lie beside each other
/// close to a solid area. A coordinate that is not a number draws nothing.
class QtFlaeche final : public Zeichenflaeche {
  public:
    /// `groesse` in logical pixels; `verhaeltnis` is the device pixel ratio. The surface starts cleared.
    QtFlaeche(QSize groesse, double verhaeltnis, Farbe hintergrund);

    [[nodiscard]] double verhaeltnis() const { return verhaeltnis_; }

    /// An image at the top left, one image pixel to a logical one, that `Cls` shows on the background colour.
    /// If there is a finer edition of it and pixels are not logical ones, that one is shown in its stead.
    /// Where nothing is drawn over it `lies_punkt` gives the colours of `bild`, whichever of the two is seen.
    void hintergrundbild(const QImage& bild, const QImage& fein = {});

    /// All that has been drawn, with the device pixel ratio set.
    [[nodiscard]] const QImage& bild();

    [[nodiscard]] double breite() const override { return groesse_.width(); }
    [[nodiscard]] double hoehe() const override { return groesse_.height(); }
    [[nodiscard]] Farbe hintergrund() const override { return hintergrund_; }
    void Cls() override;
    void linie(double x1, double y1, double x2, double y2, Farbe farbe, int dicke = 1) override;
    void kasten(double x1, double y1, double x2, double y2, Farbe farbe) override;
    void flaeche(double x1, double y1, double x2, double y2, Farbe farbe) override;

    /// A circle that reaches `radius` pixels beyond its centre pixel; nothing if the radius is not positive.
    void kreis(double cx, double cy, double radius, Farbe rand, std::optional<Farbe> fuellung) override;
    void sektor(double cx, double cy, double radius, double von, double bis, Farbe farbe) override;
    void punkt(double x, double y, Farbe farbe) override;
    void text(double x, double y, std::string_view text, Farbe farbe = farben::schwarz) override;
    [[nodiscard]] double textbreite(std::string_view text) const override;
    [[nodiscard]] double texthoehe(std::string_view text) const override;
    void schrift(const Schrift& schrift) override;
    [[nodiscard]] Farbe lies_punkt(double x, double y) const override;

  private:
    /// A logical pixel.
    struct Punkt {
        int x;
        int y;
    };

    /// Slanted lines and edges of letters of one colour that are not in the image yet, as coverage per device
    /// pixel.
    struct Strichlage {
        Farbe farbe;
        QRect bereich;  ///< device pixels touched, empty for none
        std::vector<std::uint8_t> deckung;
    };

    [[nodiscard]] int kante(int logisch) const;
    [[nodiscard]] int mitte(int logisch) const;
    [[nodiscard]] int geraetespalte(int logisch, double rechts_davon) const;
    [[nodiscard]] QRect geraet(Punkt a, Punkt b) const;
    void beginne();
    [[nodiscard]] QRect zwischen(double links, double oben, double rechts, double unten) const;
    void fuelle(Punkt a, Punkt b, Farbe farbe);
    void fuelle(const QRect& feld, Farbe farbe);
    template <typename Innen, typename Zeilenspanne>
    void fuelle_wo(double cx, double cy, double radius, Farbe farbe, Innen innen, Zeilenspanne spanne);
    void gerade(Punkt a, Punkt b, Farbe farbe, int dicke);
    void schraege(Punkt a, Punkt b, Farbe farbe, int dicke);
    void hof_zeichnen(QPointF ort, const QString& text, Farbe farbe);
    void striche_beginnen(Farbe farbe);
    void decke(bool steil, int u, double unten, double oben);
    void striche_ablegen() const;
    void grund_malen();

    QSize groesse_;
    double verhaeltnis_;
    Farbe hintergrund_;
    bool leer_ = false;  ///< cleared, and nothing drawn since
    QImage hintergrundbild_;
    QImage feines_bild_;
    QImage grund_;  ///< what `Cls` shows if there is an image, null before it is needed
    // Pending lines belong to what is seen, so reading a pixel settles them.
    mutable QImage bild_;
    mutable Strichlage striche_;
    std::optional<QPainter> maler_;
    std::optional<Schrift> schrift_;
    const Schriftbild* schriftbild_ = nullptr;
    const Schriftbild* schrift_des_malers_ = nullptr;
};

}  // namespace velmaris
