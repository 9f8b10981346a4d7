#pragma once

#include "desktop/ebenenbau.h"
#include "planes/Haupt.h"

#include <QMainWindow>

namespace velmaris {

/// The main window: menu, both button bars, all planes at their places.
class Hauptfenster : public QMainWindow {
    Q_OBJECT

  public:
    Hauptfenster(Haupt& haupt, const Ansichtsmittel& mittel);

    /// Comes up for the first time: in the middle of the screen, with the first planes.
    void zeigen();

  protected:
    void closeEvent(QCloseEvent* ereignis) override;
    void dragEnterEvent(QDragEnterEvent* ereignis) override;
    void dropEvent(QDropEvent* ereignis) override;

  private:
    void menue_bauen();
    void menue_fuellen(QMenu& menue, const std::vector<Menueknoten>& alle);
    void leiste_bauen(Ebenenleiste& leiste, const QRect& platz);
    void eingabeebenen_bauen();
    void ausgabeebenen_bauen();

    Haupt& haupt_;
    const Ansichtsmittel& mittel_;
    QWidget* flaeche_;
};

}  // namespace velmaris
