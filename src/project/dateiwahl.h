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

/// The name of the project's file with another ending (with its point), for what is written beside it; empty
/// for a project without a file.
[[nodiscard]] std::string namensvorschlag(const Sitzung& sitzung, std::string_view endung);

}  // namespace velmaris
