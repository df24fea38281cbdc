// Bounds on the memory that reading a file uses.

#include "../files/FileTest.h"
#include "Allocations.h"

namespace norvane::attacks {
namespace {

using MemoryOfFiles = FileTest;

TEST_F(MemoryOfFiles, BelievesNoLength) {
  const std::string some(64, '0'), record = text("a") + fields();
  allocations::Watch watch;
  for (const int bad : {-2147483647 - 1, -1, 65, 2147483647}) {
    const std::string what = std::to_string(bad), length = int32(bad) + some;
    expectRefused(header(0, false) + length, "text " + what);
    expectRefused(header(0, true) + record + zeros(4) + length, "key " + what);
    expectRefused(header(0, true) + record + zeros(8) + length, "tag " + what);
    expectRefused(header(0, true, 271) + record + "\1" + length, "icon " + what);
    expectRefused(header(0, true, 271) + record + byte(0) + "\1" + length, "second " + what);
  }
  for (const char* digits : {"   -1", "99999", "abcde", "     "})
    expectRefused(header(0, false, 270) + "12345678901" + digits + some, digits);
  EXPECT_LE(watch.largest, 8192U);  // a chunk of items
}

TEST_F(MemoryOfFiles, BelievesNoCount) {
  allocations::Watch watch;
  for (const int last : {-2, -2147483647 - 1, 2000000000, 2147483647})
    for (const int version : {100, 270, 273})
      for (const bool properties : {false, true})
        expectRefused(header(last, properties, version) + zeros(1000), std::to_string(last));
  EXPECT_LE(watch.largest, 8192U);  // a chunk of items
  // As many as the bytes can hold, and one more.
  input(header(4999, false, 271) + zeros(5000 * 4));
  expectRefused(header(5000, false) + zeros(5001 * 4 - 1), "one too many");
  EXPECT_EQ(list.state().Items.upperBound(), 4999);
  // A few that take no bytes at all are possible.
  input(header(4095, false, 269));
  EXPECT_EQ(list.ItemsCount(), 4096);
  expectRefused(header(4096, false, 269), "too many of nothing");
}

TEST_F(MemoryOfFiles, ATextFileTakesItsSizeBesideTheItems) {
  constexpr std::size_t size = 1'000'000;
  // No row is painted: a surface that records what it paints takes memory of its own.
  headless.resize(200, 0);
  for (const std::size_t piece : {size, size / 2, size / 100, std::size_t{10}}) {
    std::string& text = memory.files["text"];
    text.assign(size, 'x');
    // The last byte, too: a long line is usually followed by an empty piece.
    for (std::size_t at = piece; at <= size; at += piece) text[at - 1] = ',';
    list.ItemsClear();
    const std::size_t before = allocations::bytes();
    allocations::Watch watch;
    list.ListInput2("text", ",");
    EXPECT_LT(watch.peak, size + (allocations::bytes() - before) + 200'000) << piece;
  }
}

}  // namespace
}  // namespace norvane::attacks
