#pragma once

#include "desktop/programm.h"
#include "tests/desktop/bedienung.h"
#include "tests/hilfen.h"

#include <QAbstractButton>
#include <QAction>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace velmaris::test {

/// The whole desktop program on a folder of its own with two stations and the delivered pictures.
class Programmprobe : public testing::Test {
  protected:
    Programmprobe();

    /// Starts as a command line does that names the language.
    void starte(const std::string& sprache);

    [[nodiscard]] Projekt& p() { return programm->haupt().p; }

    /// The widget of that name on a plane or bar (both by record name); fails the test if there is none.
    template <typename Fenster = QWidget>
    [[nodiscard]] Fenster& such(const char* ebene, const char* name) {
        QWidget* auf = &programm->fenster();
        if (auf->objectName() != QLatin1String(ebene)) auf = auf->findChild<QWidget*>(QLatin1String(ebene));
        auto* gefunden = auf == nullptr ? nullptr : auf->findChild<Fenster*>(QString::fromUtf8(name));
        if (gefunden == nullptr) throw std::runtime_error(std::string("no widget ") + ebene + "." + name);
        return *gefunden;
    }
    [[nodiscard]] QAction& menue(const char* name);

    /// A left click in the middle of a button.
    static void klicke(QAbstractButton& knopf);

    /// Shows each plane once and looks at it.
    void fuer_jede_ebene(const std::function<void(QWidget& ebene)>& tu);

    Testordner ordner;
    std::unique_ptr<Programm> programm;
};

}  // namespace velmaris::test
