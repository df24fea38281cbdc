#include <nvlist/platform/headless/HeadlessList.h>

#include <iostream>

int main() {
  norvane::HeadlessList form(200, 60);
  norvane::nvList& list = form.list();
  list.ItemsAdd("Vienna");
  list.ItemsAdd({.aText = "Graz", .aKey = "AT-6"});
  list.ItemsAdd("Linz", 0);

  std::cout << list.ItemsCount() << " items, " << list.VisibleItems() << " rows\n"
            << "AT-6 is at " << list.IndexByKey("AT-6") << ", V* at " << list.IsInList("V*") << "\n"
            << form.picture();
}
