// OneField.h - for tests that change one field of a dialog and look at the file that is written then: the airport that they
// edit, the file in parts, and the places in them that a change may touch.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "fakes/DialogFixture.h"
#include "fakes/SceneryBytes.h"

// A file by its records: the id in hex and the number among those of that id, "0004#1" the second runway; with what
// lies inside a record by itself, "0004#1/0005#0". Records of other sections than the airport's have the section before:
// "13:0013#0". Indices and the list of names are one part each.
using FileParts = std::map<std::string, ByteList>;
FileParts PartsOf(const ByteList& file);

constexpr size_t kToTheEnd = static_cast<size_t>(-1);

// Bytes of a part that must change, and no others; of a field that shares a number of up to four bytes, its bits.
struct Place {
    std::string part;
    size_t from = 0, size = kToTheEnd;
    uint32_t bits = 0xFFFFFFFF;
    bool surely = true;  // else it may stay
};

// A record's fields by their offsets in it; `base` is where it begins in the part.
struct RecordAt {
    const char* part;
    size_t base = 0;
    Place operator()(size_t offset, size_t size = 4, uint32_t bits = 0xFFFFFFFF) const {
        return { part, base + offset, size, bits };
    }
    Place From(size_t offset) const { return { part, base + offset }; }
};

// A part that comes or goes, or whose places depend on each other.
inline Place Whole(const char* part) { return { part }; }
inline Place Perhaps(Place place) {
    place.surely = false;
    return place;
}

void ExpectOnlyThere(const FileParts& before, const FileParts& after, const std::vector<Place>& places);

// One field of a dialog: how it is changed and where that shows. No place: it is no content of the file.
template <class Fields>
struct FieldRow {
    const char* name;
    void (*change)(Fields& fields);
    std::vector<Place> places;
    platform::Answer answer = platform::Answer::No;  // to a question, should there be one
};

class OneFieldTest : public DialogFixture {
protected:
    // At least two records of each kind that has a dialog, with something in every byte that is only carried.
    static void MakeAirport();
    static model::SceneryObject* Subject(uint32_t kind, int index);

    template <class Fields>
    using Store = bool (*)(const Fields&, const Fields&, model::SceneryObject*, dialogs::BadField*);

    // In feet and in metres, each row on a fresh airport.
    template <class Fields, class Object>
    void ExpectFields(uint32_t kind, int index, Fields (*load)(Object*), Store<Fields> store,
                      const std::vector<FieldRow<Fields>>& rows) {
        for (const bool metric : { false, true }) {
            for (const FieldRow<Fields>& row : rows) {
                SCOPED_TRACE(std::string(row.name) + (metric ? " in metres" : " in feet"));
                Start(metric);
                fake.answers = { row.answer };
                model::SceneryObject* object = Subject(kind, index);
                const Fields shown = load(object);
                Fields entered = shown;
                row.change(entered);
                const ByteList before = BuildFile();
                EXPECT_TRUE(store(shown, entered, object, &bad)) << LastMessage();
                EXPECT_EQ(Actions(), row.places.empty() ? 0 : 1);
                ExpectOnlyThere(PartsOf(before), PartsOf(BuildFile()), row.places);
                while (model::CanUndo()) model::Undo();
                EXPECT_EQ(BuildFile(), before) << "after Undo";
            }
            ExpectOkIsNothing<Fields>(metric, Subject(kind, index), load, store);
        }
    }

private:
    static void Start(bool metric);

    template <class Fields, class Object>
    void ExpectOkIsNothing(bool metric, model::SceneryObject* object, Fields (*load)(Object*), Store<Fields> store) {
        SCOPED_TRACE(metric ? "OK alone in metres" : "OK alone in feet");
        const uint32_t kind = model::KindOf(object);
        Start(metric);
        for (model::SceneryObject* each : build::List()) {
            if (model::KindOf(each) != kind) continue;
            const ByteList before = BuildFile();
            const Fields shown = load(each);
            EXPECT_TRUE(store(shown, shown, each, &bad)) << LastMessage();
            EXPECT_EQ(BuildFile(), before);
            EXPECT_EQ(Actions(), 0);
            EXPECT_FALSE(model::state.modified);
        }
    }
};
