#pragma once

#include "desktop/widgets/scrollleiste.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QStyle>
#include <QTimer>
#include <QWidget>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

class QComboBox;

namespace velmaris::test {

/// A shown window with the input focus that holds the widgets of one test.
class Testfenster : public QWidget {
  public:
    Testfenster();
};

/// Centre of a part of a scroll bar.
QPoint teil(const Scrollleiste& leiste, QStyle::SubControl stueck);

/// Runs `schritt` on the dialog of that class which comes up next; fails the test if none comes.
template <typename Dialog>
void am_naechsten_dialog(const std::function<void(Dialog&)>& schritt, int versuche = 200) {
    QTimer::singleShot(10, qApp, [schritt, versuche] {
        auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        if (dialog != nullptr && dialog->isVisible() && dialog->isActiveWindow()) {
            schritt(*dialog);
        } else if (versuche > 0) {
            am_naechsten_dialog<Dialog>(schritt, versuche - 1);
        }
    });
}

/// Runs the program until it ends itself, and returns its exit code; -1 if it does not end within seconds.
[[nodiscard]] int laufe_bis_zum_ende();

/// Answers the next message box by a button, after a look at it.
void antworte(
    QMessageBox::StandardButton knopf, const std::function<void(QMessageBox&)>& pruefe = [](QMessageBox&) {});

/// Types a file name into the next file dialog, after a look at it, and confirms it.
void waehle_datei(
    const std::filesystem::path& datei,
    const std::function<void(QFileDialog&)>& pruefe = [](QFileDialog&) {});

/// Opens a list by the mouse and picks a row of it by the keyboard.
void waehle_zeile(QComboBox& liste, int zeile);

/// Moves the pointer over a widget; at twice the resolution that may lie beyond the screen of the tests.
void bewege_ueber(QWidget& fenster, QPointF ort = {5, 5});

/// Fails the test for every visible control of a window or plane whose text is cut off or which juts out.
void pruefe_platz(const QWidget& fenster, const std::string& wo);

}  // namespace velmaris::test
