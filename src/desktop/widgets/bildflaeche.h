#pragma once

#include "desktop/platform/fehlerwache.h"
#include "desktop/platform/qt_flaeche.h"
#include "toolkit/felder.h"

#include <QWidget>
#include <filesystem>
#include <optional>

namespace velmaris {

/// The widget of a picture or chart surface. It keeps what was drawn and draws anew when it is about to be
/// seen and the record has asked for it since: a hidden surface costs nothing. A picture that stands for
/// a button, or shows values, takes the focus and shows it by a frame. The record must outlive the widget.
class Bildflaeche : public QWidget {
    Q_OBJECT

  public:
    Bildflaeche(Bildfeld& feld, const Fehlerwache& wache, QWidget* eltern = nullptr,
                Farbe hintergrund = farben::weiss);
    Bildflaeche(const Bildflaeche&) = delete;
    Bildflaeche& operator=(const Bildflaeche&) = delete;
    ~Bildflaeche() override;

    [[nodiscard]] const Bildfeld& feld() const { return feld_; }

    /// The surface as it is now, drawn anew first if it is out of date.
    [[nodiscard]] QtFlaeche& flaeche();

  protected:
    void paintEvent(QPaintEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    void mouseMoveEvent(QMouseEvent* ereignis) override;
    void mousePressEvent(QMouseEvent* ereignis) override;
    void mouseReleaseEvent(QMouseEvent* ereignis) override;
    void enterEvent(QEnterEvent* ereignis) override;
    void leaveEvent(QEvent* ereignis) override;

  private:
    [[nodiscard]] QSize in_einheiten() const;
    [[nodiscard]] QPointF in_einheiten(QPointF ort) const;
    void feld_zeigen();
    void bild_laden();
    [[nodiscard]] const QImage& feines_bild();
    void melde_bildfehler();

    Bildfeld& feld_;
    const Fehlerwache& wache_;
    Farbe hintergrund_;
    bool veraltet_ = true;
    std::filesystem::path geladen_;
    QImage bild_;
    std::optional<QImage> feines_bild_;  ///< nothing before it is asked for
    QSizeF pixel_;
    std::optional<QtFlaeche> flaeche_;
};

}  // namespace velmaris
