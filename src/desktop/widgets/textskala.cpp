#include "desktop/widgets/textskala.h"

#include <QAbstractTextDocumentLayout>
#include <QScrollBar>
#include <QTextDocument>
#include <QTextEdit>
#include <algorithm>

namespace velmaris {

Textskala::Textskala(QTextEdit& ansicht) : ansicht_(ansicht) {
    ansicht.document()->documentLayout()->setPaintDevice(this);
}

void Textskala::setze(double massstab) {
    if (massstab == massstab_) return;
    massstab_ = massstab;
    QScrollBar& leiste = *ansicht_.verticalScrollBar();
    const double anteil = static_cast<double>(leiste.value()) / std::max(1, leiste.maximum());
    QTextDocument& text = *ansicht_.document();
    text.markContentsDirty(0, text.characterCount());
    text.documentLayout()->documentSize();
    leiste.setValue(qRound(anteil * leiste.maximum()));
}

int Textskala::metric(PaintDeviceMetric groesse) const {
    const auto pixel_je_zoll = [this](int eigene) { return qRound(eigene * massstab_); };
    switch (groesse) {
        case PdmDpiX:
            return pixel_je_zoll(ansicht_.logicalDpiX());
        case PdmDpiY:
            return pixel_je_zoll(ansicht_.logicalDpiY());
        case PdmWidth:
            return ansicht_.width();
        case PdmHeight:
            return ansicht_.height();
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return qRound(devicePixelRatioFScale());
        default:
            return QPaintDevice::metric(groesse);
    }
}

}  // namespace velmaris
