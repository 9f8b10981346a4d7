#include "desktop/widgets/mitnehmen.h"

#include "desktop/platform/bildausgabe.h"
#include "desktop/platform/hausstil.h"
#include "desktop/platform/massstab.h"
#include "desktop/platform/qt_text.h"
#include "desktop/widgets/bildflaeche.h"
#include "desktop/widgets/ebenenbau.h"
#include "project/bild_speichern.h"
#include "toolkit/bildmitnahme.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <utility>
#include <vector>

namespace velmaris {
namespace {

void werte_kopieren(const Wertetafel& tafel) {
    QGuiApplication::clipboard()->setText(qtext(tabulatortext(tafel)));
}

/// The picture drawn anew, or as it is seen where labels of the plane lie on it.
QImage aufnahme(Bildflaeche& flaeche, const Bildfeld& feld) {
    const bool hat_schilder = flaeche.findChild<QLabel*>() != nullptr && !einzelbild(feld).beschriften;
    if (!hat_schilder) return bild_zum_mitnehmen(feld);
    constexpr int feinheit = 2;
    QImage bild(flaeche.size() * feinheit, QImage::Format_RGB32);
    bild.setDevicePixelRatio(feinheit);
    flaeche.render(&bild);
    return bild;
}

void bild_kopieren(Bildflaeche& flaeche, const Bildfeld& feld) {
    QImage bild = aufnahme(flaeche, feld);
    bild.setDevicePixelRatio(1);
    auto* daten = new QMimeData;
    daten->setImageData(bild);
    if (als_svg_moeglich(feld))
        daten->setData(QStringLiteral("image/svg+xml"), QByteArray::fromStdString(svg_bild(feld)));
    QGuiApplication::clipboard()->setMimeData(daten);
}

/// An entry of a context menu and what it does.
struct Eintrag {
    Mitnahme was;
    std::function<void()> tu;
};

/// Brings up the menu of a widget, at the pointer or in the middle of the widget.
class Kontextmenue : public QObject {
  public:
    Kontextmenue(QWidget& fenster, std::vector<Eintrag> eintraege, const Ansichtsmittel& mittel)
        : QObject(&fenster),
          fenster_(fenster),
          eintraege_(std::move(eintraege)),
          wache_(mittel.wache),
          sprache_(mittel.sprache) {
        fenster.installEventFilter(this);
    }

    bool eventFilter(QObject* fenster, QEvent* ereignis) override {
        const QPoint mitte = fenster_.mapToGlobal(fenster_.rect().center());
        if (ereignis->type() == QEvent::KeyPress) {
            // The menu key comes as a wish for the menu, this one does not.
            const auto& taste = static_cast<const QKeyEvent&>(*ereignis);
            if (taste.key() != Qt::Key_F10 || taste.modifiers() != Qt::ShiftModifier) return false;
            zeigen(mitte);
            return true;
        }
        if (ereignis->type() != QEvent::ContextMenu) return QObject::eventFilter(fenster, ereignis);
        const auto& wunsch = static_cast<const QContextMenuEvent&>(*ereignis);
        zeigen(wunsch.reason() == QContextMenuEvent::Keyboard ? mitte : wunsch.globalPos());
        return true;
    }

  private:
    void zeigen(QPoint ort) {
        auto* menue = new QMenu(&fenster_);
        schrift_anpassen(*menue);
        menue->setAttribute(Qt::WA_DeleteOnClose);
        for (const Eintrag& eintrag : eintraege_) {
            QAction* aktion = menue->addAction(qtext(mitnahmetext(eintrag.was).in(sprache_)));
            QObject::connect(aktion, &QAction::triggered, &fenster_,
                             [this, tu = eintrag.tu] { wache_.fuehre_aus(tu); });
        }
        menue->popup(ort);
    }

    QWidget& fenster_;
    std::vector<Eintrag> eintraege_;
    const Fehlerwache& wache_;
    std::string sprache_;
};

/// The frame that shows the focus of a widget that does not show it itself; lies over it.
class Fokusrahmen : public QWidget {
  public:
    explicit Fokusrahmen(QWidget& fenster) : QWidget(&fenster) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        hide();
        fenster.installEventFilter(this);
    }

    bool eventFilter(QObject* fenster, QEvent* ereignis) override {
        if (ereignis->type() == QEvent::FocusIn) {
            setGeometry(parentWidget()->rect());
            raise();
            show();
        } else if (ereignis->type() == QEvent::FocusOut) {
            // The menu of the widget borrows the focus.
            const bool menue = static_cast<const QFocusEvent&>(*ereignis).reason() == Qt::PopupFocusReason;
            if (!menue) hide();
        } else if (ereignis->type() == QEvent::Resize) {
            setGeometry(parentWidget()->rect());
        }
        return QWidget::eventFilter(fenster, ereignis);
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter maler(this);
        fokusrahmen(maler, rect(), massstab(*this));
    }
};

}  // namespace

void bildmenue(Bildflaeche& flaeche, const Bildfeld& feld, const Ansichtsmittel& mittel) {
    std::vector<Eintrag> eintraege;
    for (const Mitnahme was : mitnahmen(feld)) {
        switch (was) {
            case Mitnahme::bild_kopieren:
                eintraege.push_back({was, [&flaeche, &feld] { bild_kopieren(flaeche, feld); }});
                break;
            case Mitnahme::bild_speichern:
                eintraege.push_back({was, [&flaeche, &feld, &sitzung = mittel.sitzung] {
                                         bild_speichern(sitzung, feld, [&] {
                                             return als_png(aufnahme(flaeche, feld)).toStdString();
                                         });
                                     }});
                break;
            case Mitnahme::werte_kopieren:
                eintraege.push_back({was, [&feld] { werte_kopieren(feld.werte()); }});
                break;
        }
    }
    new Kontextmenue(flaeche, std::move(eintraege), mittel);
}

void wertemenue(QWidget& rahmen, std::function<Wertetafel()> werte, const Ansichtsmittel& mittel) {
    rahmen.setFocusPolicy(Qt::TabFocus);
    new Fokusrahmen(rahmen);
    bei_ereignis(rahmen, QEvent::FocusIn, mittel.wache,
                 [&rahmen, werte] { rahmen.setAccessibleDescription(qtext(wertesatz(werte()))); });
    new Kontextmenue(rahmen, {{Mitnahme::werte_kopieren, [werte] { werte_kopieren(werte()); }}}, mittel);
}

}  // namespace velmaris
