#pragma once

#include "project/feldtabelle.h"
#include "studies/wertereihe.h"
#include "toolkit/csvleser.h"
#include "toolkit/wort.h"

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <vector>

namespace velmaris {

/// One row of a plan: what its columns give, as texts.
struct Planzeile {
    std::uint64_t nummer = 0;                 ///< from 1
    std::vector<std::string> zellen;          ///< as many as the plan has columns
    std::optional<Zweisprachig> fehler = {};  ///< why the row itself cannot be read
};

/// The rows of a study, one after the other; however many there are, only one is kept.
class Studienplan {
  public:
    Studienplan() = default;
    Studienplan(const Studienplan&) = delete;
    Studienplan& operator=(const Studienplan&) = delete;
    virtual ~Studienplan() = default;

    /// The inputs that the rows set, each once.
    [[nodiscard]] const std::vector<const Feldzeile*>& spalten() const { return spalten_; }
    [[nodiscard]] std::uint64_t anzahl() const { return anzahl_; }

    /// The next row, false behind the last one.
    virtual bool naechste(Planzeile& zeile) = 0;

    /// Passes over rows without looking at them.
    virtual void ueberspringen(std::uint64_t zeilen) = 0;

    /// What a message calls the plan, and the line of row `nummer` in it.
    [[nodiscard]] virtual std::string name() const = 0;
    [[nodiscard]] virtual int zeile(std::uint64_t nummer) const = 0;

  protected:
    /// A second column of the same input is a Laufzeitfehler.
    void spalte_aufnehmen(const Feldzeile& feld);

    std::vector<const Feldzeile*> spalten_;
    std::uint64_t anzahl_ = 0;
};

/// All combinations of some ranges; the last one runs fastest. More than `hoechste_zeilenzahl` are
/// a Laufzeitfehler.
class Gitterplan final : public Studienplan {
  public:
    explicit Gitterplan(std::vector<Wertereihe> reihen);

    bool naechste(Planzeile& zeile) override;
    void ueberspringen(std::uint64_t zeilen) override { nummer_ += zeilen; }
    [[nodiscard]] std::string name() const override { return "--variiere"; }
    [[nodiscard]] int zeile(std::uint64_t nummer) const override { return static_cast<int>(nummer); }

  private:
    std::vector<Wertereihe> reihen_;
    std::uint64_t nummer_ = 0;
};

/// The rows of a CSV file in UTF-8, whose first line names the inputs. Cells stand between commas, or between
/// semicolons with decimal commas, as the first line has it; a byte order mark and both kinds of line ends
/// are taken. A file that cannot be read, a line longer than 64 KB and a wrong first line are a Dateifehler.
class Dateiplan final : public Studienplan {
  public:
    explicit Dateiplan(std::string datei);

    bool naechste(Planzeile& zeile) override;
    void ueberspringen(std::uint64_t zeilen) override;
    [[nodiscard]] std::string name() const override { return name_; }
    [[nodiscard]] int zeile(std::uint64_t nummer) const override { return static_cast<int>(nummer) + 1; }

  private:
    void zeilen_zaehlen();
    void kopf_lesen();
    bool zeile_holen();

    std::string name_;
    std::ifstream strom_;
    Csvleser leser_;
    std::string text_;
    std::uint64_t nummer_ = 0;
};

}  // namespace velmaris
