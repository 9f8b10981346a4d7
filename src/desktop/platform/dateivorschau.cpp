#include "desktop/platform/dateivorschau.h"

#include "desktop/platform/qt_text.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>

namespace velmaris {

void Dateivorschau::einsetzen(QFileDialog& dialog, const Zeile& zeile, const Fehlerwache& wache) {
    auto* platz = qobject_cast<QGridLayout*>(dialog.layout());
    if (platz == nullptr || !zeile) return;
    platz->addWidget(new Dateivorschau(dialog, zeile, wache), platz->rowCount(), 0, 1, platz->columnCount());
}

Dateivorschau::Dateivorschau(QFileDialog& dialog, const Zeile& zeile, const Fehlerwache& wache)
    : QLabel(&dialog), zeile_(zeile), wache_(wache) {
    constexpr int ruhe = 150;  // milliseconds
    constexpr int zeilen = 2;
    setObjectName(QStringLiteral("Vorschau"));
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setFixedHeight(zeilen * fontMetrics().lineSpacing());
    uhr_.setSingleShot(true);
    uhr_.setInterval(ruhe);
    connect(&uhr_, &QTimer::timeout, this, &Dateivorschau::lies);
    connect(&dialog, &QFileDialog::currentChanged, this, &Dateivorschau::waehle);
    connect(&dialog, &QFileDialog::directoryEntered, this, [this] { waehle({}); });
}

void Dateivorschau::waehle(const QString& datei) {
    datei_ = datei;
    clear();
    uhr_.start();
}

void Dateivorschau::lies() {
    const QFileInfo datei(datei_);
    if (!datei.isFile()) return;
    wache_.fuehre_aus([&] { setText(qtext(zeile_(datei.filesystemFilePath()))); });
}

}  // namespace velmaris
