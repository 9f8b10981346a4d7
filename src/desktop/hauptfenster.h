#pragma once

#include "desktop/widgets/ebenenbau.h"
#include "desktop/widgets/ebenenfokus.h"
#include "desktop/widgets/fenstermassstab.h"
#include "planes/Haupt.h"

#include <QMainWindow>

namespace velmaris {

/// The main window: menu, both button bars, all planes at their places. All of it fills the window as large
/// as its proportions allow, and stands in the middle of what is left.
class Hauptfenster : public QMainWindow {
    Q_OBJECT

  public:
    Hauptfenster(Haupt& haupt, const Ansichtsmittel& mittel);

    /// Comes up for the first time: in the middle of the screen, with the first planes.
    void zeigen();

    /// Name of the plane that the user turned to or gave the focus to last.
    [[nodiscard]] const QString& ebene_in_gebrauch() const { return ebenenfokus_.in_gebrauch(); }

  protected:
    void resizeEvent(QResizeEvent* ereignis) override;
    void closeEvent(QCloseEvent* ereignis) override;
    void dragEnterEvent(QDragEnterEvent* ereignis) override;
    void dropEvent(QDropEvent* ereignis) override;

  private:
    void einpassen();
    void vollbild_umschalten();
    void menue_bauen();
    void menue_fuellen(QMenu& menue, const std::vector<Menueknoten>& alle);
    void leiste_bauen(Ebenenleiste& leiste, const QRect& platz);
    void eingabeebenen_bauen();
    void ausgabeebenen_bauen();

    Haupt& haupt_;
    const Ansichtsmittel& mittel_;
    QWidget* flaeche_;
    Ebenenfokus ebenenfokus_;
    Fenstermassstab massstab_;
};

}  // namespace velmaris
