#pragma once

#include <QObject>
#include <QString>

class QWidget;

namespace velmaris {

/// Knows which of the planes on a surface is in use: the one that the user turned to by bar, menu or opening,
/// or gave the focus to since.
class Ebenenfokus : public QObject {
    Q_OBJECT

  public:
    explicit Ebenenfokus(QWidget& flaeche);

    /// Turns to a plane: its first control gets the focus, or the plane itself if it has none.
    void gehe_zu(const QString& ebene);

    /// Turns to a plane without moving the focus.
    void merke(const QString& ebene) { in_gebrauch_ = ebene; }

    /// Name of the plane, empty before the first one.
    [[nodiscard]] const QString& in_gebrauch() const { return in_gebrauch_; }

  private:
    void verfolgen(const QWidget* fokus);

    QWidget& flaeche_;
    QString in_gebrauch_;
};

}  // namespace velmaris
