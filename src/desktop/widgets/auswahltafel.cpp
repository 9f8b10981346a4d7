#include "desktop/widgets/auswahltafel.h"

#include "desktop/platform/massstab.h"
#include "desktop/platform/qt_text.h"
#include "desktop/widgets/auswahlschild.h"
#include "desktop/widgets/taste.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCursor>
#include <QKeyEvent>
#include <QLayout>
#include <algorithm>
#include <cmath>

namespace velmaris {
namespace {

constexpr int twips = 15;
constexpr int innen = 6;  ///< between the frame and the entries

/// The keys that open a drop-down list and close it again.
bool klappt(const QKeyEvent& taste) {
    const bool alt_pfeil = (taste.key() == Qt::Key_Down || taste.key() == Qt::Key_Up) &&
                           taste.modifiers().testFlag(Qt::AltModifier);
    return alt_pfeil || (taste.key() == Qt::Key_F4 && taste.modifiers() == Qt::NoModifier);
}

/// How far a key moves the mark, 0 for other keys.
int schritte(int taste) {
    switch (taste) {
        case Qt::Key_Down:
            return 1;
        case Qt::Key_Up:
            return -1;
        case Qt::Key_End:
        case Qt::Key_PageDown:
            return Auswahlrahmen::eintraege;
        case Qt::Key_Home:
        case Qt::Key_PageUp:
            return -Auswahlrahmen::eintraege;
        default:
            return 0;
    }
}

}  // namespace

Auswahltafel::Auswahltafel(E_Energie& e, const Ansichtsmittel& mittel, QWidget* ebene)
    : QFrame(ebene), e_(e), wache_(mittel.wache), halter_(new QWidget(this)) {
    setFrameShape(QFrame::Box);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    for (int i = 1; i <= Auswahlrahmen::eintraege; ++i) {
        auto* eintrag = new Auswahlschild(halter_);
        eintrag->setFocusPolicy(Qt::ClickFocus);
        mittel.binder.binde(*eintrag, e.Auswahl.Label_Auswahl(i), 1.0 / twips);
        eintrag->gedrueckt = [this, i] { wache_.fuehre_aus([&] { e_.Label_Auswahl_Click(i); }); };
        // A list that opens under a resting pointer keeps its mark.
        eintrag->ueberfahren = [this, i](QPoint zeiger) {
            if (zeiger != zeiger_beim_oeffnen_) e_.Auswahl.markiere(i);
        };
        eintraege_.at(static_cast<std::size_t>(i - 1)) = eintrag;
    }
    e.Auswahl.eintragshoehe = [this](const Anzeige& eintrag) { return eintragshoehe(eintrag); };
    e.Auswahl.unterkante = [this](const Anzeige& feld) { return unterkante(feld); };
    mittel.binder.binde(static_cast<QWidget&>(*this), e.Auswahl.Frame_Auswahl);
    e.Auswahl.Frame_Auswahl.ansicht = [this] { zeigen(); };
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget*, const QWidget* jetzt) { fokus_verfolgen(jetzt); });
}

/// The entries, which go after this, may have the focus.
Auswahltafel::~Auswahltafel() {
    disconnect(qApp, nullptr, this, nullptr);
}

void Auswahltafel::bediene(Auswahlschild& feld, QAbstractButton& knopf) {
    feld.setFocusPolicy(Qt::ClickFocus);
    feld.setFocusProxy(&knopf);
    feld.gedrueckt = [&knopf] { knopf.click(); };
    knopf.installEventFilter(this);
    bedient_.push_back({&feld, &knopf});
}

void Auswahltafel::zeigen() {
    const bool offen = e_.Auswahl.offen();
    if (offen == isHidden()) {
        if (offen) {
            einpassen();
            zeiger_beim_oeffnen_ = QCursor::pos();
            qApp->installEventFilter(this);
        } else {
            qApp->removeEventFilter(this);
            const QWidget* fokus = window()->focusWidget();
            if (fokus != nullptr && isAncestorOf(fokus)) bediente(e_.Auswahl.feld()).knopf->setFocus();
        }
        grundzustand(*this, e_.Auswahl.Frame_Auswahl);
        raise();
    }
    for (int i = 1; i <= Auswahlrahmen::eintraege; ++i) {
        Auswahlschild& eintrag = *eintraege_.at(static_cast<std::size_t>(i - 1));
        eintrag.hervorheben(i == e_.Auswahl.marke());
        if (i == e_.Auswahl.marke()) eintrag.setFocus();
    }
}

