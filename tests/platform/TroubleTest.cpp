#include "../Lists.h"

namespace norvane {
namespace {

/// A form without ambient properties.
struct BareForm : HeadlessContainer {
  using HeadlessContainer::HeadlessContainer;
  Boolean UserMode() override { throw Failure::invalidCall(); }
  norvane::Font AmbientFont() override { throw Failure::invalidCall(); }
};

TEST(Trouble, AFormWithoutAmbientPropertiesIsServed) {
  HeadlessApplication program;
  BareForm form;
  nvList list(form);
  list.UserControl_InitProperties();
  EXPECT_TRUE(form.turnWheel(120));
  ASSERT_TRUE(list.Font());
  EXPECT_EQ(list.Font()->Name, "Tahoma");
  HeadlessContainer empty;
  empty.ambientFont = nullptr;
  nvList other(empty);
  other.UserControl_InitProperties();
  EXPECT_TRUE(other.Font());
}

}  // namespace
}  // namespace norvane
