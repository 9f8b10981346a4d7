#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>

namespace velmaris {

// What the standard library lacks for files and terminals.

struct Stromschliesser {
    void operator()(std::FILE* strom) const { std::fclose(strom); }
};
using Systemstrom = std::unique_ptr<std::FILE, Stromschliesser>;

/// Makes a file that does not exist yet, to be written; nothing if that fails, and `errno` says why.
[[nodiscard]] Systemstrom neuer_strom(const std::filesystem::path& datei);

/// Opens an existing file to be changed; nothing if the system does not let this process do it.
[[nodiscard]] Systemstrom aenderbarer_strom(const std::filesystem::path& datei);

/// Waits until what was written is on the disk; a disk that cannot be waited for counts as done.
[[nodiscard]] bool auf_die_platte(std::FILE* strom);

/// True if what goes to the stream is read on a terminal.
[[nodiscard]] bool ist_terminal(std::FILE* strom);

}  // namespace velmaris