void Auswahltafel::einpassen() {
    const Platz ort = e_.Auswahl.platz();
    const int breite = innenbreite();
    const int rand = in_pixeln(*this, innen);
    const int hoehe = static_cast<int>(e_.Auswahl.hoehe() / twips_je_pixel());
    setGeometry(static_cast<int>(ort.links / twips_je_pixel()), static_cast<int>(ort.oben / twips_je_pixel()),
                breite + 2 * rand, hoehe + rand);
    halter_->setGeometry(rand, rand, breite, hoehe);
    setAccessibleName(bediente(e_.Auswahl.feld()).knopf->accessibleName());
}

void Auswahltafel::schliessen() {
    e_.Frame_Auswahl_Click();
}

/// The button of the open list may have the focus: what it does comes next.
void Auswahltafel::fokus_verfolgen(const QWidget* jetzt) {
    if (!e_.Auswahl.offen() || isHidden()) return;
    const bool hier = jetzt != nullptr && isAncestorOf(jetzt);
    if (!hier && jetzt != bediente(e_.Auswahl.feld()).knopf) schliessen();
}

bool Auswahltafel::eventFilter(QObject* ziel, QEvent* ereignis) {
    const auto* ort = qobject_cast<const QWidget*>(ziel);
    if (ort == nullptr) return false;
    if (ereignis->type() == QEvent::MouseButtonPress && e_.Auswahl.offen()) {
        const Bedienung& eigene = bediente(e_.Auswahl.feld());
        const bool hier = ort == this || isAncestorOf(ort) || ort == eigene.feld || ort == eigene.knopf;
        if (!hier) schliessen();
    }
    if (ereignis->type() != QEvent::KeyPress || !klappt(static_cast<const QKeyEvent&>(*ereignis)))
        return false;
    for (const Bedienung& eine : bedient_) {
        if (eine.knopf != ort) continue;
        eine.knopf->click();
        return true;
    }
    return false;
}

void Auswahltafel::keyPressEvent(QKeyEvent* ereignis) {
    const int taste = ereignis->key();
    if (taste == Qt::Key_Escape || klappt(*ereignis)) {
        schliessen();
    } else if (ist_drucktaste(*ereignis)) {
        wache_.fuehre_aus([this] { e_.Label_Auswahl_Click(e_.Auswahl.marke()); });
    } else if (schritte(taste) != 0) {
        e_.Auswahl.ruecke(schritte(taste));
    } else {
        QFrame::keyPressEvent(ereignis);
    }
}

/// A press beside the entries.
void Auswahltafel::mousePressEvent(QMouseEvent*) {
    schliessen();
}

bool Auswahltafel::focusNextPrevChild(bool weiter) {
    schliessen();
    return QFrame::focusNextPrevChild(weiter);
}

double Auswahltafel::twips_je_pixel() const {
    return twips / massstab(*this);
}

int Auswahltafel::innenbreite() const {
    return bediente(e_.Label_System.name).feld->width() - 2 * in_pixeln(*this, innen);
}

/// Of the wrapped text, in twips.
double Auswahltafel::eintragshoehe(const Anzeige& eintrag) const {
    auto* schild = halter_->findChild<Auswahlschild*>(qtext(eintrag.name));
    schild->resize(innenbreite(), schild->heightForWidth(innenbreite()));
    return schild->height() * twips_je_pixel();
}

/// The text of the field may have changed just now, and its height with it.
Platz Auswahltafel::unterkante(const Anzeige& feld) const {
    const Auswahlschild& schild = *bediente(feld.name).feld;
    for (const QWidget* ort = schild.parentWidget(); ort != parentWidget(); ort = ort->parentWidget())
        ort->layout()->activate();
    parentWidget()->layout()->activate();
    const QPoint ecke = schild.mapTo(parentWidget(), QPoint(0, schild.height()));
    return {.links = ecke.x() * twips_je_pixel(), .oben = ecke.y() * twips_je_pixel()};
}

const Auswahltafel::Bedienung& Auswahltafel::bediente(const std::string& feld) const {
    const auto ort = std::find_if(bedient_.begin(), bedient_.end(), [name = qtext(feld)](const Bedienung& b) {
        return b.feld->objectName() == name;
    });
    return *ort;
}

}  // namespace velmaris
