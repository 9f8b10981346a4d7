#pragma once

#include "desktop/programm.h"
#include "tests/desktop/bedienung.h"
#include "tests/hilfen.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
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

    [[nodiscard]] Haupt& haupt() { return programm->haupt(); }
    [[nodiscard]] Projekt& p() { return haupt().p; }

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

    /// A left click in the middle of a button, or on the mark of a check or option field.
    static void klicke(QAbstractButton& knopf);
    void klicke(const char* ebene, const char* knopf) { klicke(such<QAbstractButton>(ebene, knopf)); }

    /// A key where the focus is, and the name of what has it.
    static void taste(int key, Qt::KeyboardModifiers dazu = {});
    [[nodiscard]] static std::string fokus();

    /// Waits until a window has the keys.
    [[nodiscard]] static bool aktiv(const QWidget& fenster);

    /// Types a text in place of what a field holds.
    static void tippe(QLineEdit& zeile, const char* text);

    /// Shows each plane once and looks at it.
    void fuer_jede_ebene(const std::function<void(QWidget& ebene)>& tu);

    Testordner ordner;
    std::unique_ptr<Programm> programm;
};

}  // namespace velmaris::test
