#include "desktop/platform/qt_drucker.h"

#include "desktop/platform/qt_schrift.h"
#include "desktop/platform/qt_text.h"
#include "toolkit/fehler.h"
#include "toolkit/textdatei.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>

namespace velmaris {
namespace {

constexpr double breite_mm = 200;
constexpr double rand_mm = 5;  ///< between the edge of the sheet and the origin
constexpr double linie_mm = 0.15;
constexpr double zoll_mm = 25.4;

/// Drawing on a paged device, in millimetres.
class QtDrucker : public Drucker {
  public:
    [[nodiscard]] double ScaleWidth() const override { return breite_mm; }

    void schrift(const Druckschrift& schrift) override {
        font_ = QFont(ersatzfamilie(qtext(schrift.name)));
        font_.setPointSizeF(schrift.groesse);
        font_.setBold(schrift.fett);
        font_.setItalic(schrift.kursiv);
        font_.setUnderline(schrift.unterstrichen);
        font_.setHintingPreference(QFont::PreferNoHinting);
        maler_.setFont(font_);
    }

    [[nodiscard]] double textbreite(std::string_view text) const override {
        return in_mm(metrik().horizontalAdvance(qtext(text)));
    }

    [[nodiscard]] double texthoehe(std::string_view /*text*/) const override {
        return in_mm(metrik().height());
    }

    void text(double x, double y, std::string_view text) override {
        maler_.setPen(Qt::black);
        maler_.drawText(ort(x, y) + QPointF(0, metrik().ascent()), qtext(text));
    }

    void linie(double x1, double y1, double x2, double y2, Farbe farbe) override {
        maler_.setPen(stift(farbe));
        maler_.drawLine(ort(x1, y1), ort(x2, y2));
    }

    void kasten(double x1, double y1, double x2, double y2, Farbe farbe) override {
        maler_.setPen(stift(farbe));
        maler_.drawRect(QRectF(ort(x1, y1), ort(x2, y2)));
    }

    void flaeche(double x1, double y1, double x2, double y2, Farbe farbe) override {
        maler_.fillRect(QRectF(ort(x1, y1), ort(x2, y2)).normalized(), qfarbe(farbe));
    }

  protected:
    /// The device and its dots per inch, once it is set up for whole sheets of A4.
    bool beginnen(QPagedPaintDevice& geraet) {
        if (!maler_.begin(&geraet)) return false;
        punkte_je_mm_ = geraet.logicalDpiX() / zoll_mm;
        schrift({});
        return true;
    }

    [[nodiscard]] bool am_zeichnen() const { return maler_.isActive(); }

    /// Ends the drawing, before the device goes; false if the device reports a failure.
    bool abschliessen() { return !maler_.isActive() || maler_.end(); }

  private:
    [[nodiscard]] QPointF ort(double x, double y) const {
        return QPointF(x + rand_mm, y + rand_mm) * punkte_je_mm_;
    }
    [[nodiscard]] double in_mm(double punkte) const { return punkte / punkte_je_mm_; }
    [[nodiscard]] QFontMetricsF metrik() const { return {font_, maler_.device()}; }
    [[nodiscard]] QPen stift(Farbe farbe) const {
        return {qfarbe(farbe), linie_mm * punkte_je_mm_, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin};
    }

    QPainter maler_;
    QFont font_;
    double punkte_je_mm_ = 1;
};

/// A PDF file. It is made in memory, where nothing can fail before its end.
class Pdfdatei final : public QtDrucker {
  public:
    explicit Pdfdatei(const Druckziel& ziel) : datei_(ziel.pdf) {
        constexpr int aufloesung = 1200;
        puffer_.open(QIODevice::WriteOnly);
        geraet_.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF()));
        geraet_.setResolution(aufloesung);
        geraet_.setTitle(qtext(ziel.titel));
        geraet_.setCreator(QStringLiteral("Velmaris"));
        beginnen(geraet_);
    }
    Pdfdatei(const Pdfdatei&) = delete;
    Pdfdatei& operator=(const Pdfdatei&) = delete;
    ~Pdfdatei() override { abschliessen(); }

    [[nodiscard]] std::string DeviceName() const override { return "PDF"; }
    void NewPage() override { geraet_.newPage(); }
    void EndDoc() override {
        abschliessen();
        datei_ersetzen(datei_, puffer_.data().toStdString());
    }

  private:
    std::filesystem::path datei_;
    QBuffer puffer_;
    QPdfWriter geraet_{&puffer_};
};

class Druckerdokument final : public QtDrucker {
  public:
    explicit Druckerdokument(const Druckziel& ziel) : geraet_(QPrinter::HighResolution) {
        geraet_.setPrinterName(qtext(ziel.drucker));
        geraet_.setFullPage(true);
        geraet_.setPageSize(QPageSize(QPageSize::A4));
        geraet_.setPageOrientation(QPageLayout::Portrait);
        geraet_.setDocName(qtext(ziel.titel));
        geraet_.setCreator(QStringLiteral("Velmaris"));
        // For a name that is not known the default printer would step in.
        const bool gefunden = geraet_.isValid() && utf8(geraet_.printerName()) == ziel.drucker;
        if (!gefunden || !beginnen(geraet_)) gestoert(ziel.drucker);
    }
    Druckerdokument(const Druckerdokument&) = delete;
    Druckerdokument& operator=(const Druckerdokument&) = delete;
    ~Druckerdokument() override {
        if (am_zeichnen()) geraet_.abort();
        abschliessen();
    }

    [[nodiscard]] std::string DeviceName() const override { return utf8(geraet_.printerName()); }
    void NewPage() override {
        if (!geraet_.newPage()) gestoert(DeviceName());
    }
    void EndDoc() override {
        if (!abschliessen() || geraet_.printerState() == QPrinter::Error) gestoert(DeviceName());
    }

  private:
    [[noreturn]] static void gestoert(const std::string& name) {
        throw Laufzeitfehler({"Der Drucker nimmt die Ausgabe nicht an: " + name,
                              "The printer does not accept the output: " + name});
    }

    QPrinter geraet_;
};

}  // namespace

std::unique_ptr<Drucker> qt_drucker(const Druckziel& ziel) {
    if (ziel.drucker.empty()) return std::make_unique<Pdfdatei>(ziel);
    return std::make_unique<Druckerdokument>(ziel);
}

}  // namespace velmaris
