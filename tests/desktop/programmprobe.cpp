#include "tests/desktop/programmprobe.h"

#include "tests/testprogramm.h"

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
    QTest::mouseClick(&knopf, Qt::LeftButton);
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
