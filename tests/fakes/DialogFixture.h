// DialogFixture.h - the start and end of every dialog test, and what dialog tests ask again and again.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "app/Settings.h"
#include "dialogs/Field.h"
#include "fakes/BuildObjects.h"
#include "fakes/FakeDialogHost.h"
#include "fakes/FakePlatform.h"
#include "map/LinkTemplate.h"
#include "map/MapView.h"
#include "map/Tools.h"
#include "model/EditHistory.h"
#include "model/ObjectList.h"

class DialogFixture : public testing::Test {
protected:
    void SetUp() override { Reset(); }
    void TearDown() override { Reset(); }

    static void Reset() {
        model::ClearModel();
        model::state.edgeLights = {};
        ResetFakes();
        ResetDialogFakes();
        app::settings = app::Settings{};
        map::view = {};
        map::tools = {};
        map::ForgetLinkTemplates();
    }

    static std::vector<uint8_t> Bytes(const model::SceneryObject* object) {
        return { object->payload, object->payload + object->payloadSize };
    }

    // User actions that can be undone, counted by their first entries.
    static int Actions() {
        int count = 0;
        for (const model::SceneryObject* entry = model::state.undoHead; entry; entry = entry->historyNext) {
            count += (entry->flags & model::kGroupStart) != 0;
        }
        return count;
    }

    static std::string LastMessage() { return fake.messages.empty() ? "" : fake.messages.back().text; }

    template <class Record>
    static Record& As(model::SceneryObject* object) {
        return model::PayloadAs<Record>(object);
    }

    // The dialog of an object is opened, its fields are changed and OK is pressed. Whether that was accepted.
    template <auto load, auto store, class Change>
    bool OkAfter(model::SceneryObject* object, Change change) {
        const auto shown = load(object);
        auto entered = shown;
        change(entered);
        return store(shown, entered, object, &bad);
    }

    dialogs::BadField bad;
};
