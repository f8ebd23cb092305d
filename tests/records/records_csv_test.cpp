#include "records/recorded_series.h"
#include "records/records_csv.h"

#include <gtest/gtest.h>
#include <sstream>

namespace velmora::test {
namespace {

using namespace std::chrono;

TEST(RecordsCsv, QuotesEveryFieldDoublesQuotesAndEndsLinesWithCrLf) {
    StoneRecord r;
    r.id = 3;
    r.label = "a, \"b\"\r\nc";
    r.examined = sys_days(year(2026) / 1 / 2) + hours(3) + minutes(4) + seconds(5);
    r.ri = {{1.544, 1.553}, 1.544, 1.553, 0.009, "doubly refractive, birefringence 0.009"};
    r.weighing = Weighing{1.25, 0.75};
    r.sg = 2.5;
    r.candidates = {{"2", "Quartz", 100}, {"185", "Iolite", 61}};
    std::ostringstream out;
    writeRecordsCsv(out, std::span(&r, 1));
    const std::string csv = out.str();
    const auto headerEnd = csv.find("\r\n");
    EXPECT_EQ(csv.substr(0, csv.find(',')), "\"id\"");
    EXPECT_EQ(csv.substr(headerEnd + 2),
              "\"3\",\"a, \"\"b\"\"\r\nc\",\"2026-01-02T03:04:05Z\",\"1.544; 1.553\",\"1.544\","
              "\"1.553\",\"0.009\",\"doubly refractive, birefringence 0.009\",\"2.5\",\"1.25\","
              "\"0.75\",\"\",\"\",\"2 Quartz 100 %; 185 Iolite 61 %\",\"\",\"\"\r\n");
}

TEST(RecordsCsv, NumbersAreTheShortestThatReadBack) {
    const struct {
        double value;
        const char* text;
    } cases[] = {{1.544, "1.544"}, {0.1 + 0.2, "0.30000000000000004"}, {7, "7"}};
    for (const auto& c : cases) {
        EXPECT_EQ(cNumberText(c.value), c.text);
    }
}

} // namespace
} // namespace velmora::test
