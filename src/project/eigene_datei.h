#pragma once

#include <filesystem>
#include <string>

namespace velmaris {

/// The project's own file: the one that this run opened whole or saved last, and what stood in it then.
class EigeneDatei {
  public:
    /// Record and file hold the same: the record was read whole from those bytes, or written as them.
    void uebernehmen(const std::filesystem::path& datei, std::string bytes);

    /// The record no longer comes from the file.
    void loesen() { verbunden_ = false; }

    /// Forgets the file.
    void vergessen() { *this = {}; }

    /// True if the record comes from the own file and the path leads to it.
    [[nodiscard]] bool gehoert(const std::filesystem::path& datei) const;

    /// True if the path leads to the own file and other bytes stand there now, or it cannot be read. A file
    /// that is gone counts as unchanged.
    [[nodiscard]] bool fremd_geaendert(const std::filesystem::path& datei) const;

  private:
    [[nodiscard]] bool ist(const std::filesystem::path& datei) const;

    std::filesystem::path ort_;  ///< absolute and free of links
    std::string stand_;
    bool verbunden_ = false;
};

}  // namespace velmaris
