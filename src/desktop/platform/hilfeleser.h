#pragma once

#include "toolkit/fehler.h"

#include <QString>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

namespace velmaris {

/// Reads compiled help files, by a library that not every system has. A program without it leaves the help to
/// the system's own viewer.
class Hilfeleser {
  public:
    static const bool eingebaut;

    /// Opens `kopie`, which stays closed to writers; `datei` is the file that it is a copy of, for messages.
    /// A copy that is no help file is a Dateifehler. Only where the reader is built in.
    Hilfeleser(const QString& kopie, std::filesystem::path datei);
    Hilfeleser(Hilfeleser&&) noexcept;
    Hilfeleser& operator=(Hilfeleser&&) noexcept;
    ~Hilfeleser();

    /// What the file has under a name ("/index.html"), nothing if it has no such thing.
    [[nodiscard]] std::optional<std::string> lies(const std::string& name) const;

  private:
    struct Griff;

    std::filesystem::path datei_;
    std::unique_ptr<Griff> griff_;
};

[[nodiscard]] Dateifehler hilfe_beschaedigt(const std::filesystem::path& datei);

/// Has the system's own viewer show a page ("/index.html") of a help file, or its first page where the viewer
/// takes no page. A Dateifehler if there is no viewer.
void hilfe_fremd_zeigen(const std::filesystem::path& datei, const std::string& seite);

}  // namespace velmaris
