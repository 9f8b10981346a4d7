#pragma once

#include "planes/eingabehinweise.h"

#include <QString>
#include <string_view>

class QWidget;

namespace velmaris {

/// Plain text as a paragraph of a tip; a tip of paragraphs breaks its lines.
[[nodiscard]] QString tippabsatz(const QString& text);

/// Lets a widget say what its input is: in a tip where the pointer rests, and to screen readers.
void eingabetipp(QWidget& fenster, const Eingabehinweis& hinweis, std::string_view sprache);

}  // namespace velmaris
