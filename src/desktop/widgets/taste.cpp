#include "desktop/widgets/taste.h"

#include <QKeyEvent>

namespace velmaris {

bool ist_drucktaste(const QKeyEvent& taste) {
    const int key = taste.key();
    return (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space) && !taste.isAutoRepeat();
}

Taste::Taste(QWidget* eltern) : QPushButton(eltern) {
    // A dialog would make the first such button the one that Enter presses from anywhere.
    setAutoDefault(false);
}

void Taste::keyPressEvent(QKeyEvent* ereignis) {
    if (ereignis->key() == Qt::Key_Return || ereignis->key() == Qt::Key_Enter) {
        if (!ereignis->isAutoRepeat()) click();
    } else {
        QPushButton::keyPressEvent(ereignis);
    }
}

}  // namespace velmaris
