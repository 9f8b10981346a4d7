#pragma once

#include <filesystem>
#include <string_view>

namespace velmaris {

/// Makes a file that must not exist yet, not even as a link that leads nowhere, gives it those rights unless
/// they are `unknown`, writes the bytes and waits until they are on the disk. Returns 0, or the error number
/// of the system; then nothing is left of the file, except that `EEXIST` leaves the one that was there.
[[nodiscard]] int neue_datei(const std::filesystem::path& datei, std::string_view bytes,
                             std::filesystem::perms rechte = std::filesystem::perms::unknown);

/// True if the existing file may be written: it has a right to be written at all, which a superuser would
/// overlook, and the system lets this process do it.
[[nodiscard]] bool ist_beschreibbar(const std::filesystem::path& datei);

}  // namespace velmaris
