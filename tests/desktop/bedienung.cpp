#include "bedienung.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QStyleOptionSlider>
#include <QTest>
#include <QWheelEvent>

namespace velmaris::test {

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

void rad(QWidget& fenster, int rasten) {
    const QPointF mitte = QRectF(fenster.rect()).center();
    QWheelEvent ereignis(mitte, fenster.mapToGlobal(mitte), QPoint(),
                         QPoint(0, rasten * QWheelEvent::DefaultDeltasPerStep), Qt::NoButton, Qt::NoModifier,
                         Qt::NoScrollPhase, false);
    QApplication::sendEvent(&fenster, &ereignis);
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

void waehle_datei(const std::filesystem::path& datei) {
    am_naechsten_dialog<QFileDialog>([=](QFileDialog& box) {
        auto* name = box.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        name->setText(QString::fromStdString(datei.string()));
        QTest::keyClick(name, Qt::Key_Return);
    });
}

}  // namespace velmaris::test
