#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include <nvlist/values/Boolean.h>
#include <nvlist/values/Variant.h>
#include <nvlist/values/enumerations.h>

namespace norvane {

/// Small helpers for a host: text files, a sound, list boxes in files, the theme and the mouse. It
/// keeps nothing, so one is as good as another.
///
/// File names are UTF-8, and texts stand in their files byte by byte as they are. A failure is
/// reported; the file is closed then, and a text that was written in part stays so.
class SpEv {
 public:
  /// The whole file, line ends included. Empty where it cannot be read.
  std::string TextRead(const std::string& Filename);
  /// Puts the text and a line end, carriage return and line feed, into a new file in the place of
  /// an old one.
  void TextSave(const std::string& Filename, const std::string& Text);

  /// Begins to play a sound file and returns at once; one that still plays ends. There is no sound
  /// and no report where the platform cannot play it.
  void PlayMusic(const std::string& Filename);

  /// Puts each row of a list box between two texts and as one line, which ends with a carriage
  /// return and a line feed, into a new file. `List` holds a norvane::ListBox. More than 32767 rows
  /// are Failure 6, Overflow, once 32768 of them are written.
  void ListSave(const Variant& List, const std::string& Filename,
                const std::string& TextBeforeListText = {},
                const std::string& TextAfterListText = {});
  /// Adds each line of a file to the rows of a list box. Lines end as told at TextFile::readLine; a
  /// line end that closes the file adds no row.
  void ListRead(const Variant& List, const std::string& Filename);

  /// Whether there is a file or folder of that name; `*` and `?` in its last part stand for others.
  Boolean FileExists(const std::string& sFile);

  /// The theme of Windows XP that the program shows; styleClassic where there is none, or another.
  cActiveXPTheme ActiveXPTheme();

  /// The mouse button that is down, or was pressed since it was asked for last: 1 left, else 2
  /// right, else 4 middle (which is not mouseMiddle), else 0.
  cMouseButton MouseButtonPressed();

 private:
  static Boolean IsWinXP();
  /// The text up to its first zero character, one byte a character. Without one that is a failure.
  static std::string ConvUnicode(std::u16string_view text);
};

}  // namespace norvane
