#pragma once

#include <filesystem>
#include <string>

namespace velmaris::test {

/// A folder of its own for one test, removed at the end.
class Testordner {
  public:
    Testordner();
    Testordner(const Testordner&) = delete;
    Testordner& operator=(const Testordner&) = delete;
    ~Testordner();

    [[nodiscard]] const std::filesystem::path& pfad() const { return pfad_; }
    [[nodiscard]] std::filesystem::path operator/(const std::string& utf8) const;

    /// Writes a file below the folder, making its parents, and returns its path.
    std::filesystem::path schreibe(const std::string& utf8, const std::string& bytes) const;

  private:
    std::filesystem::path pfad_;
};

/// Makes a pipe that stands in a folder under that name; fails the test where there is no such thing.
void rohr_anlegen(const std::filesystem::path& name);

/// All bytes of a file; fails the test by an exception if it cannot be read.
std::string inhalt(const std::filesystem::path& datei);

}  // namespace velmaris::test
