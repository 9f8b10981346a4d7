#include "desktop/platform/qt_flaeche.h"

#include "desktop/platform/qt_text.h"
#include "toolkit/zahlen.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace velmaris {
namespace {

/// Far beyond any screen; keeps sums of coordinates inside the integers.
constexpr double weitester_pixel = 32767;

template <typename... Zahl>
bool zahlen(Zahl... zahl) {
    return (... && !std::isnan(zahl));
}

int pixel(double koordinate) {
    return static_cast<int>(std::clamp(runden(koordinate), -weitester_pixel, weitester_pixel));
}

QRgb rgb(Farbe farbe) {
    return qRgb(farbe.r, farbe.g, farbe.b);
}

Farbe farbe_von(QRgb wert) {
    return {static_cast<std::uint8_t>(qRed(wert)), static_cast<std::uint8_t>(qGreen(wert)),
            static_cast<std::uint8_t>(qBlue(wert))};
}

/// Mixes `deckung`/255 of a colour into a pixel.
QRgb gemischt(QRgb unten, Farbe oben, int deckung) {
    const auto anteil = [deckung](int u, int o) {
        return u + ((o - u) * deckung + (o > u ? 127 : -127)) / 255;
    };
    return qRgb(anteil(qRed(unten), oben.r), anteil(qGreen(unten), oben.g), anteil(qBlue(unten), oben.b));
}

std::uint8_t gedeckt(int vorher, int dazu) {
    return static_cast<std::uint8_t>(std::min(255, vorher + dazu));
}

/// A piece of a row, logical pixels from the middle of what is drawn.
struct Spanne {
    double von = -std::numeric_limits<double>::infinity();
    double bis = std::numeric_limits<double>::infinity();
};

/// The sector between two angles, counter-clockwise, about the origin with y downward.
class Winkelraum {
  public:
    Winkelraum(double von, double bis)
        : von_{std::cos(von), -std::sin(von)}, bis_{std::cos(bis), -std::sin(bis)} {
        constexpr double voll = 2 * std::numbers::pi;
        const double weite = bis - von;
        weite_ = weite >= voll ? voll : weite - voll * std::floor(weite / voll);
    }

    /// True inside, and within half a pixel of the two radii.
    [[nodiscard]] bool enthaelt(double x, double y) const {
        if (weite_ >= 2 * std::numbers::pi || auf_radius(von_, x, y) || auf_radius(bis_, x, y)) return true;
        const bool nach_von = kreuz(von_, x, y) >= 0;
        const bool vor_bis = kreuz(bis_, x, y) <= 0;
        return weite_ <= std::numbers::pi ? nach_von && vor_bis : nach_von || vor_bis;
    }

    /// Where in row y of the plane points can be inside.
    [[nodiscard]] Spanne spanne(double y) const {
        Spanne ergebnis;
        if (weite_ > std::numbers::pi) return ergebnis;
        einengen(ergebnis, von_.y, von_.x * y - 0.5);
        einengen(ergebnis, -bis_.y, -bis_.x * y - 0.5);
        return ergebnis;
    }

  private:
    struct Richtung {
        double x;
        double y;
    };

    /// Leaves of a piece what satisfies `steigung` * x >= `grenze`.
    static void einengen(Spanne& spanne, double steigung, double grenze) {
        if (steigung > 0) spanne.von = std::max(spanne.von, grenze / steigung);
        if (steigung < 0) spanne.bis = std::min(spanne.bis, grenze / steigung);
    }

    /// Distance of the point from the ray's line, positive on its counter-clockwise side.
    [[nodiscard]] static double kreuz(Richtung r, double x, double y) { return r.y * x - r.x * y; }

    [[nodiscard]] static bool auf_radius(Richtung r, double x, double y) {
        return r.x * x + r.y * y >= 0 && std::abs(kreuz(r, x, y)) <= 0.5;
    }

    Richtung von_;
    Richtung bis_;
    double weite_ = 0;
};

}  // namespace

