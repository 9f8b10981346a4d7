#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace velmaris {

/// Bound for files of the source tree, which the generators and tests read, in bytes.
inline constexpr std::size_t hoechste_quellgroesse = std::size_t{64} << 20U;

/// All bytes of a regular file. A missing or unreadable file, one of more than `hoechstens` bytes, and
/// whatever is no regular file (folder, pipe, device) are a Dateifehler; the latter is not even opened.
[[nodiscard]] std::string bytes_lesen(const std::filesystem::path& datei, std::size_t hoechstens);

/// The first `hoechstens` bytes of a regular file; errors as in `bytes_lesen`, but for the size.
[[nodiscard]] std::string anfang_lesen(const std::filesystem::path& datei, std::size_t hoechstens);

/// Replaces a file as a whole, or what a link leads to: the bytes go to a neighbour of this writer's own,
/// are waited for until they are on the disk, and the neighbour is renamed into place. So a failure (full
/// disk, folder that cannot be written) leaves the old file as it was, and of several writers one wins whole.
/// The rights of the old file stay. A failure is a Dateifehler, and so is a target that is write-protected,
/// no regular file, or a link that leads nowhere.
void datei_ersetzen(const std::filesystem::path& datei, std::string_view bytes);

/// Writes a file that does not exist yet; false if it does, and it stays as it is. A failure is
/// a Dateifehler and leaves nothing.
[[nodiscard]] bool datei_anlegen(const std::filesystem::path& datei, std::string_view bytes);
/// True if files can be made in a folder, found out by trying; false for a folder that does not exist.
[[nodiscard]] bool ordner_beschreibbar(const std::filesystem::path& ordner);

/// Lets a file that would exceed the size limit of the process fail like any other that cannot be written,
/// where the system would end the process instead. To be called at the start of a program.
void dateigrenze_melden();

/// Walks a text line by line; a line ends at LF or CR LF. The text must outlive the reader.
class Zeilenleser {
  public:
    explicit Zeilenleser(std::string_view text) : rest_(text) {}

    /// The next line without its end, nothing behind the last one.
    [[nodiscard]] std::optional<std::string_view> naechste();

    /// Number of lines taken so far.
    [[nodiscard]] int zeile() const { return zeile_; }

  private:
    std::string_view rest_;
    int zeile_ = 0;
};

/// The tolerant list input: items end at a comma or at the end of a line, blanks before an item are
/// skipped. The text must outlive the reader.
class Listenleser {
  public:
    explicit Listenleser(std::string_view text) : rest_(text) {}

    /// The next item, without the blanks in front of it; nothing behind the last one.
    [[nodiscard]] std::optional<std::string_view> naechster();

    /// Line (from 1) of the item taken last.
    [[nodiscard]] int zeile() const { return zeile_; }

    /// What stands behind the item taken last, from behind its comma or line end.
    [[nodiscard]] std::string_view rest() const { return rest_; }

  private:
    std::string_view rest_;
    int zeile_ = 0;
    bool neue_zeile_ = true;
};

/// The columns `von` to `bis` (from 1) of a line; what lies behind the line's end is missing.
[[nodiscard]] inline std::string_view spalten(std::string_view zeile, std::size_t von, std::size_t bis) {
    if (zeile.size() < von) return {};
    return zeile.substr(von - 1, bis - von + 1);
}

}  // namespace velmaris
