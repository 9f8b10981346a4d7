#pragma once

#include "desktop/widgets/ebenenbau.h"
#include "energy/planes/E_Energie.h"

#include <QFrame>
#include <array>
#include <string>
#include <vector>

namespace velmaris {

class Auswahlschild;

/// The drop-down list of the energy plane, on top of everything else there. While it is open it holds the
/// focus and is worked by the keys of such a list; it closes when the mouse is pressed elsewhere and when the
/// focus goes elsewhere, and then gives the focus that it holds to the button of its field.
class Auswahltafel : public QFrame {
    Q_OBJECT

  public:
    Auswahltafel(E_Energie& e, const Ansichtsmittel& mittel, QWidget* ebene);
    Auswahltafel(const Auswahltafel&) = delete;
    Auswahltafel& operator=(const Auswahltafel&) = delete;
    ~Auswahltafel() override;

    /// Makes a field of the plane and its button open their list: the field by a click, the button by the
    /// keys of a drop-down list as well.
    void bediene(Auswahlschild& feld, QAbstractButton& knopf);

    bool eventFilter(QObject* ziel, QEvent* ereignis) override;

  protected:
    void keyPressEvent(QKeyEvent* ereignis) override;
    void mousePressEvent(QMouseEvent* ereignis) override;
    bool focusNextPrevChild(bool weiter) override;

  private:
    /// A field with its button.
    struct Bedienung {
        Auswahlschild* feld;
        QAbstractButton* knopf;
    };

    void zeigen();
    void einpassen();
    void schliessen();
    void fokus_verfolgen(const QWidget* jetzt);
    [[nodiscard]] double twips_je_pixel() const;
    [[nodiscard]] int innenbreite() const;
    [[nodiscard]] double eintragshoehe(const Anzeige& eintrag) const;
    [[nodiscard]] Platz unterkante(const Anzeige& feld) const;
    [[nodiscard]] const Bedienung& bediente(const std::string& feld) const;

    E_Energie& e_;
    const Fehlerwache& wache_;
    QWidget* halter_;
    std::array<Auswahlschild*, Auswahlrahmen::eintraege> eintraege_{};
    std::vector<Bedienung> bedient_;
    QPoint zeiger_beim_oeffnen_;
};

}  // namespace velmaris
