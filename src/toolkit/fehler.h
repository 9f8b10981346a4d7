#pragma once

#include "toolkit/wort.h"

#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

namespace velmaris {

/// A fault that ends what the program was doing: an arithmetic fault, an integer overflow, a control position
/// out of range. Its text tells the user what is wrong; what() is the German form.
class Laufzeitfehler : public std::runtime_error {
  public:
    /// `feld` names the quantity of the record that the fault is about, empty where there is none.
    explicit Laufzeitfehler(Zweisprachig grund, std::string feld = {});

    /// The whole message: the quantity, where there is one, and the reason.
    [[nodiscard]] const std::string& text(std::string_view sprache) const { return meldung_.in(sprache); }

    /// The reason alone.
    [[nodiscard]] const Zweisprachig& grund() const { return grund_; }
    [[nodiscard]] const std::string& feld() const { return feld_; }

  protected:
    Laufzeitfehler(const Zweisprachig& ort, Zweisprachig grund, std::string feld);

  private:
    Zweisprachig grund_;
    Zweisprachig meldung_;
    std::string feld_;
};

/// What is said where the memory does not suffice.
[[nodiscard]] Zweisprachig kein_speicher();

/// A fault in or at a file; names the file and, where known, the line (from 1) and the field.
class Dateifehler : public Laufzeitfehler {
  public:
    Dateifehler(std::string datei, Zweisprachig grund, int zeile = 0, const std::string& feld = {});

    [[nodiscard]] const std::string& datei() const { return datei_; }
    [[nodiscard]] int zeile() const { return zeile_; }

  private:
    std::string datei_;
    int zeile_;
};

}  // namespace velmaris
