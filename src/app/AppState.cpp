// AppState.cpp - the one state of the program.
#include "app/AppState.h"

namespace app {

AppState state;

}  // namespace app
