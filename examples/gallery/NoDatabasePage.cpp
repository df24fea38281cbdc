#include "Pages.h"

namespace gallery {

/// Replaces DatabasePage.cpp in builds without Qt Sql.
void fillDatabase(Stage& stage) { stage.say("This gallery was built without Qt's module Sql."); }

}  // namespace gallery
