#pragma once

#include <QFontMetrics>
#include <QString>

class QMessageBox;

namespace velmaris {

/// Makes the texts of a message box plain, also the one below the main text, and as wide as their longest
/// line where the screen has the room; a longer line is broken at its end only.
void meldungstexte_einrichten(QMessageBox& fenster);

/// A text that breaks into lines of that width: a piece without a blank or separator that is wider gets
/// places to break at between its letters.
[[nodiscard]] QString brechbar(const QString& text, const QFontMetrics& schrift, int breite);

}  // namespace velmaris
