#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include <nvlist/values/Boolean.h>
#include <nvlist/values/Variant.h>
#include <nvlist/values/enumerations.h>

namespace norvane {

struct Module;

/// Helpers for hosts: text files, sound, list boxes in files, the theme and the mouse. It has no
/// state.
///
/// File names are UTF-8, and texts are read and written byte by byte. A failure is reported and the
/// file closed; text already written stays in the file.
class SpEv {
 public:
  /// The contents of a file, including line ends. Empty if it cannot be read.
  std::string TextRead(const std::string& Filename);
  /// Writes a file, replacing an old one, with the text and a line end (CR LF).
  void TextSave(const std::string& Filename, const std::string& Text);

  /// Starts playing a sound file and returns at once; a sound still playing stops. A file that the
  /// platform cannot play is silent and not reported.
  void PlayMusic(const std::string& Filename);

  /// Writes a file, replacing an old one, with each row of a list box as a line (CR LF) between the
  /// two texts. `List` holds a norvane::ListBox. Reports Failure 6, Overflow, after 32768 rows.
  void ListSave(const Variant& List, const std::string& Filename,
                const std::string& TextBeforeListText = {},
                const std::string& TextAfterListText = {});
  /// Adds each line of a file, as read by TextFile::readLine, as a row to a list box. A line end at
  /// the end of the file adds no row.
  void ListRead(const Variant& List, const std::string& Filename);

  /// Whether a file or folder of that name exists. `*` and `?` in its last part are wildcards.
  Boolean FileExists(const std::string& sFile);

  /// The colour scheme of the active Windows XP theme; styleClassic for none and any other.
  cActiveXPTheme ActiveXPTheme();

  /// The first of these buttons that is down or was pressed since the last query: 1 left, 2 right,
  /// 4 middle (not mouseMiddle, as published); otherwise 0.
  cMouseButton MouseButtonPressed();

 private:
  static const Module here;

  static Boolean IsWinXP();
  /// The text up to its first zero character, with one byte a character. Reports Failure 5 if it
  /// has no zero character.
  static std::string ConvUnicode(std::u16string_view text);
};

}  // namespace norvane
