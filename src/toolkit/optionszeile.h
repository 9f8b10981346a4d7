#pragma once

#include "toolkit/wort.h"

#include <string>
#include <vector>

namespace velmaris {

/// A word that a command line may hold, as help, manual and completion tell it. The value's placeholder says
/// what it takes: "d|e" one of these words, "1..7" a number of that range, "DATEI.vel" a file of that ending,
/// "DATEI" any file, "ORDNER" a folder, "NAME=WERTE" an input and its values; anything else is free.
struct Optionszeile {
    std::string name;  ///< all its names with commas between them, or the placeholder of an operand
    std::string wert;  ///< placeholder of its value, empty for one that takes none
    Zweisprachig text;

    [[nodiscard]] bool ist_operand() const { return !name.starts_with('-'); }
};

/// A description in both languages as one line of help has it, German before " / ", taken apart.
[[nodiscard]] Zweisprachig zweisprachig(const std::string& zeile);

/// The help on a command line: how to call, a line for each way, and its words in both languages.
[[nodiscard]] std::string hilfetext(const std::string& aufruf, const std::vector<Optionszeile>& zeilen);

}  // namespace velmaris
