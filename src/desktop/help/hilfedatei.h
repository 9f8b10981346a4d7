#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

namespace velmaris {

/// A compiled help file (.chm) that is as the build made it. Beside it lies its checksum in a file of the
/// same name with ".sha256" behind it, the line that `sha256sum` writes. The reader of compiled help follows
/// lengths and places of a file without a look whether they can be, so it is only given bytes that fit the
/// checksum, in a copy of our own: what becomes of the file later does not reach pages on show.
class Hilfedatei {
  public:
    /// Compares the file with its checksum and opens it. A file that is missing, does not fit or has no
    /// checksum is a Dateifehler, and so is a folder for temporary files that cannot take the copy.
    explicit Hilfedatei(std::filesystem::path datei);
    Hilfedatei(Hilfedatei&&) noexcept;
    Hilfedatei& operator=(Hilfedatei&&) noexcept;
    ~Hilfedatei();

    /// Compares a file with its checksum and leaves it at that.
    static void pruefen(const std::filesystem::path& datei);

    /// The bytes of a page, style sheet or picture by its name in the file ("/index.html"), nothing if the
    /// file has no such thing.
    [[nodiscard]] std::optional<std::string> lies(const std::string& name) const;

    [[nodiscard]] const std::filesystem::path& pfad() const { return pfad_; }

  private:
    struct Kopie;

    std::filesystem::path pfad_;
    std::unique_ptr<Kopie> kopie_;
};

}  // namespace velmaris
