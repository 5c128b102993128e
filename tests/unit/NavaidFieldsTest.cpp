#include "dialogs/NavaidFields.h"

#include "fakes/DialogFixture.h"

namespace {

using namespace dialogs;

class NavFrequency : public DialogFixture {
protected:
    bool Reads(FrequencyKind kind, const char* text, uint32_t expected) {
        uint32_t hertz = 1;
        return ReadNavFrequency(kind, "shown", text, false, &hertz, &bad) && hertz == expected;
    }
    bool Refuses(FrequencyKind kind, const char* text, const char* message) {
        uint32_t hertz = 1;
        return !ReadNavFrequency(kind, "shown", text, false, &hertz, &bad) && hertz == 1 &&
               bad.field == Field::Frequency && LastMessage() == message;
    }
};

TEST_F(NavFrequency, VorsHaveTheEvenTenthsAndLocalizersTheOddOnesBelow112) {
    EXPECT_TRUE(Reads(FrequencyKind::Vor, "108.2", 108200000));
    EXPECT_TRUE(Reads(FrequencyKind::Vor, "111.85", 111850000));
    EXPECT_TRUE(Reads(FrequencyKind::Vor, "113.9", 113900000));
    EXPECT_TRUE(Reads(FrequencyKind::Vor, "117.95", 117950000));
    EXPECT_TRUE(Refuses(FrequencyKind::Vor, "110.3",
                        "ERROR: The tenth of a VOR frequency below 112 MHz must be even, for example 110.2"));
    EXPECT_TRUE(Reads(FrequencyKind::Localizer, "110.3", 110300000));
    EXPECT_TRUE(Reads(FrequencyKind::Localizer, "111.95", 111950000));
    EXPECT_TRUE(Refuses(FrequencyKind::Localizer, "110.2",
                        "ERROR: The tenth of a localizer frequency must be odd, for example 110.3"));
    EXPECT_TRUE(Refuses(FrequencyKind::Localizer, "113.1",
                        "ERROR: The localizer frequency must be a number from 108.1 to 111.95 MHz"));
    EXPECT_TRUE(Reads(FrequencyKind::Dme, "110.3", 110300000));
    EXPECT_TRUE(Reads(FrequencyKind::Dme, "110.2", 110200000));
}

TEST_F(NavFrequency, BandsAndStepsAreChecked) {
    EXPECT_TRUE(Refuses(FrequencyKind::Vor, "118", "ERROR: The frequency must be a number from 108 to 117.95 MHz"));
    EXPECT_TRUE(Refuses(FrequencyKind::Vor, "113.93", "ERROR: The frequency must be a multiple of 0.05 MHz"));
    EXPECT_TRUE(Reads(FrequencyKind::Ndb, "190", 190000));
    EXPECT_TRUE(Reads(FrequencyKind::Ndb, "352.5", 352500));
    EXPECT_TRUE(Refuses(FrequencyKind::Ndb, "352.3", "ERROR: The frequency must be a multiple of 0.5 kHz"));
    EXPECT_TRUE(Refuses(FrequencyKind::Ndb, "2000", "ERROR: The frequency must be a number from 190 to 1750 kHz"));
    EXPECT_TRUE(Refuses(FrequencyKind::Ndb, "0", "ERROR: You must enter a frequency, for example 350.0"));
    EXPECT_TRUE(Refuses(FrequencyKind::Ndb, "low", "ERROR: You must enter a frequency, for example 350.0"));
    EXPECT_TRUE(Refuses(FrequencyKind::Vor, "", "ERROR: You must enter a frequency, for example 113.5"));
    EXPECT_TRUE(Refuses(FrequencyKind::Localizer, " ", "ERROR: You must enter a frequency, for example 110.3"));
}

TEST_F(NavFrequency, AnOldFrequencyOutsideTheRulesStaysUntilItIsChanged) {
    uint32_t hertz = 110333333;
    EXPECT_TRUE(ReadNavFrequency(FrequencyKind::Vor, "110.33", "110.33", false, &hertz, &bad));
    EXPECT_EQ(hertz, 110333333u);
    EXPECT_FALSE(ReadNavFrequency(FrequencyKind::Vor, "110.33", "110.33", true, &hertz, &bad));
}

TEST_F(NavFrequency, DmeChannelsArePairedWithFrequencies) {
    EXPECT_EQ(DmeChannel(108000000), "17X");
    EXPECT_EQ(DmeChannel(108050000), "17Y");
    EXPECT_EQ(DmeChannel(110300000), "40X");
    EXPECT_EQ(DmeChannel(112250000), "59Y");
    EXPECT_EQ(DmeChannel(112300000), "70X");
    EXPECT_EQ(DmeChannel(117950000), "126Y");
    EXPECT_EQ(DmeChannel(118000000), "");
    EXPECT_EQ(DmeChannel(110333333), "");
    EXPECT_EQ(DmeChannelOf("116.80"), "115X");
    EXPECT_EQ(DmeChannelOf("no"), "");
}

}  // namespace
