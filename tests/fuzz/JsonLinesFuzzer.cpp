// Loads random JSON Lines. What was loaded must survive saving and loading.

#include <nvlist/json/JsonLines.h>
#include <nvlist/platform/headless/HeadlessApplication.h>
#include <nvlist/platform/headless/HeadlessList.h>
#include <nvlist/values/Failure.h>

#include "../files/MemoryFiles.h"
#include "Input.h"

namespace {

using namespace norvane;

std::string saved(nvList& list, MemoryFiles& files, json::Fields fields) {
  json::save(list, "out", {.fields = fields});
  return files.files["out"];
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  HeadlessApplication application;
  MemoryFiles files;
  HeadlessList headless(50, 50);
  HeadlessList again(50, 50);
  files.files["in"].assign(reinterpret_cast<const char*>(data), size);
  try {
    const json::Result result = json::load(headless.list(), "in");
    require(result.items == headless.list().ItemsCount());
  } catch (const Failure&) {
    require(headless.list().ItemsCount() == 0);
    return 0;
  }
  require(files.open == 0);
  const std::string all = saved(headless.list(), files, json::Fields::all);
  for (const json::Fields fields : {json::Fields::all, json::Fields::changed}) {
    saved(headless.list(), files, fields);
    const json::Result result = json::load(again.list(), "out");
    require(result.problems == 0 && result.unknownFields.empty());
    require(saved(again.list(), files, json::Fields::all) == all);
  }
  return 0;
}
