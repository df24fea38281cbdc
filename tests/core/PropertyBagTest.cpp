#include <nvlist/core/PropertyBag.h>

#include <gtest/gtest.h>

namespace norvane {
namespace {

TEST(PropertyBag, KeepsWhatIsNotTheDefaultInTheOrderItCameIn) {
  PropertyBag bag;
  const auto object = makeRef<Object>();
  bag.WriteProperty("b", 1, 0);
  bag.WriteProperty("a", "x", "");
  bag.WriteProperty("same", "x", "x");
  bag.WriteProperty("otherType", std::int16_t{-1}, true);
  bag.WriteProperty("object", object, Variant());
  bag.WriteProperty("sameObject", object, object);
  bag.WriteProperty("b", 2, 0);
  bag.WriteProperty("gone", 1, 0);
  bag.WriteProperty("gone", 0, 0);
  std::string names;
  for (const auto& property : bag.properties()) names += property.name + " ";
  EXPECT_EQ(names, "b a object ");
  EXPECT_EQ(bag.ReadProperty("b", 7).toInt32(), 2);
  EXPECT_EQ(bag.ReadProperty("B", 7).toInt32(), 7);
  EXPECT_EQ(bag.ReadProperty("gone", 7).toInt32(), 7);
  EXPECT_EQ(bag.ReadProperty("object", 0).object(), object);
}

}  // namespace
}  // namespace norvane
