#include "model/Replacement.h"

#include <gtest/gtest.h>

#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "model/EditHistory.h"
#include "model/Records.h"

namespace {

using namespace model;

TEST(Replacement, TheStockObjectIsNotSelectedAnyMoreNorIsAPartOfIt) {
    ResetFakes();
    ClearModel();
    SceneryObject* stock = build::Ils("ISEA");
    stock->flags |= kStock | kSelected | kWholeSelected;
    PayloadAs<IlsPayload>(stock).selectedParts = 7;
    SceneryObject* edited = CopyObject(stock);
    BeginAction();
    ReplaceStock(edited, stock);
    EXPECT_TRUE(IsSelected(edited));
    EXPECT_EQ(edited->related, stock);
    EXPECT_EQ(stock->related, edited);
    EXPECT_FALSE(IsSelected(stock));
    EXPECT_EQ(stock->flags & kWholeSelected, 0u);
    EXPECT_EQ(PayloadAs<IlsPayload>(stock).selectedParts, 0);
    ClearModel();
}

}  // namespace
