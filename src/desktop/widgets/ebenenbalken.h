#pragma once

#include "desktop/widgets/binde.h"
#include "planes/ebenenleiste.h"

#include <QWidget>
#include <vector>

namespace velmaris {

class Ebenenknopf;

/// The widget of a button bar. The button of the plane on show is disabled and cannot have the focus; where
/// it was used by key, the bar holds the focus for it, and Tab and the arrow keys go on from that button. A
/// click on it turns to its plane again.
class Ebenenbalken : public QWidget {
    Q_OBJECT

  public:
    Ebenenbalken(Ebenenleiste& leiste, const Binder& binder, QWidget* eltern);

    /// Takes the focus in place of the button that a key works at; false if none does.
    bool behaelt_fokus();

  protected:
    void focusInEvent(QFocusEvent* ereignis) override;
    void focusOutEvent(QFocusEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    void mousePressEvent(QMouseEvent* ereignis) override;
    bool focusNextPrevChild(bool weiter) override;

  private:
    [[nodiscard]] Ebenenknopf* gewaehlter() const;
    void betonen(bool an);

    const Ebenenleiste& leiste_;
    std::vector<Ebenenknopf*> knoepfe_;
};

}  // namespace velmaris
