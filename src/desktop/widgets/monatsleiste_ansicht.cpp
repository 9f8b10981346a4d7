#include "desktop/widgets/monatsleiste_ansicht.h"

#include <QFrame>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

namespace velmaris {
namespace {

/// The frame on the chosen month, which covers its button, and so shows the focus in its place.
class Monatsrahmen : public QFrame {
  public:
    using QFrame::QFrame;

    void zeige_fokus(bool an) {
        fokus_ = an;
        update();
    }

  protected:
    void paintEvent(QPaintEvent* ereignis) override {
        QFrame::paintEvent(ereignis);
        if (!fokus_) return;
        QPainter maler(this);
        maler.setPen(palette().color(QPalette::HighlightedText));
        maler.drawRect(rect().adjusted(2, 2, -3, -3));
    }

  private:
    bool fokus_ = false;
};

}  // namespace

void monatsleiste_ansicht(Monatsleiste& leiste, const Ebenenbau& bau, QWidget* ebene) {
    auto* rahmen = new Monatsrahmen(ebene);
    for (Knopf& knopf : leiste.Monatsbutton) {
        QPushButton* monat = bau.knopf(knopf);
        const auto& wache = bau.mittel().wache;
        bei_ereignis(*monat, QEvent::FocusIn, wache, [rahmen] { rahmen->zeige_fokus(true); });
        bei_ereignis(*monat, QEvent::FocusOut, wache, [rahmen] { rahmen->zeige_fokus(false); });
    }
    rahmen->raise();
    rahmen->setAttribute(Qt::WA_TransparentForMouseEvents);
    rahmen->setAutoFillBackground(true);
    QPalette farben = rahmen->palette();
    farben.setColor(QPalette::Window, farben.color(QPalette::Highlight));
    rahmen->setPalette(farben);
    QLabel* text = bau.anzeige(leiste.AktiverMonat1);
    text->setParent(rahmen);
    text->setAlignment(Qt::AlignCenter);
    farben.setColor(QPalette::WindowText, farben.color(QPalette::HighlightedText));
    text->setPalette(farben);
    text->show();
    bau.mittel().binder.binde(*rahmen, leiste.AktiverMonat);
}

}  // namespace velmaris
