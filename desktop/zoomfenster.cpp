#include "desktop/zoomfenster.h"

#include <QCloseEvent>

namespace velmaris {

Zoomfenster::Zoomfenster(A_Zoom& a, QWidget* eltern) : QDialog(eltern), a_(a) {
    setWindowTitle(QStringLiteral("Velmaris"));
    setMinimumSize(400, 240);
    resize(784, 500);
}

void Zoomfenster::resizeEvent(QResizeEvent* ereignis) {
    QDialog::resizeEvent(ereignis);
    a_.anordnen(width(), height());
}

void Zoomfenster::closeEvent(QCloseEvent* ereignis) {
    ereignis->ignore();
    reject();
}

void Zoomfenster::reject() {
    a_.ebene.zeige(false);
}

}  // namespace velmaris