QtFlaeche::QtFlaeche(QSize groesse, double verhaeltnis, Farbe hintergrund)
    : groesse_(groesse),
      verhaeltnis_(verhaeltnis),
      hintergrund_(hintergrund),
      bild_(kante(groesse.width()), kante(groesse.height()), QImage::Format_RGB32) {
    bild_.setDevicePixelRatio(verhaeltnis);
    schrift({});
    Cls();
}

void QtFlaeche::hintergrundbild(const QImage& bild, const QImage& fein) {
    if (bild.cacheKey() == hintergrundbild_.cacheKey() && fein.cacheKey() == feines_bild_.cacheKey()) return;
    grund_ = {};
    leer_ = false;
    hintergrundbild_ = bild;
    feines_bild_ = fein;
}

const QImage& QtFlaeche::bild() {
    striche_ablegen();
    maler_.reset();
    return bild_;
}

/// The device pixel at which a logical pixel begins.
int QtFlaeche::kante(int logisch) const {
    return static_cast<int>(std::lround(logisch * verhaeltnis_));
}

/// The column of the device pixel nearest to a place that many logical pixels right of the centre of another.
int QtFlaeche::geraetespalte(int logisch, double rechts_davon) const {
    return static_cast<int>(std::clamp((logisch + 0.5 + rechts_davon) * verhaeltnis_ - 0.5,
                                       -weitester_pixel * 8, weitester_pixel * 8));
}

/// The device pixel in the middle of a logical pixel, the first one of two.
int QtFlaeche::mitte(int logisch) const {
    return (kante(logisch) + kante(logisch + 1) - 1) / 2;
}

/// The device pixels of all logical pixels between two corners, both included, inside the image.
QRect QtFlaeche::geraet(Punkt a, Punkt b) const {
    const auto [links, rechts] = std::minmax(a.x, b.x);
    const auto [oben, unten] = std::minmax(a.y, b.y);
    return zwischen(links, oben, rechts + 1.0, unten + 1.0);
}

/// The device pixels between edges in logical pixels, inside the image.
QRect QtFlaeche::zwischen(double links, double oben, double rechts, double unten) const {
    const auto ganz = [this](double kante) { return static_cast<int>(std::lround(kante * verhaeltnis_)); };
    const QPoint anfang(ganz(links), ganz(oben));
    const QPoint ende(ganz(rechts) - 1, ganz(unten) - 1);
    return QRect(anfang, ende) & bild_.rect();
}

/// Before anything but slanted lines is drawn: lines that wait lie under it.
void QtFlaeche::beginne() {
    striche_ablegen();
    leer_ = false;
}

void QtFlaeche::fuelle(Punkt a, Punkt b, Farbe farbe) {
    fuelle(geraet(a, b), farbe);
}

void QtFlaeche::fuelle(const QRect& feld, Farbe farbe) {
    beginne();
    for (int y = feld.top(); y <= feld.bottom(); ++y) {
        auto* zeile = reinterpret_cast<QRgb*>(bild_.scanLine(y));
        std::fill_n(zeile + feld.left(), feld.width(), rgb(farbe));
    }
}

