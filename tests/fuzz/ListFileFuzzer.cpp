// Reads random files in all ways in which a list reads files. The result must survive saving and
// loading, and items that were not accessed yet must move like others.

#include <algorithm>

#include <nvlist/objects/Error.h>
#include <nvlist/platform/headless/HeadlessApplication.h>
#include <nvlist/platform/headless/HeadlessList.h>

#include "../files/MemoryFiles.h"
#include "Input.h"

namespace {

using namespace norvane;

class Host final : public __nvList {
 public:
  int failures = 0;
  void ErrorListInput() override { ++failures; }
  void ErrorListSave() override { ++failures; }
};

/// Whether two items agree in everything that a list file preserves. It does not preserve a colour
/// that is neither "def" nor a plain number.
void requireSame(const ListItem& a, const ListItem& b) {
  const auto sameColour = [](const Variant& x, const Variant& y) {
    const bool isKept = isDefaultMark(x) || (x.type() == Variant::Type::Int32 && x.toInt32() >= 0 &&
                                             x.toInt32() <= 0xFFFFFF);
    return !isKept || x.toText() == y.toText();
  };
  require(a.Text == b.Text && a.Key == b.Key && a.Tag.toText() == b.Tag.toText());
  require(a.Checked == b.Checked && a.AllowEdit == b.AllowEdit && a.Enabled == b.Enabled);
  require(a.Selected == b.Selected && a.Bold == b.Bold && a.Italic == b.Italic);
  require(a.Underline == b.Underline && (a.Alignment & 0xFF) == (b.Alignment & 0xFF));
  require(sameColour(a.ForeColor, b.ForeColor) && sameColour(a.BackColor, b.BackColor));
  require(sameColour(a.ForeColorSelect, b.ForeColorSelect));
  require(sameColour(a.BackColorSelect, b.BackColorSelect));
  require(sameColour(a.ForeColorDis, b.ForeColorDis) && sameColour(a.BackColorDis, b.BackColorDis));
}

void requireSameItems(nvList& a, nvList& b) {
  require(a.ItemsCount() == b.ItemsCount());
  for (std::int32_t i = 0; i < a.ItemsCount(); ++i)
    requireSame(a.state().Items.at(i), b.state().Items.at(i));
}

void change(nvList& list, int way) {
  constexpr void (*changes[])(nvList & list, std::int32_t last) = {
      [](nvList& list, std::int32_t) { list.ItemsAdd("added", 0); },
      [](nvList& list, std::int32_t last) { list.ItemsRemove(Variant(last / 2)); },
      [](nvList& list, std::int32_t) { list.Sort(cAscending); },
      [](nvList& list, std::int32_t last) { list.MoveItemUp(last, 2); },
      [](nvList& list, std::int32_t last) { list.ItemText(last / 2, "other"); },
      [](nvList& list, std::int32_t last) { list.ListIndex(last); },
      [](nvList& list, std::int32_t) { list.ItemsSelectedRemove(); },
      [](nvList& list, std::int32_t) { list.CheckScroll(); }};
  changes[way >> 3 & 7](list, list.ItemsCount() - 1);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const int way = data[0];
  HeadlessApplication application;
  MemoryFiles files;
  HeadlessList headless(50, 50);
  nvList& list = headless.list();
  Host host;
  list.addSink(host);
  Error().SilentError((way & 1) != 0);

  files.files["in"].assign(reinterpret_cast<const char*>(data) + 1, size - 1);
  list.ListFileItemsCount("in");
  if (way & 2)
    list.ListInput2("in", "\n");
  else
    list.ListInput("in", (way & 4) != 0);
  require(files.open == 0 && host.failures <= 1);

  HeadlessList unseen(50, 50);
  if (!(way & 2)) {
    unseen.list().ListInput("in", (way & 4) != 0);
    requireSameItems(list, unseen.list());
    unseen.list().ListInput("in", (way & 4) != 0);
    change(unseen.list(), way);
  }

  const bool couldRead = host.failures == 0;
  list.ListSave("out", true);
  if (couldRead) require(host.failures == 0);
  HeadlessList again(50, 50);
  if (couldRead && !(way & 2)) {
    again.list().addSink(host);
    again.list().ListInput("out", true);
    require(host.failures == 0);
    requireSameItems(list, again.list());
  }
  if (!(way & 2)) {
    change(list, way);
    requireSameItems(list, unseen.list());
  }
  require(files.open == 0);
  constexpr std::size_t head = 12;
  require(files.largestRead <=
          std::max(head, files.files["in"].size() + files.files["out"].size()));
  return 0;
}
