// AirportFixture.h - a model with nothing but an airport's own record.
#pragma once

#include <gtest/gtest.h>

#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "model/ObjectList.h"

class AirportFixture : public testing::Test {
protected:
    void SetUp() override {
        ResetFakes();
        BeginAgain();
    }
    void TearDown() override { model::ClearModel(); }

    void BeginAgain() {
        model::ClearModel();
        airport = build::Airport("KSEA");
    }

    model::SceneryObject* airport = nullptr;
};
