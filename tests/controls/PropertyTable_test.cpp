#include "controls/PropertyTable.h"

#include "support/Errors.h"
#include "support/PropertyBagFake.h"
#include "support/Recorder.h"

#include <gtest/gtest.h>

namespace sifter {

namespace {

// A thing with a setting that has a default and one that has none.
struct Lamp {
  Text colour = u"unset";
  std::int32_t watts = -1;
};

const PropertyRow<Lamp> kRows[] = {
    {u"Colour", u"Color", Saved::kUnlikeDefault, u"white"_text,
     [](const Lamp& lamp) { return Value(lamp.colour); },
     [](Lamp& lamp, const Value& value) { lamp.colour = ValueToText(value); }},
    {u"Watts", u"Watts", Saved::kUnlikeDefault, std::nullopt,
     [](const Lamp& lamp) { return Value(lamp.watts); },
     [](Lamp& lamp, const Value& value) { lamp.watts = ValueToInt32(value); }},
};

class PropertyTableTest : public testing::Test {
 protected:
  const PropertyTable<Lamp> table{kRows};
  Recorder recorder;
  PropertyBagFake bag{recorder};
  Lamp lamp;
};

TEST_F(PropertyTableTest, AnEntryWithoutADefaultIsAlwaysWritten) {
  lamp = {.colour = u"white", .watts = 0};
  WriteProperties(table, lamp, bag, Saving::kUnlikeDefault);
  EXPECT_TRUE(recorder.Shows({"write \"Watts\" 0"}));
}

TEST_F(PropertyTableTest, AllAreWrittenOnDemand) {
  lamp = {.colour = u"white", .watts = 40};
  WriteProperties(table, lamp, bag, Saving::kAll);
  EXPECT_TRUE(recorder.Shows({"write \"Colour\" \"white\"", "write \"Watts\" 40"}));
}

TEST_F(PropertyTableTest, AnEntryIsLookedUpUnderItsReadKey) {
  bag.entries = {{u"Colour", u"red"}, {u"Color", u"green"}, {u"Watts", u"60"}};
  ReadProperties(table, lamp, bag);
  EXPECT_TRUE(recorder.Shows({"read \"Color\"", "read \"Watts\""}));
  EXPECT_EQ(lamp.colour, u"green");
  EXPECT_EQ(lamp.watts, 60);
}

TEST_F(PropertyTableTest, AMissingEntryIsItsDefaultOrElseEmpty) {
  ReadProperties(table, lamp, bag);
  EXPECT_EQ(lamp.colour, u"white");
  EXPECT_EQ(lamp.watts, 0);
}

TEST_F(PropertyTableTest, DefaultsLeaveTheOthersAlone) {
  SetDefaults(table, lamp);
  EXPECT_EQ(lamp.colour, u"white");
  EXPECT_EQ(lamp.watts, -1);
}

TEST_F(PropertyTableTest, AnErrorKeepsWhatWasReadBeforeIt) {
  bag.entries = {{u"Color", u"green"}, {u"Watts", u"many"}};
  EXPECT_EQ(ErrorOf([&] { ReadProperties(table, lamp, bag); }), "13: Type mismatch");
  EXPECT_EQ(lamp.colour, u"green");
  EXPECT_EQ(lamp.watts, -1);
}

}  // namespace

}  // namespace sifter
