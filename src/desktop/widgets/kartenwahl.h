#pragma once

#include "climate/planes/kartenweg.h"
#include "desktop/platform/fehlerwache.h"

#include <QObject>

class QWidget;

namespace velmaris {

/// Lets a map be worked by keyboard: it takes the focus by Tab, the arrow keys lead to the nearest region or
/// station, Page Up, Page Down, Home and End through their list, and Enter or the space bar takes the one
/// that is marked. Its name is the map's description for screen readers.
class Kartenwahl : public QObject {
    Q_OBJECT

  public:
    /// Belongs to the map's widget; `weg` and `wache` must outlive it.
    Kartenwahl(Kartenweg& weg, QWidget& karte, const Fehlerwache& wache);

    bool eventFilter(QObject* karte, QEvent* ereignis) override;

  private:
    void tue(const std::function<void()>& schritt);
    void zeigen();

    Kartenweg& weg_;
    QWidget& karte_;
    const Fehlerwache& wache_;
    QWidget* marke_;
};

}  // namespace velmaris
