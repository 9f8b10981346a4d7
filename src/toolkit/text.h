#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace velmaris {

/// UTF-8 to windows-1252; a character that the code page lacks becomes "?".
[[nodiscard]] std::string nach_windows1252(std::string_view utf8);

/// windows-1252 to UTF-8; total: the five bytes that the code page leaves open become the control characters
/// of the same number.
[[nodiscard]] std::string aus_windows1252(std::string_view bytes);

/// True if windows-1252 has all characters of the text.
[[nodiscard]] bool in_windows1252(std::string_view utf8);

/// True if the bytes are whole UTF-8 characters throughout.
[[nodiscard]] bool ist_utf8(std::string_view bytes);

/// A text for display in whole UTF-8 characters: bytes that belong to none and control characters become the
/// replacement character.
[[nodiscard]] std::string lesbar(std::string_view bytes);

/// True if a text (UTF-8) holds control characters, those of one byte or the upper ones (U+0080 to U+009F).
[[nodiscard]] bool hat_steuerzeichen(std::string_view utf8);

/// Number of characters (code points) of a UTF-8 text.
[[nodiscard]] std::size_t zeichenzahl(std::string_view utf8);

/// Blanks in front of the text up to `breite` characters; a longer text stays whole.
[[nodiscard]] std::string rechtsbuendig(std::string_view utf8, std::size_t breite);

/// Lower and upper case of ASCII and of the Latin-1 letters; the sharp s stays.
[[nodiscard]] std::string kleinschreiben(std::string_view utf8);
[[nodiscard]] std::string grossschreiben(std::string_view utf8);

/// A path from UTF-8; a backslash is a folder separator.
[[nodiscard]] std::filesystem::path pfad(std::string_view utf8);

/// A path as UTF-8 text.
[[nodiscard]] std::string pfadtext(const std::filesystem::path& pfad);

}  // namespace velmaris
