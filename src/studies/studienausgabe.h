#pragma once

#include "studies/studienplan.h"

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iosfwd>
#include <string>
#include <string_view>

namespace velmaris {

/// The beginning of an output row: the row's number and what the plan gives, each with its comma.
[[nodiscard]] std::string zeilenanfang(const Planzeile& zeile);

/// How far an earlier run came.
struct Vorlauf {
    std::uint64_t zeilen = 0;
    std::uint64_t fehlerhafte = 0;
};

/// The output of a study, a row a line, which at any time holds whole rows alone, but for a crash of the
/// machine in the midst of one.
class Studienausgabe {
  public:
    /// Without a file it goes to `aus`. A failure of what follows is a Dateifehler.
    Studienausgabe(std::string datei, std::ostream& aus) : datei_(std::move(datei)), aus_(aus) {}

    /// Begins with the head; an older file is gone then.
    void beginnen(std::string_view kopf);

    /// Goes on behind the whole rows that the file has, at most `hoechstens`, and takes the same rows off the
    /// plan. A file with another head or with rows of another plan is a Dateifehler and stays as it is; a
    /// file that is missing or empty begins.
    [[nodiscard]] Vorlauf fortsetzen(std::string_view kopf, Studienplan& plan, std::uint64_t hoechstens);

    /// Appends whole rows. Where not all of them can be written, those that are whole stay.
    void schreiben(std::string_view zeilen);

  private:
    void oeffnen();
    [[noreturn]] void gescheitert(std::string_view zeilen);
    [[noreturn]] void fremd(std::uint64_t zeile) const;

    std::string datei_;
    std::ostream& aus_;
    std::ofstream strom_;
    std::uintmax_t ganz_ = 0;  ///< bytes of the file that are whole rows
};

}  // namespace velmaris
