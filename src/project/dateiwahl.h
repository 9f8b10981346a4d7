#pragma once

#include "project/sitzung.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace velmaris {

/// Asks for a file. A dialog without a folder of its own begins in that of the last dialog of this run, the
/// first one in `InitDir`; what it is left with is remembered. Nothing on cancel.
[[nodiscard]] std::optional<std::filesystem::path> datei_erfragen(Sitzung& sitzung, Dateidialog dialog);

/// True if there is no file of that path, or if the user lets it be replaced; the answer proposed is No.
/// `hinweis` is shown below the question.
[[nodiscard]] bool ersetzen_erlaubt(const Sitzung& sitzung, const std::string& datei,
                                    const std::string& hinweis = {});

/// Asks for a file to write, until it is one that may be replaced or there is none yet. Nothing on cancel.
[[nodiscard]] std::optional<std::filesystem::path> zieldatei_erfragen(Sitzung& sitzung, Dateidialog dialog);

/// The name of the project's file with another ending (with its point), for what is written beside it; empty
/// for a project without a file.
[[nodiscard]] std::string namensvorschlag(const Sitzung& sitzung, std::string_view endung);

}  // namespace velmaris
