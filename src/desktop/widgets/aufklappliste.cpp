#include "desktop/widgets/aufklappliste.h"

#include <QAbstractItemView>
#include <QStyle>

namespace velmaris {

void Aufklappliste::showPopup() {
    QAbstractItemView& ansicht = *view();
    const int rollbalken = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    const int rand = 2 * ansicht.frameWidth() + style()->pixelMetric(QStyle::PM_FocusFrameHMargin);
    ansicht.setMinimumWidth(ansicht.sizeHintForColumn(0) + rollbalken + rand);
    QComboBox::showPopup();
}

}  // namespace velmaris
