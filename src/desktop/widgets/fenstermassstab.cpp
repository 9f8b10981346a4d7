#include "desktop/widgets/fenstermassstab.h"

#include "desktop/platform/massstab.h"

#include <QAbstractButton>
#include <QBoxLayout>
#include <QCoreApplication>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QTextDocument>
#include <QTextEdit>
#include <algorithm>

namespace velmaris {
namespace {

/// Menus have the desktop's font for menus rather than that of the window below.
bool hat_eigene_schrift(const QWidget& ding) {
    return ding.testAttribute(Qt::WA_SetFont) || ding.isWindow() ||
           qobject_cast<const QMenuBar*>(&ding) != nullptr;
}

/// Windows over the window scale themselves, and lists drop down in the font of their field.
bool gehoert_dazu(const QWidget& ding) {
    return !ding.isWindow() || qobject_cast<const QMenu*>(&ding) != nullptr;
}

QTextDocument* langer_text(const QWidget& ding) {
    if (const auto* text = qobject_cast<const QTextEdit*>(&ding)) return text->document();
    if (const auto* text = qobject_cast<const QPlainTextEdit*>(&ding)) return text->document();
    return nullptr;
}

/// A limit of sizes; the toolkit's for "none" stays.
QSize mal(QSize grenze, double massstab) {
    const auto seite = [massstab](int laenge) {
        return laenge >= QWIDGETSIZE_MAX ? QWIDGETSIZE_MAX : in_pixeln(massstab, laenge);
    };
    return {seite(grenze.width()), seite(grenze.height())};
}

QMargins mal(const QMargins& raender, double massstab) {
    return {in_pixeln(massstab, raender.left()), in_pixeln(massstab, raender.top()),
            in_pixeln(massstab, raender.right()), in_pixeln(massstab, raender.bottom())};
}

}  // namespace

Fenstermassstab::Fenstermassstab(QWidget& fenster) : QObject(&fenster), fenster_(fenster) {
    massstab_setzen(fenster, massstab_);
}

void Fenstermassstab::setze(double massstab) {
    massstab = std::max(1.0, massstab);
    if (massstab == massstab_) return;
    massstab_ = massstab;
    messe(fenster_);
    massstab_setzen(fenster_, massstab);
    passe_an(fenster_);
    Q_EMIT geaendert(massstab);
}

/// Keeps the measures of what has not been met before, all of it before anything is scaled: fonts reach what
/// stands on a widget.
void Fenstermassstab::messe(QWidget& ding) {
    if (!masse_.contains(&ding)) {
        masse_.emplace(&ding, urmass(ding));
        connect(&ding, &QObject::destroyed, this, [this](const QObject* weg) { masse_.erase(weg); });
    }
    for (QObject* kind : ding.children()) {
        auto* darauf = qobject_cast<QWidget*>(kind);
        if (darauf != nullptr && gehoert_dazu(*darauf)) messe(*darauf);
    }
}

Fenstermassstab::Urmass Fenstermassstab::urmass(const QWidget& ding) {
    Urmass mass{.schrift = {}, .kleinste = ding.minimumSize(), .groesste = ding.maximumSize()};
    if (hat_eigene_schrift(ding)) mass.schrift = ding.font().pixelSize();
    if (const auto* schild = qobject_cast<const QLabel*>(&ding)) {
        mass.einzug = schild->indent();
        mass.rand = schild->margin();
    }
    if (const auto* knopf = qobject_cast<const QAbstractButton*>(&ding); knopf && !knopf->icon().isNull())
        mass.symbol = knopf->iconSize();
    if (const QTextDocument* text = langer_text(ding)) mass.textrand = text->documentMargin();
    if (ding.layout() != nullptr) merke(*ding.layout(), mass);
    return mass;
}

void Fenstermassstab::merke(const QLayout& layout, Urmass& mass) {
    mass.layouts.emplace(&layout, layoutmass(layout));
    for (int i = 0; i < layout.count(); ++i) {
        if (const QLayout* innen = layout.itemAt(i)->layout()) merke(*innen, mass);
    }
}

Fenstermassstab::Layoutmass Fenstermassstab::layoutmass(const QLayout& layout) {
    Layoutmass mass{.raender = layout.contentsMargins()};
    for (int i = 0; i < layout.count(); ++i) {
        if (const QSpacerItem* luft = layout.itemAt(i)->spacerItem()) mass.luft.emplace(i, luft->sizeHint());
    }
    const auto* tabelle = qobject_cast<const QGridLayout*>(&layout);
    if (tabelle == nullptr) {
        mass.abstand_waagrecht = layout.spacing();
        return mass;
    }
    mass.abstand_waagrecht = tabelle->horizontalSpacing();
    mass.abstand_senkrecht = tabelle->verticalSpacing();
    for (int i = 0; i < tabelle->columnCount(); ++i)
        mass.spalten.push_back(tabelle->columnMinimumWidth(i));
    for (int i = 0; i < tabelle->rowCount(); ++i)
        mass.reihen.push_back(tabelle->rowMinimumHeight(i));
    return mass;
}

/// What is hidden waits until it comes up.
void Fenstermassstab::passe_an(QWidget& ding) {
    const auto mass = masse_.find(&ding);
    if (mass == masse_.end()) return;
    if (&ding != &fenster_ && ding.isHidden() && !ding.isWindow()) {
        ding.installEventFilter(this);
        return;
    }
    if (mass->second.massstab != massstab_) {
        mass->second.massstab = massstab_;
        wende_an(ding, mass->second);
    }
    for (QObject* kind : ding.children()) {
        auto* darauf = qobject_cast<QWidget*>(kind);
        if (darauf != nullptr && gehoert_dazu(*darauf)) passe_an(*darauf);
    }
    if (ding.layout() != nullptr) ding.layout()->activate();
}

bool Fenstermassstab::eventFilter(QObject* ziel, QEvent* ereignis) {
    if (ereignis->type() == QEvent::ShowToParent) {
        auto* ding = static_cast<QWidget*>(ziel);
        ding->removeEventFilter(this);
        messe(*ding);
        passe_an(*ding);
    }
    return QObject::eventFilter(ziel, ereignis);
}

void Fenstermassstab::wende_an(QWidget& ding, const Urmass& mass) const {
    if (mass.schrift) {
        QFont schrift = ding.font();
        schrift.setPixelSize(schriftpixel(*mass.schrift, massstab_));
        if (schrift != ding.font()) ding.setFont(schrift);
    }
    if (&ding != &fenster_) {
        ding.setMinimumSize(mal(mass.kleinste, massstab_));
        ding.setMaximumSize(mal(mass.groesste, massstab_));
    }
    if (auto* schild = qobject_cast<QLabel*>(&ding)) {
        if (mass.einzug > 0) schild->setIndent(in_pixeln(massstab_, mass.einzug));
        if (mass.rand > 0) schild->setMargin(in_pixeln(massstab_, mass.rand));
    }
    if (auto* knopf = qobject_cast<QAbstractButton*>(&ding); knopf && !mass.symbol.isEmpty())
        knopf->setIconSize(in_pixeln(massstab_, mass.symbol));
    if (QTextDocument* text = langer_text(ding)) text->setDocumentMargin(mass.textrand * massstab_);
    if (ding.layout() != nullptr) wende_an(*ding.layout(), mass);
    // Sizes that a control keeps follow the measures of the style.
    QEvent neue_masse(QEvent::StyleChange);
    if (&ding != &fenster_) QCoreApplication::sendEvent(&ding, &neue_masse);
    neu_legen(ding);
}

void Fenstermassstab::wende_an(QLayout& layout, const Urmass& mass) const {
    const auto ort = mass.layouts.find(&layout);
    if (ort == mass.layouts.end()) return;
    const Layoutmass& eigen = ort->second;
    const auto laenge = [this](int einheiten) { return in_pixeln(massstab_, einheiten); };
    layout.setContentsMargins(mal(eigen.raender, massstab_));
    for (const auto& [stelle, groesse] : eigen.luft) {
        QSpacerItem* luft = layout.itemAt(stelle)->spacerItem();
        const QSizePolicy art = luft->sizePolicy();
        luft->changeSize(laenge(groesse.width()), laenge(groesse.height()), art.horizontalPolicy(),
                         art.verticalPolicy());
    }
    if (auto* tabelle = qobject_cast<QGridLayout*>(&layout)) {
        tabelle->setHorizontalSpacing(laenge(eigen.abstand_waagrecht));
        tabelle->setVerticalSpacing(laenge(eigen.abstand_senkrecht));
        for (std::size_t i = 0; i < eigen.spalten.size(); ++i)
            tabelle->setColumnMinimumWidth(static_cast<int>(i), laenge(eigen.spalten[i]));
        for (std::size_t i = 0; i < eigen.reihen.size(); ++i)
            tabelle->setRowMinimumHeight(static_cast<int>(i), laenge(eigen.reihen[i]));
    } else {
        layout.setSpacing(laenge(eigen.abstand_waagrecht));
    }
    for (int i = 0; i < layout.count(); ++i) {
        if (QLayout* innen = layout.itemAt(i)->layout()) wende_an(*innen, mass);
    }
    layout.invalidate();
}

}  // namespace velmaris
