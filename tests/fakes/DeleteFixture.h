// DeleteFixture.h - an airport for the tests of what is deleted with what, and the questions that are asked.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "fakes/AirportFixture.h"
#include "model/DeleteRules.h"
#include "model/EditHistory.h"
#include "platform/Platform.h"

namespace deleting {

using namespace model;
using platform::Answer;
using platform::Buttons;
using platform::Icon;
using Objects = std::vector<SceneryObject*>;

inline constexpr const char* kTowerQuestion = "Are you sure you want to delete the control tower viewpoint?";
inline constexpr const char* kRunwayQuestion =
    "This runway is equipped with ILS.\n\nIf you delete the runway the ILS will also be deleted.\n\n"
    "Do you want to proceed?";
inline constexpr const char* kStockNavaids =
    "Flight Simulator does not allow stock navaids to be deleted,\nthey can only be moved or modified.\n\n"
    "This operation has been cancelled.";
inline constexpr const char* kStockIls =
    "Flight Simulator does not allow stock ILS to be deleted,\nthey can only be moved or modified.\n\n"
    "This operation has been cancelled.";

inline SceneryObject* Selected(SceneryObject* object) {
    object->flags |= kSelected;
    return object;
}
inline SceneryObject* Whole(SceneryObject* object) {
    object->flags |= kSelected | kWholeSelected;
    return object;
}
inline SceneryObject* Stock(SceneryObject* object) {
    object->flags |= kStock;
    return object;
}
inline void Tie(SceneryObject* stock, SceneryObject* replacement) {
    stock->related = replacement;
    replacement->related = stock;
}

inline const std::vector<EncodedPoint>& Hexagon() {
    static const std::vector<EncodedPoint> corners = { build::Encoded({ 0, 0 }),     build::Encoded({ 50, 80 }),
                                                       build::Encoded({ 150, 80 }),  build::Encoded({ 200, 0 }),
                                                       build::Encoded({ 150, -80 }), build::Encoded({ 50, -80 }) };
    return corners;
}

inline SceneryObject* WithSelectedVertices(SceneryObject* apron, std::initializer_list<size_t> vertices) {
    for (size_t v : vertices) PayloadAs<ApronHead>(apron).selection[v / 8] |= static_cast<uint8_t>(1 << (v % 8));
    return Selected(apron);
}

inline bool SamePoints(const std::vector<EncodedPoint>& a, const std::vector<EncodedPoint>& b) {
    return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(EncodedPoint)) == 0;
}

inline EdgeLightStrip Strip(float spacing, uint8_t segment = 0, uint8_t start = 0, uint8_t end = 0) {
    return { spacing, 1, 2, 3, 4, segment, start, end };
}

class DeleteFixture : public AirportFixture {
protected:
    static void ExpectMessage(size_t place, const std::string& text, Buttons buttons) {
        ASSERT_LT(place, fake.messages.size());
        EXPECT_EQ(fake.messages[place].text, text);
        EXPECT_EQ(fake.messages[place].buttons, buttons);
        EXPECT_EQ(fake.messages[place].icon, Icon::Exclamation);
    }
    // The list as expected, and one Undo brings everything back.
    static void ExpectLeft(const Objects& expected, const Objects& before) {
        EXPECT_EQ(build::List(), expected);
        EXPECT_EQ(build::ListFromTail(), expected);
        Undo();
        EXPECT_EQ(build::List(), before);
        EXPECT_EQ(build::ListFromTail(), before);
        EXPECT_FALSE(CanUndo());
        Redo();
        EXPECT_EQ(build::List(), expected);
    }
    static bool IsListed(const SceneryObject* object) {
        const Objects list = build::List();
        return std::find(list.begin(), list.end(), object) != list.end();
    }
    static SceneryObject* NameOf(SceneryObject* link) { return PayloadAs<TaxiLinkPayload>(link).designator; }

    static IlsPayload& IlsOf(SceneryObject* ils) { return PayloadAs<IlsPayload>(ils); }
    static RunwayRecord& BodyOf(SceneryObject* runway) { return PayloadAs<RunwayPayload>(runway).body; }

    // An ILS that runway `number` (and its designator) of airport `ident` names by localizer alone.
    static SceneryObject* IlsByLocalizer(uint8_t number, uint8_t designator, std::string_view ident) {
        SceneryObject* ils = build::Ils("ISEA");
        IlsOf(ils).localizer.runwayNumber = number;
        IlsOf(ils).localizer.runwayDesignator = designator;
        IlsOf(ils).body.region = PackIdent(ident) << 11 | 0x123;
        return ils;
    }
};

}  // namespace deleting
