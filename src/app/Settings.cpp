// Settings.cpp - the one set of settings in force.
#include "app/Settings.h"

namespace app {

Settings settings;

}  // namespace app
