#include "tests/desktop/bedienung.h"

#include "desktop/platform/massstab.h"
#include "desktop/widgets/bildflaeche.h"
#include "toolkit/text.h"

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOptionSlider>
#include <QTest>
#include <gtest/gtest.h>

namespace velmaris::test {
namespace {

/// What the text of a control needs, nothing for what has none.
QSize noetige_groesse(const QWidget& fenster) {
    const auto breite = [](int pixel) { return QSize(pixel, 0); };
    if (const auto* schild = qobject_cast<const QLabel*>(&fenster)) {
        if (!schild->pixmap().isNull() || schild->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored)
            return {};
        if (schild->wordWrap()) return {0, schild->heightForWidth(schild->width())};
        return breite(schild->sizeHint().width());
    }
    if (const auto* rahmen = qobject_cast<const QGroupBox*>(&fenster))
        return breite(rahmen->fontMetrics().horizontalAdvance(rahmen->title()) + 10);
    if (const auto* knopf = qobject_cast<const QPushButton*>(&fenster))
        return breite(knopf->fontMetrics().horizontalAdvance(knopf->text()) + 2);
    if (qobject_cast<const QCheckBox*>(&fenster) != nullptr ||
        qobject_cast<const QRadioButton*>(&fenster) != nullptr)
        return breite(fenster.sizeHint().width() - 4);
    return {};
}

}  // namespace

Testfenster::Testfenster() {
    resize(400, 300);
    show();
    activateWindow();
    if (!QTest::qWaitForWindowActive(this)) throw std::runtime_error("the window did not become active");
}

QPoint teil(const Scrollleiste& leiste, QStyle::SubControl stueck) {
    QStyleOptionSlider option;
    option.initFrom(&leiste);
    option.orientation = leiste.orientation();
    option.minimum = leiste.minimum();
    option.maximum = leiste.maximum();
    option.sliderPosition = leiste.sliderPosition();
    option.sliderValue = leiste.value();
    option.singleStep = leiste.singleStep();
    option.pageStep = leiste.pageStep();
    if (leiste.orientation() == Qt::Horizontal) option.state |= QStyle::State_Horizontal;
    return leiste.style()->subControlRect(QStyle::CC_ScrollBar, &option, stueck, &leiste).center();
}

int laufe_bis_zum_ende() {
    constexpr int geduld = 5000;
    QTimer frist;
    QObject::connect(&frist, &QTimer::timeout, [] { QCoreApplication::exit(-1); });
    frist.start(geduld);
    return QApplication::exec();
}

void antworte(QMessageBox::StandardButton knopf, const std::function<void(QMessageBox&)>& pruefe) {
    am_naechsten_dialog<QMessageBox>([=](QMessageBox& box) {
        pruefe(box);
        QTest::mouseClick(box.button(knopf), Qt::LeftButton);
    });
}

void waehle_datei(const std::filesystem::path& datei, const std::function<void(QFileDialog&)>& pruefe) {
    am_naechsten_dialog<QFileDialog>([=](QFileDialog& box) {
        pruefe(box);
        auto* name = box.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        name->setText(QString::fromStdString(pfadtext(datei)));
        QTest::keyClick(name, Qt::Key_Return);
    });
}

void waehle_zeile(QComboBox& liste, int zeile) {
    QTest::mouseClick(&liste, Qt::LeftButton);
    QAbstractItemView* eintraege = liste.view();
    QTest::keyClick(eintraege, Qt::Key_Home);
    for (int i = 0; i < zeile; ++i)
        QTest::keyClick(eintraege, Qt::Key_Down);
    QTest::keyClick(eintraege, Qt::Key_Return);
}

void bewege_ueber(QWidget& fenster, QPointF ort) {
    QMouseEvent zug(QEvent::MouseMove, ort, fenster.mapToGlobal(ort), Qt::NoButton, Qt::NoButton, {});
    QApplication::sendEvent(&fenster, &zug);
}

void pruefe_platz(const QWidget& fenster, const std::string& wo) {
    // Letters have whole pixels: at a scale above 1 a line is not always as high as its place.
    const int spiel = static_cast<int>(std::ceil(massstab(fenster) - 1));
    const int einheit = spiel + 1;
    for (const QWidget* teil : fenster.findChildren<QWidget*>()) {
        if (!teil->isVisible() || teil->window() != fenster.window()) continue;
        const std::string name =
            wo + " " + fenster.objectName().toStdString() + "." + teil->objectName().toStdString();
        EXPECT_LE(noetige_groesse(*teil).width(), teil->width()) << name;
        EXPECT_LE(noetige_groesse(*teil).height(), teil->height()) << name;
        const QRect platz(teil->mapTo(&fenster, QPoint(0, 0)), teil->size());
        // The map moves behind its frame, and so does what is longer than a text field.
        const bool karte = teil->objectName() == "Picture3";
        const bool rollt = qobject_cast<QAbstractScrollArea*>(teil->parentWidget()) != nullptr;
        EXPECT_TRUE(karte || rollt || fenster.rect().adjusted(-10 * einheit, 0, einheit, 0).contains(platz))
            << name;
        if (qobject_cast<const QLabel*>(teil) == nullptr) continue;
        // The label that marks a month is one pixel larger than its frame.
        EXPECT_TRUE(rollt || teil->parentWidget()
                                 ->rect()
                                 .adjusted(-10 * einheit, 0, einheit, einheit)
                                 .contains(teil->geometry()))
            << name << " is cut by what it stands on";
        for (const auto* bild : teil->parentWidget()->findChildren<Bildflaeche*>(Qt::FindDirectChildrenOnly))
            EXPECT_FALSE(bild->isVisible() &&
                         bild->geometry().intersects(teil->geometry().adjusted(0, 0, 0, -spiel)))
                << name << " lies on " << bild->objectName().toStdString();
    }
}

}  // namespace velmaris::test
