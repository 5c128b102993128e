// WriteLimits.h - whether the open airport fits into a scenery file (model/Limits.h).
#pragma once

#include <string>

namespace bgl {

// Empty when the open airport fits, else the message that says which limit it exceeds.
std::string WhatDoesNotFit();

}  // namespace bgl