/// Fills what `innen` accepts of the disc about the centre of pixel (cx, cy); it is given the offset of
/// a device pixel's centre from there, in logical pixels. `spanne` tells for a row where to look.
template <typename Innen, typename Zeilenspanne>
void QtFlaeche::fuelle_wo(double cx, double cy, double radius, Farbe farbe, Innen innen,
                          Zeilenspanne spanne) {
    beginne();
    const Punkt mitte{pixel(cx), pixel(cy)};
    const int r = pixel(std::ceil(radius));
    const QRect feld = geraet({mitte.x - r, mitte.y - r}, {mitte.x + r, mitte.y + r});
    const double aussen = (radius + 0.5) * (radius + 0.5);
    for (int j = feld.top(); j <= feld.bottom(); ++j) {
        auto* zeile = reinterpret_cast<QRgb*>(bild_.scanLine(j));
        const double y = (j + 0.5) / verhaeltnis_ - mitte.y - 0.5;
        const double halb = std::sqrt(std::max(0.0, aussen - y * y));
        const Spanne suche = spanne(y);
        const int links = geraetespalte(mitte.x, std::max(suche.von, -halb)) - 1;
        const int rechts = geraetespalte(mitte.x, std::min(suche.bis, halb)) + 1;
        for (int i = std::max(links, feld.left()); i <= std::min(rechts, feld.right()); ++i) {
            const double x = (i + 0.5) / verhaeltnis_ - mitte.x - 0.5;
            if (x * x + y * y <= aussen && innen(x, y)) zeile[i] = rgb(farbe);
        }
    }
}

void QtFlaeche::Cls() {
    if (leer_) return;
    striche_ablegen();
    leer_ = true;
    maler_.reset();
    if (hintergrundbild_.isNull()) {
        bild_.fill(rgb(hintergrund_));
        return;
    }
    if (grund_.isNull()) grund_malen();
    std::copy_n(grund_.constBits(), grund_.sizeInBytes(), bild_.bits());
}

