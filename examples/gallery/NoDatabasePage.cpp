#include "Pages.h"

namespace gallery {

/// In the place of DatabasePage.cpp where there is nothing to read a database with.
void fillDatabase(Stage& stage) { stage.say("This gallery was built without Qt's module Sql."); }

}  // namespace gallery
