#include "tests/desktop/programmprobe.h"

#include "tests/testprogramm.h"

#include <QPushButton>
#include <QTest>

namespace velmaris::test {

Programmprobe::Programmprobe() {
    ordner.schreibe("klima/trier.met", stationsbytes("Trier (Deutschland)"));
    ordner.schreibe("klima/fern.met", stationsbytes("Fern (Ausland)"));
    std::filesystem::copy(VELMARIS_GRAFIKEN, ordner / "Grafiken");
}

void Programmprobe::starte(const std::string& sprache) {
    programm = std::make_unique<Programm>(ordner.pfad(), sprache, Befehlszeile(sprache));
    programm->starten();
    programm->fenster().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&programm->fenster()));
}

QAction& Programmprobe::menue(const char* name) {
    auto* eintrag = programm->fenster().findChild<QAction*>(QLatin1String(name));
    if (eintrag == nullptr) throw std::runtime_error(std::string("no menu entry ") + name);
    return *eintrag;
}

void Programmprobe::klicke(QAbstractButton& knopf) {
    const bool marke = knopf.isCheckable() && qobject_cast<QPushButton*>(&knopf) == nullptr;
    QTest::mouseClick(&knopf, Qt::LeftButton, {}, marke ? QPoint(8, knopf.height() / 2) : QPoint());
}

void Programmprobe::taste(int key, Qt::KeyboardModifiers dazu) {
    QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), dazu);
}

std::string Programmprobe::fokus() {
    const QWidget* ort = QApplication::focusWidget();
    return ort == nullptr ? "" : ort->objectName().toStdString();
}

bool Programmprobe::aktiv(const QWidget& fenster) {
    return QTest::qWaitFor([&] { return QApplication::activeWindow() == &fenster; });
}

void Programmprobe::tippe(QLineEdit& zeile, const char* text) {
    QTest::mouseClick(&zeile, Qt::LeftButton);
    zeile.selectAll();
    QTest::keyClicks(&zeile, QString::fromUtf8(text));
}

void Programmprobe::fuer_jede_ebene(const std::function<void(QWidget& ebene)>& tu) {
    for (Ebenenleiste* leiste : {&programm->haupt().e_menue, &programm->haupt().a_menue}) {
        for (const Ebenenleiste::Eintrag& eintrag : leiste->eintraege()) {
            leiste->klicke(eintrag.knopf->name);
            QApplication::processEvents();
            tu(such("Haupt", eintrag.ebene->name.c_str()));
        }
    }
}

}  // namespace velmaris::test
