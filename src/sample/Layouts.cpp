// Layouts.cpp - which layout belongs to which airport.
#include "sample/Layouts.h"

namespace sample {

void LayOut(AirportPlan* plan) {
    if (plan->ident == kHubIdent) return LayOutHub(plan);
    if (plan->ident == kRegionalIdent) return LayOutRegional(plan);
    if (plan->ident == kGrassIdent) return LayOutGrass(plan);
    LayOutGenerated(plan);
}

}  // namespace sample
