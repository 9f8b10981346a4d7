#pragma once

#include "desktop/platform/fehlerwache.h"
#include "desktop/widgets/fenstermassstab.h"

#include <QDialog>
#include <functional>

namespace velmaris {

/// A window beside the main window whose record decides whether it is open: the frame's close box and Escape
/// only ask the record. With it the keys go back to the window that it was opened from. It comes up at the
/// scale of that window, or a smaller one at which the screen holds it; one whose size the user can change
/// follows it.
class Nebenfenster : public QDialog {
    Q_OBJECT

  public:
    /// `schliessen` is run by the close box and by Escape.
    Nebenfenster(const Fehlerwache& wache, std::function<void()> schliessen, QWidget* eltern);

    /// Lays the controls out in a window of that size, in units; run with each change of size, where it is
    /// set.
    std::function<void(QSizeF)> anordnen;

    /// In units: the size of a window that the user can resize, and what every window has to hold on the
    /// screen at its scale. A window without that is as large as what stands on it.
    void einheitsgroesse(QSize bevorzugt, QSize mindestens);

    /// The scale at which it comes up over the window below.
    [[nodiscard]] double oeffnungsmassstab() const;

    [[nodiscard]] Fenstermassstab& skala() { return massstab_; }

    void reject() override;
    void setVisible(bool sichtbar) override;

  protected:
    void resizeEvent(QResizeEvent* ereignis) override;
    void closeEvent(QCloseEvent* ereignis) override;

  private:
    void an_eltern_anpassen();
    [[nodiscard]] bool ist_veraenderlich() const;

    const Fehlerwache& wache_;
    std::function<void()> schliessen_;
    Fenstermassstab massstab_;
    QSize bevorzugt_;
    QSize mindestens_;
    double letzter_massstab_ = 1;
};

}  // namespace velmaris
