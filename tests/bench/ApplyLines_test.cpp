#include "common/ApplyLines.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

namespace sifter::bench {
namespace {

TEST(WorkloadLine, IsOneJsonObject) {
  const Durations durations{.wall = {1500, 1400}, .cpu = {1450, 1390}};
  EXPECT_EQ(WorkloadLine(1000, "three", std::vector<std::uint32_t>{0, 1, 0x01020304}, durations),
            R"({"peer":"rowsifter","n":1000,"w":"three","rows":3,"hash":"cf8575afc807e8d0",)"
            R"("wall_ns":[1500,1400],"cpu_ns":[1450,1390]})");
}

TEST(WorkloadLine, EscapesTheName) {
  EXPECT_EQ(WorkloadLine(0, "a\"b\\c\td\xC3\xA9", {}, {}),
            "{\"peer\":\"rowsifter\",\"n\":0,\"w\":\"a\\\"b\\\\c\\u0009d\xC3\xA9\",\"rows\":0,"
            "\"hash\":\"cbf29ce484222325\",\"wall_ns\":[],\"cpu_ns\":[]}");
}

TEST(MemoryLine, IsOneJsonObjectWithTheHeapForEachCell) {
  EXPECT_EQ(
      MemoryLine(
          1000, 10,
          {.residentBase = 3500, .residentLoaded = 4600, .residentPeak = 5000, .heap = 512345}),
      R"({"peer":"rowsifter","n":1000,"mem":{"rss_base_kb":3500,"rss_loaded_kb":4600,)"
      R"("rss_peak_kb":5000,"heap_loaded_minus_base":512345,"heap_bytes_per_cell":51.23}})");
}

TEST(MemoryLine, OfAnEmptyTableHasNothingForEachCell) {
  EXPECT_EQ(MemoryLine(0, 10, {}),
            R"({"peer":"rowsifter","n":0,"mem":{"rss_base_kb":0,"rss_loaded_kb":0,)"
            R"("rss_peak_kb":0,"heap_loaded_minus_base":0,"heap_bytes_per_cell":0.00}})");
}

}  // namespace
}  // namespace sifter::bench
