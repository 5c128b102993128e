// IlsFixture.h - an airport with a runway 36L/18R of 3000 m, for tests of its ILSs.
#pragma once

#include "dialogs/Choices.h"
#include "dialogs/IlsDialog.h"
#include "dialogs/NewIls.h"
#include "fakes/DialogFixture.h"

class IlsFixture : public DialogFixture {
protected:
    void SetUp() override {
        DialogFixture::SetUp();
        airport = build::Airport("KSEA");
        As<model::AirportRecord>(airport).magneticVariation = 340;
        runway = build::Runway(36, 1);
        Runway().altitude = 130000;
        Runway().length = 3000;
        seed = 0;
    }
    model::RunwayRecord& Runway() { return As<model::RunwayPayload>(runway).body; }
    model::RunwayPayload& Parts() { return As<model::RunwayPayload>(runway); }
    static model::IlsPayload& Ils(model::SceneryObject* ils) { return As<model::IlsPayload>(ils); }

    model::SceneryObject* Create(int end) {
        return dialogs::CreateIls({ runway, end }, [this] { return seed++; });
    }
    // Of this airport, with those bytes for its runway end.
    static model::SceneryObject* Stock(std::string_view ident, uint8_t number, uint8_t designator) {
        model::SceneryObject* stock = build::Ils(ident);
        stock->flags |= model::kStock;
        Ils(stock).localizer.runwayNumber = number;
        Ils(stock).localizer.runwayDesignator = designator;
        Ils(stock).body.frequency = 110300000;
        Ils(stock).body.region = model::PackIdent("KSEA") << 11;
        return stock;
    }
    static model::Local At(uint32_t longitude, uint32_t latitude) {
        return model::LatLonToLocal(build::kMiddle, model::BglToLatLon({ latitude, longitude }));
    }
    template <class Change>
    bool Edit(model::SceneryObject* ils, Change change) {
        return OkAfter<dialogs::LoadIlsFields, dialogs::StoreIlsFields>(ils, change);
    }
    model::SceneryObject *airport = nullptr, *runway = nullptr;
    uint32_t seed = 0;
};