void QtFlaeche::grund_malen() {
    grund_ = QImage(bild_.size(), bild_.format());
    grund_.fill(rgb(hintergrund_));
    QPainter maler(&grund_);
    if (verhaeltnis_ == 1 || feines_bild_.isNull()) {
        maler.scale(verhaeltnis_, verhaeltnis_);
        maler.drawImage(QPointF(0, 0), hintergrundbild_);
    } else {
        const QSize pixel(kante(hintergrundbild_.width()), kante(hintergrundbild_.height()));
        maler.drawImage(QPoint(0, 0),
                        feines_bild_.scaled(pixel, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }
}

void QtFlaeche::linie(double x1, double y1, double x2, double y2, Farbe farbe, int dicke) {
    if (!zahlen(x1, y1, x2, y2)) return;
    const Punkt a{pixel(x1), pixel(y1)};
    const Punkt b{pixel(x2), pixel(y2)};
    if (a.x == b.x || a.y == b.y) {
        gerade(a, b, farbe, dicke);
    } else {
        schraege(a, b, farbe, dicke);
    }
}

/// A horizontal or vertical line without its last pixel.
void QtFlaeche::gerade(Punkt a, Punkt b, Farbe farbe, int dicke) {
    if (a.x == b.x && a.y == b.y) return;
    const int davor = (dicke - 1) / 2;
    const int dahinter = dicke / 2;
    const auto kuerzer = [](int anfang, int ende) { return ende > anfang ? ende - 1 : ende + 1; };
    if (a.y == b.y) {
        fuelle({a.x, a.y - davor}, {kuerzer(a.x, b.x), a.y + dahinter}, farbe);
    } else {
        fuelle({a.x - davor, a.y}, {a.x + dahinter, kuerzer(a.y, b.y)}, farbe);
    }
}

/// A slanted line without its last pixel along its longer side. A thin one is one pixel thick across that
/// side, so that neighbours at a distance of one pixel meet exactly.
void QtFlaeche::schraege(Punkt a, Punkt b, Farbe farbe, int dicke) {
    striche_beginnen(farbe);
    const bool steil = std::abs(b.y - a.y) > std::abs(b.x - a.x);
    const Punkt p = steil ? Punkt{a.y, a.x} : a;
    const Punkt q = steil ? Punkt{b.y, b.x} : b;
    const double steigung = static_cast<double>(q.y - p.y) / (q.x - p.x);
    const double quer = (dicke == 1 ? 1.0 : dicke * std::hypot(1.0, steigung)) * verhaeltnis_;
    const int von = q.x > p.x ? p.x : q.x + 1;
    const int bis = q.x > p.x ? q.x : p.x + 1;
    const int laenge = steil ? bild_.height() : bild_.width();
    for (int u = std::max(0, kante(von)); u < std::min(laenge, kante(bis)); ++u) {
        const double mitte = (p.y + 0.5) * verhaeltnis_ + steigung * (u + 0.5 - (p.x + 0.5) * verhaeltnis_);
        decke(steil, u, mitte - quer / 2, mitte + quer / 2);
    }
}

/// Makes ready for coverage of a colour; that of another one is settled first.
void QtFlaeche::striche_beginnen(Farbe farbe) {
    leer_ = false;
    if (striche_.farbe != farbe) striche_ablegen();
    striche_.farbe = farbe;
    striche_.deckung.resize(static_cast<std::size_t>(bild_.width()) *
                            static_cast<std::size_t>(bild_.height()));
}

/// Adds to the coverage of column u, or of row u if `steil`, what lies between two places along it.
void QtFlaeche::decke(bool steil, int u, double unten, double oben) {
    const int anfang = std::max(0, static_cast<int>(std::floor(unten)));
    const int ende = std::min(steil ? bild_.width() : bild_.height(), static_cast<int>(std::ceil(oben)));
    if (anfang >= ende) return;
    const std::ptrdiff_t breite = bild_.width();
    const std::ptrdiff_t schritt = steil ? 1 : breite;
    std::uint8_t* deckung = striche_.deckung.data() + (steil ? u * breite : u) + anfang * schritt;
    for (int v = anfang; v < ende; ++v, deckung += schritt) {
        const double anteil = std::min(v + 1.0, oben) - std::max(static_cast<double>(v), unten);
        *deckung = gedeckt(*deckung, static_cast<int>(anteil * 255 + 0.5));
    }
    striche_.bereich |= steil ? QRect(anfang, u, ende - anfang, 1) : QRect(u, anfang, 1, ende - anfang);
}

void QtFlaeche::striche_ablegen() const {
    const QRect feld = striche_.bereich;
    if (feld.isEmpty()) return;
    const QRgb voll = rgb(striche_.farbe);
    for (int y = feld.top(); y <= feld.bottom(); ++y) {
        auto* zeile = reinterpret_cast<QRgb*>(bild_.scanLine(y));
        std::uint8_t* deckung =
            striche_.deckung.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(bild_.width());
        for (int x = feld.left(); x <= feld.right(); ++x) {
            if (deckung[x] == 255) {
                zeile[x] = voll;
            } else if (deckung[x] != 0) {
                zeile[x] = gemischt(zeile[x], striche_.farbe, deckung[x]);
            }
        }
        std::fill(deckung + feld.left(), deckung + feld.right() + 1, std::uint8_t{0});
    }
    striche_.bereich = {};
}

void QtFlaeche::kasten(double x1, double y1, double x2, double y2, Farbe farbe) {
    if (!zahlen(x1, y1, x2, y2)) return;
    const Punkt a{pixel(x1), pixel(y1)};
    const Punkt b{pixel(x2), pixel(y2)};
    fuelle(a, {b.x, a.y}, farbe);
    fuelle({a.x, b.y}, b, farbe);
    fuelle(a, {a.x, b.y}, farbe);
    fuelle({b.x, a.y}, b, farbe);
}

void QtFlaeche::flaeche(double x1, double y1, double x2, double y2, Farbe farbe) {
    if (!zahlen(x1, y1, x2, y2)) return;
    if (verhaeltnis_ == 1) {
        fuelle({pixel(x1), pixel(y1)}, {pixel(x2), pixel(y2)}, farbe);
        return;
    }
    const auto ort = [](double k) { return std::clamp(k, -weitester_pixel, weitester_pixel); };
    const auto [links, rechts] = std::minmax({ort(x1), ort(x2)});
    const auto [oben, unten] = std::minmax({ort(y1), ort(y2)});
    fuelle(zwischen(links, oben, rechts + 1, unten + 1), farbe);
}

void QtFlaeche::kreis(double cx, double cy, double radius, Farbe rand, std::optional<Farbe> fuellung) {
    if (!zahlen(cx, cy, radius) || radius <= 0) return;
    const double innen = (radius - 0.5) * (radius - 0.5);
    const auto ueberall = [](double) { return Spanne{}; };
    const auto im_rand = [&](double x, double y) { return radius < 0.5 || x * x + y * y > innen; };
    if (fuellung)
        fuelle_wo(
            cx, cy, radius, *fuellung, [](double, double) { return true; }, ueberall);
    fuelle_wo(cx, cy, radius, rand, im_rand, ueberall);
}

void QtFlaeche::sektor(double cx, double cy, double radius, double von, double bis, Farbe farbe) {
    if (!zahlen(cx, cy, radius, von, bis) || radius <= 0) return;
    const Winkelraum raum(von, bis);
    fuelle_wo(
        cx, cy, radius, farbe, [&](double x, double y) { return raum.enthaelt(x, y); },
        [&](double y) { return raum.spanne(y); });
}

void QtFlaeche::punkt(double x, double y, Farbe farbe) {
    flaeche(x, y, x, y, farbe);
}

void QtFlaeche::text(double x, double y, std::string_view text, Farbe farbe) {
    if (!zahlen(x, y)) return;
    beginne();
    const QPointF ort(pixel(x), pixel(y) + schriftbild_->masse.ascent());
    if (schrift_ && schrift_->hof) hof_zeichnen(ort, qtext(text), *schrift_->hof);
    if (!maler_) {
        maler_.emplace(&bild_);
        schrift_des_malers_ = nullptr;
    }
    if (schrift_des_malers_ != schriftbild_) {
        schrift_des_malers_ = schriftbild_;
        maler_->setFont(schriftbild_->font);
    }
    maler_->setPen(qfarbe(farbe));
    maler_->drawText(ort, qtext(text));
}

/// The edge around the letters of a text that begins at `ort` on the base line.
void QtFlaeche::hof_zeichnen(QPointF ort, const QString& text, Farbe farbe) {
    striche_beginnen(farbe);
    for (const auto& [links_oben, hof] : schriftbild_->hoefe.um(text, ort * verhaeltnis_, verhaeltnis_)) {
        const QRect feld = QRect(links_oben, hof->size()) & bild_.rect();
        for (int y = feld.top(); y <= feld.bottom(); ++y) {
            const std::uint8_t* von = hof->constScanLine(y - links_oben.y());
            std::uint8_t* nach = striche_.deckung.data() + std::ptrdiff_t{y} * bild_.width();
            for (int x = feld.left(); x <= feld.right(); ++x)
                nach[x] = gedeckt(nach[x], von[x - links_oben.x()]);
        }
        striche_.bereich |= feld;
    }
    striche_ablegen();
}

double QtFlaeche::textbreite(std::string_view text) const {
    return schriftbild_->breite(text);
}

double QtFlaeche::texthoehe(std::string_view) const {
    return schriftbild_->masse.height();
}

void QtFlaeche::schrift(const Schrift& schrift) {
    if (schrift_ == schrift) return;
    schrift_ = schrift;
    schriftbild_ = &schriftbild(schrift);
}

Farbe QtFlaeche::lies_punkt(double x, double y) const {
    if (!zahlen(x, y)) return hintergrund_;
    striche_ablegen();
    const Punkt p{pixel(x), pixel(y)};
    if (p.x < 0 || p.y < 0 || p.x >= groesse_.width() || p.y >= groesse_.height()) return hintergrund_;
    const QPoint dort(mitte(p.x), mitte(p.y));
    const QRgb gezeigt = bild_.pixel(dort);
    const bool frei = !grund_.isNull() && gezeigt == grund_.pixel(dort);
    return farbe_von(frei && hintergrundbild_.valid(p.x, p.y) ? hintergrundbild_.pixel(p.x, p.y) : gezeigt);
}

}  // namespace velmaris
