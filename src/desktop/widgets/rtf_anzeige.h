#pragma once

#include "documents/report/rtf_lesen.h"

#include <vector>

class QTextDocument;

namespace velmaris {

/// Sets paragraphs into a document for the screen, `pixel_je_punkt` pixels to the point.
void setze_absaetze(QTextDocument& dokument, const std::vector<Absatz>& absaetze, double pixel_je_punkt);

}  // namespace velmaris
