#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

struct chmFile;

namespace velmaris {

/// A compiled help file (.chm), open for reading as long as the object lives.
class Hilfedatei {
  public:
    /// A file that is missing or is no compiled help is a Dateifehler.
    explicit Hilfedatei(std::filesystem::path datei);

    /// The bytes of a page, style sheet or picture by its name in the file ("/index.html"), nothing if the
    /// file has no such thing. What is there but cannot be unpacked is a Dateifehler.
    [[nodiscard]] std::optional<std::string> lies(const std::string& name) const;

    [[nodiscard]] const std::filesystem::path& pfad() const { return pfad_; }

  private:
    struct Schliessen {
        void operator()(chmFile* datei) const;
    };

    std::filesystem::path pfad_;
    std::unique_ptr<chmFile, Schliessen> datei_;
};

}  // namespace velmaris
